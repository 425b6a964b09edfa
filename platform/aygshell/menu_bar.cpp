#include "menu_bar.h"

#include <windowsx.h>

#include "../coredll/shell_frame.h"
#include "input_panel.h"
#include "menu_bar_layout.h"
#include "menu_bar_painter.h"
#include "soft_keys.h"

#include <algorithm>
#include <new>
#include <utility>

namespace {

constexpr wchar_t kClassName[] = L"StandInMenuBar";
constexpr int kNoItem = -1;
constexpr int kPanelButton = -2;

std::vector<MenuBar*> bars;

} // namespace

HWND MenuBar::Create(const SHMENUBARINFO& info, MenuBarContent content) {
    auto* bar = new (std::nothrow) MenuBar(info, std::move(content));
    if (!bar) return nullptr;
    bars.push_back(bar);
    AddSoftKeyUser();
    if (bar->CreateBarWindow(!(info.dwFlags & SHCMBF_HIDDEN))) return bar->window_;
    delete bar;
    return nullptr;
}

MenuBar* MenuBar::Of(HWND owner) {
    const auto found = std::find_if(bars.rbegin(), bars.rend(), [&](const MenuBar* bar) {
        return bar->parent_ == owner && bar->window_;
    });
    return found == bars.rend() ? nullptr : *found;
}

MenuBar::MenuBar(const SHMENUBARINFO& info, MenuBarContent content)
    : parent_(info.hwndParent),
      menu_(content.menu),
      items_(std::move(content.items)),
      font_(CreateMenuBarFont()),
      background_(info.dwFlags & SHCMBF_COLORBK ? info.clrBk : kMenuBarColour),
      hasPanelButton_(!(info.dwFlags & SHCMBF_HIDESIPBUTTON)),
      held_(kNoItem),
      pressed_(kNoItem) {
    if (info.nBmpId == 0 || info.cBmpImages <= 0) return;
    const int width = ShellScale(16);
    ownImages_ = ImageList_LoadImageW(info.hInstRes, MAKEINTRESOURCEW(info.nBmpId), width, 0,
                                      CLR_DEFAULT, IMAGE_BITMAP, 0);
    images_ = ownImages_;
}

MenuBar::~MenuBar() {
    std::erase(bars, this);
    RemoveSoftKeyUser();
    if (ownImages_) ImageList_Destroy(ownImages_);
    DeleteObject(font_);
    if (openMenu_) {
        *openMenu_ = {true, menu_};
        // EndMenu would tell the menu's own window, which may be about to go with this bar's owner.
        PostThreadMessageW(GetCurrentThreadId(), WM_CANCELMODE, 0, 0);
    } else if (menu_) {
        DestroyMenu(menu_);
    }
}

bool MenuBar::CreateBarWindow(bool visible) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.lpszClassName = kClassName;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    RegisterClassW(&windowClass); // Fails when an earlier bar registered it.
    const int height = ShellScale(kBarUnits);
    window_ = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, kClassName, nullptr, WS_POPUP, 0,
                              GetSystemMetrics(SM_CYSCREEN) - height, GetSystemMetrics(SM_CXSCREEN),
                              height, parent_, nullptr, nullptr, this);
    if (!window_) return false;
    Arrange();
    if (visible) ShowWindow(window_, SW_SHOWNA);
    return true;
}

LRESULT CALLBACK MenuBar::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* bar = reinterpret_cast<MenuBar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!bar || bar->window_ != window) return DefWindowProcW(window, message, wParam, lParam);
    if (message != WM_NCDESTROY) return bar->Handle(message, wParam, lParam);
    delete bar;
    return 0;
}

LRESULT MenuBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ACTIVATE:
        ShellPassActivationOn(wParam);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        return HandlePointer(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_SIZE:
        Arrange();
        return 0;
    case WM_SETTINGCHANGE:
        InvalidateRect(window_, nullptr, FALSE);
        return 0;
    case WM_DISPLAYCHANGE:
        PlaceOnScreen();
        return 0;
    case kSoftKeyMessage:
        OnSoftKey(static_cast<int>(wParam));
        return 0;
    case SHCMBM_SETSUBMENU:
    case SHCMBM_GETSUBMENU:
    case SHCMBM_GETMENU:
    case SHCMBM_OVERRIDEKEY:
        return HandleShellMessage(message, wParam, lParam);
    }
    return HandleToolbarMessage(message, wParam, lParam);
}

LRESULT MenuBar::HandlePointer(UINT message, POINT point) {
    switch (message) {
    case WM_LBUTTONDOWN:
        held_ = HitTest(point);
        if (!CanPress(held_)) break;
        SetCapture(window_);
        SetPressed(held_);
        break;
    case WM_MOUSEMOVE:
        if (GetCapture() == window_) SetPressed(HitTest(point) == held_ ? held_ : kNoItem);
        break;
    case WM_LBUTTONUP:
        if (GetCapture() == window_) {
            const int index = pressed_;
            ReleaseCapture();
            if (CanPress(index)) Activate(index, false);
        }
        break;
    case WM_CAPTURECHANGED:
        SetPressed(kNoItem);
        break;
    }
    return 0;
}

