#include "ui/list_selection.h"

#include <commctrl.h>

#include <cwchar>

namespace {
constexpr COLORREF kUnfocusedRow = RGB(205, 217, 234);

bool IsListView(HWND window) {
    wchar_t name[32] = L"";
    GetClassName(window, name, 32);
    return wcscmp(name, WC_LISTVIEW) == 0;
}
} // namespace

LRESULT DrawListSelection(const NMHDR& header) {
    if (header.code != NM_CUSTOMDRAW || !IsListView(header.hwndFrom)) return 0;
    // The list takes the colours, and the row's state, from what is left here.
    auto& draw = reinterpret_cast<NMLVCUSTOMDRAW&>(const_cast<NMHDR&>(header));
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || GetFocus() == header.hwndFrom) return 0;
    const LRESULT state =
        SendMessage(header.hwndFrom, LVM_GETITEMSTATE, draw.nmcd.dwItemSpec, LVIS_SELECTED);
    if (!(state & LVIS_SELECTED)) return 0;
    draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
    draw.clrText = GetSysColor(COLOR_WINDOWTEXT);
    draw.clrTextBk = kUnfocusedRow;
    return 0;
}
