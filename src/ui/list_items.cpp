#include "ui/list_items.h"

#include <commctrl.h>

#include <cwchar>

#include "resource_ids.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/messages.h"

namespace {
constexpr int kFirstColumnWidth = 300;
constexpr int kTextLimit = 1024; // Characters, with the NUL.

// What moves with a row.
struct Row {
    wchar_t text[kTextLimit] = L"";
    LPARAM data = 0;
    UINT tick = 0; // The state image, as a list view's state holds it.
};

void ReadRow(HWND list, int index, Row& row) {
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
    item.iItem = index;
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.pszText = row.text;
    item.cchTextMax = kTextLimit;
    SendMessage(list, LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    // A list view may answer with a text of its own instead of filling the buffer.
    if (item.pszText != row.text) wcsncpy(row.text, item.pszText, kTextLimit - 1);
    row.data = item.lParam;
    row.tick = item.state & LVIS_STATEIMAGEMASK;
}

void WriteRow(HWND list, int index, Row& row) {
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
    item.iItem = index;
    item.state = row.tick;
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.pszText = row.text;
    item.lParam = row.data;
    SendMessage(list, LVM_SETITEM, 0, reinterpret_cast<LPARAM>(&item));
}

void SwapRows(HWND list, int first, int second) {
    Row rows[2];
    ReadRow(list, first, rows[0]);
    ReadRow(list, second, rows[1]);
    WriteRow(list, first, rows[1]);
    WriteRow(list, second, rows[0]);
}

void SetRowState(HWND list, int row, UINT state) {
    LVITEM item{};
    item.state = state;
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessage(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}
} // namespace

HWND CreateList(HWND parent, UINT id, HFONT font, int rowHeight) {
    HWND list = CreateHiddenControl(parent, WC_LISTVIEW, L"",
                                    WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                                        LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS,
                                    id, {}, font);
    // Rows are one pixel higher than the small images, even where none shows. The list view
    // destroys the image list.
    HIMAGELIST images = ImageList_Create(1, ScaleY(rowHeight) - 1, ILC_COLOR, 0, 1);
    SendMessage(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
    ResetList(list);
    return list;
}

void ResetList(HWND list) {
    SendMessage(list, LVM_DELETEALLITEMS, 0, 0);
    SendMessage(list, LVM_DELETECOLUMN, 0, 0);
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    wchar_t title[] = L"Column";
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = title;
    column.cx = Scale(kFirstColumnWidth);
    SendMessage(list, LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
}

void FitColumn(HWND list) {
    // A narrow column takes the scroll bar below away; what remains is the room.
    SendMessage(list, LVM_SETCOLUMNWIDTH, 0, 1);
    RECT client{};
    GetClientRect(list, &client);
    SendMessage(list, LVM_SETCOLUMNWIDTH, 0, client.right);
}

void AddRow(HWND list, const wchar_t* text, uint32_t data) {
    InsertRow(list, RowCount(list), text, data);
}

void InsertRow(HWND list, int row, const wchar_t* text, uint32_t data) {
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(text);
    item.lParam = static_cast<LPARAM>(data);
    SendMessage(list, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
}

int RowCount(HWND list) {
    return static_cast<int>(SendMessage(list, LVM_GETITEMCOUNT, 0, 0));
}

uint32_t RowData(HWND list, int row) {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    SendMessage(list, LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<uint32_t>(item.lParam);
}

int SelectedRow(HWND list) {
    return static_cast<int>(
        SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

int FocusedRow(HWND list) {
    return static_cast<int>(
        SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

void SelectRow(HWND list, int row) {
    SetRowState(list, row, LVIS_SELECTED | LVIS_FOCUSED);
    SendMessage(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void ClearSelection(HWND list) {
    SetRowState(list, -1, 0);
    // The mark outlives the selection.
    SendMessage(list, LVM_SETSELECTIONMARK, 0, -1);
}

void MoveSelectedRow(HWND owner, HWND list, bool up) {
    const int row = SelectedRow(list);
    if (row < 0) {
        ShowMessage(owner, IDS_NOTHING_SELECTED_TEXT, IDS_NOTHING_SELECTED_CAPTION);
        return;
    }
    const int target = up ? row - 1 : row + 1;
    if (target < 0 || target >= RowCount(list)) return;
    SwapRows(list, row, target);
    SelectRow(list, target);
}
