#include "input_panel.h"

#include <aygshell.h>

#include "../coredll/shell_frame.h"
#include "menu_bar_painter.h"

#include <utility>

namespace {

constexpr wchar_t kClassName[] = L"StandInInputPanel";
constexpr wchar_t kLabel[] = L"on-screen keyboard";
constexpr int kPanelUnits = 80;
constexpr COLORREF kPanel = RGB(0xE9, 0xEE, 0xF4);
constexpr COLORREF kLabelInk = RGB(0x6B, 0x7A, 0x8D);

HWND panel = nullptr; // Null while lowered.

RECT PanelPlace() {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int bottom = GetSystemMetrics(SM_CYSCREEN) - ShellScale(kBarUnits);
    return {0, bottom - ShellScale(kPanelUnits), width, bottom};
}

void OnPaint(HWND window) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    RECT client;
    GetClientRect(window, &client);
    HFONT font = CreateMenuBarFont();
    HGDIOBJ previous = SelectObject(dc, font);
    SetBkColor(dc, kPanel);
    SetTextColor(dc, kLabelInk);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &client, nullptr, 0, nullptr);
    DrawTextW(dc, kLabel, -1, &client, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    SelectObject(dc, previous);
    DeleteObject(font);
    EndPaint(window, &paint);
}

void OnDisplayChange(HWND window) {
    const RECT place = PanelPlace();
    MoveWindow(window, place.left, place.top, place.right - place.left, place.bottom - place.top,
               TRUE);
}

LRESULT CALLBACK PanelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ACTIVATE:
        ShellPassActivationOn(wParam);
        return 0;
    case WM_PAINT:
        OnPaint(window);
        return 0;
    case WM_DISPLAYCHANGE:
        OnDisplayChange(window);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND CreatePanel() {
    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = PanelProc;
    windowClass.lpszClassName = kClassName;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    RegisterClassW(&windowClass); // Fails when an earlier panel registered it.
    const RECT place = PanelPlace();
    return CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, kClassName, nullptr, WS_POPUP,
                           place.left, place.top, place.right - place.left,
                           place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
}

BOOL CALLBACK TellWindow(HWND window, LPARAM /*param*/) {
    SendMessageW(window, WM_SETTINGCHANGE, SPI_SETSIPINFO, 0);
    return TRUE;
}

} // namespace

bool IsInputPanelRaised() {
    return panel != nullptr;
}

RECT AreaAbovePanel(bool menuBar) {
    RECT area;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    if (panel)
        area.bottom = PanelPlace().top;
    else if (menuBar)
        area.bottom -= ShellScale(kBarUnits);
    return area;
}

extern "C" BOOL WINAPI SipShowIM(DWORD flags) {
    const bool raise = (flags & SIPF_ON) != 0;
    if (raise && !panel) {
        panel = CreatePanel();
        if (!panel) return FALSE;
    } else if (!raise && panel) {
        DestroyWindow(std::exchange(panel, nullptr));
    } else {
        return TRUE;
    }
    EnumThreadWindows(GetCurrentThreadId(), TellWindow, 0);
    if (panel)
        SetWindowPos(panel, HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return TRUE;
}
