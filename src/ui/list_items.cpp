#include "ui/list_items.h"

#include <commctrl.h>

#include <cwchar>
#include <memory>

#include "resource_ids.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/messages.h"

namespace {
constexpr int kFirstColumnWidth = 300;
constexpr int kTextLimit = 1024; // Characters, with the NUL.
constexpr UINT kTickedImage = 2; // The state image of a ticked box; that of an empty one is 1.

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

// The platform's boxes, which would stand at the top of a higher row, in images as high as the
// row's. Null on failure.
HIMAGELIST CentreImages(HIMAGELIST boxes, HIMAGELIST rowImages) {
    int width = 0;
    int height = 0;
    int unused = 0;
    int rowHeight = 0;
    if (!ImageList_GetIconSize(boxes, &width, &height) ||
        !ImageList_GetIconSize(rowImages, &unused, &rowHeight))
        return nullptr;
    const int count = ImageList_GetImageCount(boxes);
    HDC screen = GetDC(nullptr);
    const UniqueDc dc(CreateCompatibleDC(screen));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, count * width, rowHeight));
    ReleaseDC(nullptr, screen);
    {
        const SelectScope selected(dc.Get(), bitmap.Get());
        const RECT all{0, 0, count * width, rowHeight};
        FillRect(dc.Get(), &all, GetSysColorBrush(COLOR_WINDOW));
        for (int i = 0; i < count; ++i)
            ImageList_Draw(boxes, i, dc.Get(), i * width, (rowHeight - height) / 2, ILD_NORMAL);
    }
    HIMAGELIST images = ImageList_Create(width, rowHeight, ILC_COLORDDB, count, 0);
    ImageList_Add(images, bitmap.Get(), nullptr);
    return images;
}

void SwapRows(HWND list, int first, int second) {
    // Too large for the stack of a device.
    const auto rows = std::make_unique<Row[]>(2);
    ReadRow(list, first, rows[0]);
    ReadRow(list, second, rows[1]);
    WriteRow(list, first, rows[1]);
    WriteRow(list, second, rows[0]);
}

void SetRowState(HWND list, int row, UINT state, UINT mask = LVIS_SELECTED | LVIS_FOCUSED) {
    LVITEM item{};
    item.state = state;
    item.stateMask = mask;
    SendMessage(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}
} // namespace

HWND CreateList(HWND parent, UINT id, HFONT font, int rowHeight) {
    HWND list =
        CreateHiddenControl(parent, WC_LISTVIEW, L"",
                            WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_AUTOARRANGE |
                                LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER | LVS_SHOWSELALWAYS,
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

void AddColumn(HWND list) {
    LVCOLUMN column{};
    column.mask = LVCF_WIDTH;
    SendMessage(list, LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
}

void FitColumn(HWND list) {
    // A narrow column takes the scroll bar below away; what remains is the room.
    SendMessage(list, LVM_SETCOLUMNWIDTH, 0, 1);
    RECT client{};
    GetClientRect(list, &client);
    SendMessage(list, LVM_SETCOLUMNWIDTH, 0, client.right);
}

void AddRow(HWND list, const wchar_t* text, LPARAM data) {
    InsertRow(list, RowCount(list), text, data);
}

void InsertRow(HWND list, int row, const wchar_t* text, LPARAM data) {
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(text);
    item.lParam = data;
    SendMessage(list, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
}

int RowCount(HWND list) {
    return static_cast<int>(SendMessage(list, LVM_GETITEMCOUNT, 0, 0));
}

LPARAM RowData(HWND list, int row) {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    SendMessage(list, LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

void AddTickBoxes(HWND list) {
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    const auto images = [list](WPARAM kind) {
        return reinterpret_cast<HIMAGELIST>(SendMessage(list, LVM_GETIMAGELIST, kind, 0));
    };
    UniqueImageList taller(CentreImages(images(LVSIL_STATE), images(LVSIL_SMALL)));
    if (!taller) return;
    const UniqueImageList platforms(reinterpret_cast<HIMAGELIST>(SendMessage(
        list, LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(taller.Release()))));
}

bool IsRowTicked(HWND list, int row) {
    const auto state = static_cast<UINT>(
        SendMessage(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
    return state == INDEXTOSTATEIMAGEMASK(kTickedImage);
}

void TickRow(HWND list, int row, bool ticked) {
    SetRowState(list, row, INDEXTOSTATEIMAGEMASK(ticked ? kTickedImage : kTickedImage - 1),
                LVIS_STATEIMAGEMASK);
}

void ToggleFocusedRow(HWND list) {
    const int row = FocusedRow(list);
    if (row >= 0) TickRow(list, row, !IsRowTicked(list, row));
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