void MenuBar::PlaceOnScreen() {
    const int height = ShellScale(kBarUnits);
    MoveWindow(window_, 0, GetSystemMetrics(SM_CYSCREEN) - height, GetSystemMetrics(SM_CXSCREEN),
               height, TRUE);
}

void MenuBar::Arrange() {
    RECT client;
    GetClientRect(window_, &client);
    HDC dc = GetDC(window_);
    HGDIOBJ previous = SelectObject(dc, font_);
    LayOutMenuBar(dc, client.right, client.bottom, items_,
                  hasPanelButton_ ? &panelButton_ : nullptr);
    SelectObject(dc, previous);
    ReleaseDC(window_, dc);
    InvalidateRect(window_, nullptr, FALSE);
}

void MenuBar::OnPaint() {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window_, &paint);
    RECT client;
    GetClientRect(window_, &client);
    HGDIOBJ previous = SelectObject(dc, font_);
    PaintMenuBar(dc, client,
                 {items_, images_, background_, pressed_ >= 0 ? &items_[pressed_] : nullptr,
                  hasPanelButton_ ? &panelButton_ : nullptr,
                  pressed_ == kPanelButton || IsInputPanelRaised()});
    SelectObject(dc, previous);
    EndPaint(window_, &paint);
}

int MenuBar::HitTest(POINT point) const {
    for (size_t i = 0; i < items_.size(); ++i)
        if (PtInRect(&items_[i].place, point)) return static_cast<int>(i);
    return hasPanelButton_ && PtInRect(&panelButton_, point) ? kPanelButton : kNoItem;
}

// A dialog disables its owner, and so the owner's bar.
bool MenuBar::CanPress(int index) const {
    if (index == kNoItem || !IsWindowEnabled(parent_)) return false;
    return index == kPanelButton || items_[index].IsEnabled();
}

void MenuBar::SetPressed(int index) {
    if (index == pressed_) return;
    pressed_ = index;
    InvalidateRect(window_, nullptr, FALSE);
}

// The command may destroy this bar: nothing follows its sending.
void MenuBar::Activate(int index, bool byKey) {
    if (index == kPanelButton)
        SipShowIM(IsInputPanelRaised() ? SIPF_OFF : SIPF_ON);
    else if (items_[index].popup)
        OpenMenu(index, byKey);
    else
        SendMessageW(parent_, WM_COMMAND, MAKEWPARAM(items_[index].command, 0),
                     reinterpret_cast<LPARAM>(window_));
}

void MenuBar::OpenMenu(int index, bool byKey) {
    HMENU popup = items_[index].popup;
    if (openMenu_ || !IsMenu(popup)) return; // The program may have deleted it.
    SetPressed(index);
    UpdateWindow(window_);
    if (byKey) PostMessageW(parent_, WM_KEYDOWN, VK_DOWN, 1); // Selects the first entry.
    OpenMenuState state;
    openMenu_ = &state;
    TrackMenu(popup, items_[index].place);
    if (state.barDestroyed) {
        if (state.menu) DestroyMenu(state.menu);
        return;
    }
    openMenu_ = nullptr;
    SetPressed(kNoItem);
    SwallowTapOn(index);
}

// Opens a menu upwards from the bar, at the side of the bar that its button is at.
void MenuBar::TrackMenu(HMENU popup, RECT place) const {
    TPMPARAMS bar = {sizeof(bar), {}};
    GetWindowRect(window_, &bar.rcExclude);
    MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&place), 2);
    const bool atRight = place.left - bar.rcExclude.left > bar.rcExclude.right - place.right;
    TrackPopupMenuEx(popup,
                     TPM_BOTTOMALIGN | TPM_VERTICAL | (atRight ? TPM_RIGHTALIGN : TPM_LEFTALIGN),
                     atRight ? place.right : place.left, bar.rcExclude.top, parent_, &bar);
}

// A tap that closed a menu still arrives; on the button of that menu it must not open it again.
void MenuBar::SwallowTapOn(int index) const {
    MSG tap;
    if (PeekMessageW(&tap, window_, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_NOREMOVE) &&
        HitTest({GET_X_LPARAM(tap.lParam), GET_Y_LPARAM(tap.lParam)}) == index)
        PeekMessageW(&tap, window_, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE);
}

void MenuBar::OnSoftKey(int number) {
    for (size_t i = 0; i < items_.size(); ++i) {
        if (!items_[i].IsText() || !items_[i].IsShown() || number-- != 0) continue;
        const int index = static_cast<int>(i);
        if (CanPress(index)) Activate(index, true);
        return;
    }
}
