#include "ui/button_strip.h"

#include "shell/services/application.h"
#include "shell/services/window_class.h"
#include "ui/controls.h"
#include "ui/paint_buffer.h"

namespace {
constexpr UINT_PTR kRestTimer = 1;
constexpr UINT kTipDelay = 500; // Milliseconds of rest before a tooltip shows,
constexpr UINT kTipTime = 4000; // and for which it stays.

ButtonStrip* StripOf(HWND window) {
    return reinterpret_cast<ButtonStrip*>(GetWindowLongPtr(window, GWLP_USERDATA));
}

POINT PointOf(LPARAM position) {
    return {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
}
} // namespace

ButtonStrip::~ButtonStrip() {
    if (window_) SetWindowLongPtr(window_, GWLP_USERDATA, 0);
}

bool ButtonStrip::CreateStrip(HWND page, UINT id, HFONT font) {
    RegisterWindowClass(application.instance, WindowProc, nullptr, kButtonStripClass, WHITE_BRUSH);
    font_ = font;
    window_ = CreateHiddenControl(page, kButtonStripClass, L"", WS_TABSTOP | WS_CLIPCHILDREN, id,
                                  {}, font);
    if (!window_) return false;
    SetWindowLongPtr(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return true;
}

void ButtonStrip::Redraw() const {
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

RECT ButtonStrip::PlaceOf(int button) const {
    RECT place{};
    GetClientRect(window_, &place);
    const int width = place.right;
    const int count = ButtonCount();
    place.left = width * button / count;
    place.right = width * (button + 1) / count;
    return place;
}

int ButtonStrip::ButtonAt(const POINT& point) const {
    for (int button = 0; button < ButtonCount(); ++button) {
        const RECT place = PlaceOf(button);
        if (PtInRect(&place, point)) return button;
    }
    return -1;
}

bool ButtonStrip::Step(bool forward) {
    const int step = forward ? 1 : -1;
    for (int button = current_ + step; button >= 0 && button < ButtonCount(); button += step) {
        if (!IsOffered(button)) continue;
        current_ = button;
        RestOn(button);
        Redraw();
        return true;
    }
    return false;
}

void ButtonStrip::Paint() {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window_, &paint);
    RECT client{};
    GetClientRect(window_, &client);
    {
        const PaintBuffer buffer(dc, client);
        const int focused = GetFocus() == window_ ? current_ : -1;
        for (int button = 0; button < ButtonCount(); ++button)
            DrawButton(buffer.Dc(), button, PlaceOf(button), button == focused);
    }
    EndPaint(window_, &paint);
}

void ButtonStrip::RestOn(int button) {
    if (button == resting_) return;
    EndRest();
    resting_ = button;
    if (button >= 0) SetTimer(window_, kRestTimer, kTipDelay, nullptr);
}

void ButtonStrip::EndRest() {
    KillTimer(window_, kRestTimer);
    toolTip_.Hide();
    resting_ = -1;
}

bool ButtonStrip::IsRestedOn(int button) const {
    if (button < 0) return false;
    if (GetFocus() == window_) return true;
    // Nothing tells a window that the pointer has left it.
    POINT pointer{};
    GetCursorPos(&pointer);
    ScreenToClient(window_, &pointer);
    return ButtonAt(pointer) == button;
}

void ButtonStrip::OnTimer() {
    const int button = resting_;
    if (toolTip_.IsShown() || !IsRestedOn(button)) {
        EndRest();
        return;
    }
    KillTimer(window_, kRestTimer);
    const WideString name = NameOf(button);
    if (name.IsEmpty()) return;
    RECT place = PlaceOf(button);
    MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&place), 2);
    toolTip_.Show(GetParent(window_), place, name.CStr(), font_);
    SetTimer(window_, kRestTimer, kTipTime, nullptr);
}

void ButtonStrip::OnPointerDown(int button) {
    if (button < 0 || !IsOffered(button)) return;
    current_ = button;
    SetCapture(window_);
    isDown_ = true;
    SetFocus(window_);
    RestOn(button);
    Redraw();
}

void ButtonStrip::OnPointerUp(int button) {
    if (!isDown_) return;
    isDown_ = false;
    ReleaseCapture();
    if (button == current_ && TakesTaps())
        PressCurrent();
    else
        EndRest();
}

void ButtonStrip::OnFocus(bool isGained) {
    if (isGained && !IsOffered(current_)) {
        current_ = -1;
        ButtonStrip::Step(true);
    }
    if (isGained)
        RestOn(current_);
    else
        EndRest();
    Redraw();
}

void ButtonStrip::PressCurrent() {
    EndRest();
    if (current_ >= 0 && IsOffered(current_)) Press(current_);
}

void ButtonStrip::OnDestroy() {
    EndRest();
    SetWindowLongPtr(window_, GWLP_USERDATA, 0);
    window_ = nullptr;
}

bool ButtonStrip::TakesTaps() const {
    return true;
}

void ButtonStrip::MeasureEntry(MEASUREITEMSTRUCT&) const {}

void ButtonStrip::DrawEntry(const DRAWITEMSTRUCT&) {}

LRESULT ButtonStrip::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return 1; // Painting covers everything.
    case WM_LBUTTONDOWN:
        OnPointerDown(ButtonAt(PointOf(lParam)));
        return 0;
    case WM_MOUSEMOVE:
        RestOn(ButtonAt(PointOf(lParam)));
        return 0;
    case WM_LBUTTONUP:
        OnPointerUp(ButtonAt(PointOf(lParam)));
        return 0;
    case WM_CAPTURECHANGED:
        isDown_ = false;
        return 0;
    case kMessageStepButton:
        return Step(wParam != 0);
    case WM_KEYUP:
        if (wParam == VK_SPACE) PressCurrent();
        return 0;
    case BM_CLICK:
        PressCurrent();
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        OnFocus(message == WM_SETFOCUS);
        return 0;
    case WM_SHOWWINDOW:
        if (!wParam) EndRest();
        return 0;
    case WM_TIMER:
        OnTimer();
        return 0;
    case WM_MEASUREITEM:
        MeasureEntry(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_DRAWITEM:
        DrawEntry(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_DESTROY:
        OnDestroy();
        return 0;
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}

LRESULT CALLBACK ButtonStrip::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ButtonStrip* strip = StripOf(window);
    return strip ? strip->Dispatch(window, message, wParam, lParam)
                 : DefWindowProc(window, message, wParam, lParam);
}
