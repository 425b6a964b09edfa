#include "ui/tab_strip.h"

#include <commctrl.h>

#include "shell/services/scaling.h"
#include "ui/controls.h"

namespace {
// Sent to every new tab strip (CCM_SETVERSION); the meaning of the number is the platform's.
constexpr UINT kVersionMessage = 0x2007;
constexpr WPARAM kVersion = 524;

ControlPlace PlaceOnWindow(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {Scale(-2), client.bottom - Scale(kTabStripHeight) + 1, client.right + Scale(2),
            Scale(kTabStripHeight) - 1};
}
} // namespace

HWND CreateTabStrip(HWND parent, HFONT font) {
    HWND strip =
        CreateControl(parent, WC_TABCONTROL, L"", TCS_BOTTOM, 0, PlaceOnWindow(parent), font);
    if (!strip) return nullptr;
    SendMessage(strip, kVersionMessage, kVersion, 0);
    // Narrow tabs: as many captions as a page has must fit a screen of 240 units without arrows.
    SendMessage(strip, TCM_SETPADDING, 0, MAKELPARAM(Scale(3), ScaleY(3)));
    SendMessage(strip, TCM_SETMINTABWIDTH, 0, 0);
    return strip;
}

void PlaceTabStrip(HWND strip) {
    const ControlPlace place = PlaceOnWindow(GetParent(strip));
    MoveWindow(strip, place.x, place.y, place.width, place.height, TRUE);
}

void InsertTab(HWND strip, int index, const wchar_t* title) {
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(title);
    SendMessage(strip, TCM_INSERTITEM, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
}

int SelectedTab(HWND strip) {
    return static_cast<int>(SendMessage(strip, TCM_GETCURSEL, 0, 0));
}
