#include "navigation_bar.h"

#include <aygshell.h>
#include <windowsx.h>

#include "round_shapes.h"
#include "screen.h"
#include "window_frame.h"

#include <cwchar>
#include <iterator>
#include <new>
#include <utility>

namespace {

constexpr wchar_t kClassName[] = L"StandInNavigationBar";
constexpr UINT_PTR kMinuteTimer = 1;
constexpr UINT kMillisecondsPerMinute = 60'000;

constexpr int kMarginUnits = 6;
constexpr int kButtonUnits = 22; // Diameter.
constexpr COLORREF kBand = RGB(0x33, 0x60, 0x96);
constexpr COLORREF kBandEdge = RGB(0x22, 0x43, 0x6B);
constexpr COLORREF kText = RGB(0xFF, 0xFF, 0xFF);

NavigationBar* bar = nullptr;

HFONT CreateBoldFont(int points) {
    LOGFONTW font = {};
    font.lfHeight = -ShellScale(MulDiv(points, kUnitsPerInch, 72));
    font.lfWeight = FW_BOLD;
    wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&font);
}

// A pop-up without a caption is a part of its owner, whose title the bar goes on showing.
HWND TitleOwner(HWND window) {
    for (HWND next = window; next; next = GetWindow(next, GW_OWNER))
        if (FlagsOf(next) & kFrameOwnTitle) return next;
    return window;
}

void FillBand(HDC dc, RECT band, COLORREF colour) {
    SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &band, nullptr, 0, nullptr);
}

int TextWidth(HDC dc, const wchar_t* text) {
    SIZE size = {};
    GetTextExtentPoint32W(dc, text, static_cast<int>(wcslen(text)), &size);
    return size.cx;
}

} // namespace

bool NavigationBar::Create() {
    bar = new (std::nothrow) NavigationBar;
    if (bar && !bar->CreateBarWindow()) delete std::exchange(bar, nullptr);
    return bar != nullptr;
}

void NavigationBar::Show(HWND window) {
    if (!bar && !Create()) return;
    const bool wasHidden = !IsWindowVisible(bar->window_);
    bar->shown_ = window;
    SetWindowPos(bar->window_, HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    if (wasHidden) bar->StartMinute();
    Refresh();
}

void NavigationBar::Refresh() {
    if (bar) InvalidateRect(bar->window_, nullptr, FALSE);
}

void NavigationBar::Hide() {
    if (!bar) return;
    KillTimer(bar->window_, kMinuteTimer);
    ShowWindow(bar->window_, SW_HIDE);
}

void NavigationBar::Leave(HWND window) {
    if (!bar || bar->shown_ != window) return;
    HWND active = GetActiveWindow();
    bar->shown_ = active != window && IsFramed(active) ? active : nullptr;
    Refresh();
}

void NavigationBar::Destroy() {
    if (bar) DestroyWindow(bar->window_);
}

bool NavigationBar::PostOk() {
    if (!bar || bar->ShownButton() != Button::Ok || !IsWindowEnabled(bar->shown_)) return false;
    return bar->shown_ == GetActiveWindow() && PostMessageW(bar->shown_, WM_COMMAND, IDOK, 0);
}

NavigationBar::NavigationBar() : titleFont_(CreateBoldFont(9)), smallFont_(CreateBoldFont(8)) {}

NavigationBar::~NavigationBar() {
    DeleteObject(titleFont_);
    DeleteObject(smallFont_);
}

bool NavigationBar::CreateBarWindow() {
    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = WindowProc;
    windowClass.lpszClassName = kClassName;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    RegisterClassW(&windowClass); // Fails when an earlier bar registered it.
    window_ = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, kClassName, nullptr, WS_POPUP, 0,
                              0, CoreGetSystemMetrics(SM_CXSCREEN), ShellScale(kBarUnits), nullptr,
                              nullptr, nullptr, nullptr);
    return window_ != nullptr;
}

LRESULT CALLBACK NavigationBar::WindowProc(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    if (!bar || bar->window_ != window) return DefWindowProcW(window, message, wParam, lParam);
    if (message != WM_NCDESTROY) return bar->Handle(message, wParam, lParam);
    delete std::exchange(bar, nullptr);
    return 0;
}

