#include <aygshell.h>

#include "screen.h"
#include "shell_frame.h"

namespace {

constexpr DWORD kBorders = WS_CAPTION | WS_THICKFRAME;

bool IsTopLevel(DWORD style, HWND parent) {
    return (style & (WS_CHILD | WS_POPUP)) != WS_CHILD && parent != HWND_MESSAGE;
}

struct Placement {
    int x, y, width, height;
};

Placement ReplaceDefaults(Placement asked) {
    const RECT area = WorkArea();
    if (asked.x == CW_USEDEFAULT) {
        asked.x = area.left;
        asked.y = area.top;
    }
    if (asked.width == CW_USEDEFAULT) {
        asked.width = area.right - asked.x;
        asked.height = area.bottom - asked.y;
    }
    return asked;
}

// Small pop-ups, such as tooltips, leave the navigation bar to the window they belong to.
bool HasPlaceInBar(DWORD style, DWORD exStyle, const Placement& place) {
    if (exStyle & WS_EX_NOACTIVATE) return false;
    if (!(style & WS_POPUP) || (exStyle & WS_EX_CAPTIONOKBTN)) return true;
    const RECT area = WorkArea();
    return place.x == area.left && place.y == area.top && place.width == area.right - area.left;
}

// A PC gives a caption to every window created as neither a child nor a pop-up. Created as a
// pop-up, and made an overlapped window afterwards, it stays without.
HWND CreateWithoutCaption(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style,
                          const Placement& place, HWND owner, HMENU menu, HINSTANCE instance,
                          LPVOID param) {
    HWND window =
        CreateWindowExW(exStyle, className, title, (style & ~kBorders) | WS_POPUP, place.x, place.y,
                        place.width, place.height, owner, menu, instance, param);
    if (window)
        SetWindowLongW(window, GWL_STYLE,
                       GetWindowLongW(window, GWL_STYLE) & ~static_cast<LONG>(WS_POPUP));
    return window;
}

} // namespace

extern "C" {

HWND WINAPI CoreCreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x,
                                int y, int width, int height, HWND parent, HMENU menu,
                                HINSTANCE instance, LPVOID param) {
    if (!IsTopLevel(style, parent))
        return CreateWindowExW(exStyle, className, title, style, x, y, width, height, parent, menu,
                               instance, param);

    const Placement place = ReplaceDefaults({x, y, width, height});
    const bool popup = (style & WS_POPUP) != 0;
    HWND window = popup ? CreateWindowExW(exStyle, className, title, style, place.x, place.y,
                                          place.width, place.height, parent, menu, instance, param)
                        : CreateWithoutCaption(exStyle, className, title, style, place, parent,
                                               menu, instance, param);
    if (window && HasPlaceInBar(style, exStyle, place)) {
        const bool ownTitle = !popup || (style & WS_CAPTION) == WS_CAPTION;
        ShellFrameWindow(window, ownTitle ? kFrameOwnTitle : kFramePlain);
    }
    return window;
}

// The low bit of the handle asks for the window's pop-ups to come forward with it.
BOOL WINAPI CoreSetForegroundWindow(HWND window) {
    const auto value = reinterpret_cast<UINT_PTR>(window);
    if (!(value & 1)) return SetForegroundWindow(window);
    HWND owner = reinterpret_cast<HWND>(value & ~UINT_PTR{1});
    if (IsIconic(owner)) ShowWindow(owner, SW_RESTORE);
    return SetForegroundWindow(GetLastActivePopup(owner));
}

} // extern "C"