LRESULT NavigationBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ACTIVATE:
        ShellPassActivationOn(wParam);
        return 0;
    case WM_LBUTTONDOWN:
        OnButtonDown(point);
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(point);
        return 0;
    case WM_LBUTTONUP:
        OnButtonUp();
        return 0;
    case WM_CAPTURECHANGED:
        SetPressed(false);
        return 0;
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_PRINTCLIENT:
        Paint(reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_TIMER:
        OnTimer();
        return 0;
    case WM_DISPLAYCHANGE:
        OnDisplayChange();
        return 0;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

NavigationBar::Button NavigationBar::ShownButton() const {
    if (!shown_) return Button::None;
    if (GetWindowLongW(shown_, GWL_EXSTYLE) & WS_EX_CAPTIONOKBTN) return Button::Ok;
    const bool none = (GetWindowLongW(shown_, GWL_STYLE) & WS_NONAVDONEBUTTON) != 0;
    return none ? Button::None : Button::Close;
}

// The whole height at the right end: a larger target than the disc that is drawn.
RECT NavigationBar::ButtonPlace() const {
    RECT place;
    GetClientRect(window_, &place);
    place.left = place.right - ShellScale(kBarUnits);
    return place;
}

void NavigationBar::OnButtonDown(POINT point) {
    const RECT place = ButtonPlace();
    if (!PtInRect(&place, point) || ShownButton() == Button::None || !IsWindowEnabled(shown_))
        return;
    SetCapture(window_);
    SetPressed(true);
}

void NavigationBar::OnMouseMove(POINT point) {
    const RECT place = ButtonPlace();
    if (GetCapture() == window_) SetPressed(PtInRect(&place, point));
}

void NavigationBar::OnButtonUp() {
    if (GetCapture() != window_) return;
    const bool press = pressed_;
    ReleaseCapture();
    if (press && IsWindowEnabled(shown_)) Press();
}

void NavigationBar::SetPressed(bool pressed) {
    if (pressed == pressed_) return;
    pressed_ = pressed;
    const RECT place = ButtonPlace();
    InvalidateRect(window_, &place, FALSE);
}

// The window may be destroyed by the message, and this bar with it: nothing follows the sending.
void NavigationBar::Press() {
    if (ShownButton() == Button::Ok)
        SendMessageW(shown_, WM_COMMAND, IDOK, 0);
    else
        PressClose();
}

// On the device X puts a program away without ending it.
void NavigationBar::PressClose() {
    if (FlagsOf(shown_) & kFrameCancelButton)
        SendMessageW(shown_, WM_COMMAND, IDCANCEL, 0);
    else
        ShowWindow(GetAncestor(shown_, GA_ROOTOWNER), SW_MINIMIZE);
}

// Wakes at the next full minute, and so never more than once a minute.
void NavigationBar::StartMinute() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    const UINT passed = now.wSecond * 1000U + now.wMilliseconds;
    SetTimer(window_, kMinuteTimer, kMillisecondsPerMinute - passed + 1, nullptr);
}

void NavigationBar::OnTimer() {
    StartMinute();
    Refresh();
}

void NavigationBar::OnDisplayChange() {
    MoveWindow(window_, 0, 0, CoreGetSystemMetrics(SM_CXSCREEN), ShellScale(kBarUnits), TRUE);
}

void NavigationBar::OnPaint() {
    PAINTSTRUCT paint;
    Paint(BeginPaint(window_, &paint));
    EndPaint(window_, &paint);
}

void NavigationBar::Paint(HDC dc) {
    RECT band;
    GetClientRect(window_, &band);
    RECT edge = band;
    edge.top = band.bottom -= ShellScale(1);
    FillBand(dc, band, kBand);
    FillBand(dc, edge, kBandEdge);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kText);
    HGDIOBJ previous = SelectObject(dc, titleFont_);
    PaintTitle(dc, band);
    PaintButton(dc);
    SelectObject(dc, previous);
}

void NavigationBar::PaintTitle(HDC dc, const RECT& band) {
    wchar_t title[128] = L"";
    if (shown_) GetWindowTextW(TitleOwner(shown_), title, static_cast<int>(std::size(title)));
    RECT place = band;
    place.left += ShellScale(kMarginUnits);
    place.right = ButtonPlace().left - PaintClock(dc, band, TextWidth(dc, title));
    SelectObject(dc, titleFont_);
    DrawTextW(dc, title, -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// Draws the clock left of the button, unless the title needs the room; gives the width it took.
int NavigationBar::PaintClock(HDC dc, const RECT& band, int titleWidth) {
    wchar_t time[32] = L"";
    GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time,
                   static_cast<int>(std::size(time)));
    SelectObject(dc, smallFont_);
    const int margin = ShellScale(kMarginUnits);
    const int width = TextWidth(dc, time) + margin;
    RECT place = band;
    place.right = ButtonPlace().left - margin / 2;
    place.left = place.right - width;
    if (place.left < 2 * margin + titleWidth) return 0;
    DrawTextW(dc, time, -1, &place, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
    return width + margin;
}

void NavigationBar::PaintButton(HDC dc) {
    const Button button = ShownButton();
    if (button == Button::None) return;
    RECT place = ButtonPlace();
    place.bottom -= ShellScale(1);
    const double x = (place.left + place.right) / 2.0;
    const double y = (place.top + place.bottom) / 2.0;
    const double radius = ShellScale(kButtonUnits) / 2.0;
    const double line = ShellScale(3) / 2.0;
    FillStroke(dc, {x, y, x, y, radius}, kText);
    if (!pressed_) FillStroke(dc, {x, y, x, y, radius - line}, kBand);

    const COLORREF ink = pressed_ ? kBand : kText;
    if (button == Button::Ok) {
        SetTextColor(dc, ink);
        SelectObject(dc, smallFont_);
        DrawTextW(dc, L"ok", -1, &place, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
        return;
    }
    const double arm = radius * 0.35;
    FillStroke(dc, {x - arm, y - arm, x + arm, y + arm, line * 0.7}, ink);
    FillStroke(dc, {x - arm, y + arm, x + arm, y - arm, line * 0.7}, ink);
}

extern "C" BOOL WINAPI ShellPostOk() {
    return NavigationBar::PostOk();
}
