#include "shell/page_list.h"

#include <algorithm>

#include "resource_ids.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/image_strip.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"
#include "ui/controls.h"

namespace {
constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_ICON | LVS_SINGLESEL |
                             LVS_AUTOARRANGE | LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER;
// The device's list views have no horizontal scroll bar then; a PC ignores it here.
constexpr DWORD kNoHorizontalScrollBar = 0x10000000;
constexpr DWORD kListExtendedStyle = kNoHorizontalScrollBar | LVS_EX_ONECLICKACTIVATE;
constexpr COLORREF kImageMask = RGB(0, 255, 0);
constexpr int kImageSize = 32;
constexpr int kCaptionLimit = 512;

void AddColumn(HWND list, int width) {
    wchar_t title[] = L"List Column";
    LVCOLUMN column{};
    column.mask = LVCF_WIDTH | LVCF_TEXT;
    column.cx = width;
    column.pszText = title;
    SendMessage(list, LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
}
} // namespace

void PageList::Create(HWND parent) {
    placedFor_ = ClientSize(parent);
    window_ = CreateWindowEx(0, WC_LISTVIEW, L"", kListStyle, 0, 0, placedFor_.cx, placedFor_.cy,
                             parent, nullptr, application.instance, nullptr);
    if (!window_) return;
    SendMessage(window_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, kListExtendedStyle);
    images_ = LoadImageStrip(IDB_PAGE_LIST, Scale(kImageSize, true), kImageMask);
    SendMessage(window_, LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.Get()));
    AddColumn(window_, placedFor_.cx);
    SpaceIcons();
    // Drawn once, not for each row.
    SendMessage(window_, WM_SETREDRAW, FALSE, 0);
    AddRows();
    SendMessage(window_, WM_SETREDRAW, TRUE, 0);
    SetFocus(window_);
}

void PageList::AddRows() {
    for (int row = 0; row < kPageCount; ++row) {
        const WideString caption = LanguageText(PageCaption(row));
        LVITEM item{};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = row;
        item.iImage = row;
        item.pszText = const_cast<wchar_t*>(caption.CStr());
        SendMessage(window_, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    }
    LVITEM focus{};
    focus.state = focus.stateMask = LVIS_FOCUSED;
    SendMessage(window_, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&focus));
}

// The grid that shows all pages at once: as many columns as there is room for captions, and rows
// that share the height.
void PageList::SpaceIcons() const {
    constexpr int kThreeColumns = 240; // Units; scaled as one, as a third would be rounded up.
    // Not the list's own client area, which may be less a scroll bar that this makes superfluous.
    const SIZE room = placedFor_;
    const int columns = std::max(1, 3 * static_cast<int>(room.cx) / Scale(kThreeColumns));
    const int rows = (kPageCount + columns - 1) / columns;
    const int rowHeight = room.cy / rows;
    // Where a caption cannot have a second line it must be narrow.
    const bool isLow =
        rowHeight < Scale(kImageSize, true) + 2 * FontMeasure(application.boldFont).LineHeight();
    HFONT font = isLow ? application.normalFont : application.boldFont;
    SendMessage(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessage(window_, LVM_SETICONSPACING, 0, MAKELPARAM(room.cx / columns, rowHeight));
    SendMessage(window_, LVM_ARRANGE, LVA_DEFAULT, 0);
}

void PageList::Place() {
    if (!window_) return;
    const SIZE size = ClientSize(GetParent(window_));
    if (size.cx == placedFor_.cx && size.cy == placedFor_.cy) return;
    placedFor_ = size;
    // First the spacing: rows that do not fit for a moment would bring a scroll bar that stays.
    SpaceIcons();
    MoveWindow(window_, 0, 0, size.cx, size.cy, FALSE);
    SendMessage(window_, LVM_ARRANGE, LVA_DEFAULT, 0);
}

void PageList::Destroy() {
    if (!window_) return;
    // A list view destroys the image list that it holds.
    SendMessage(window_, LVM_SETIMAGELIST, LVSIL_NORMAL, 0);
    DestroyWindow(window_);
    window_ = nullptr;
    images_.Reset();
}

int PageList::ActivatedRow(const NMHDR& header) const {
    if (header.hwndFrom != window_ || header.code != LVN_ITEMACTIVATE) return -1;
    // Enter sends a bare header without a row: the list itself knows which one it is. Before the
    // first choice no row is selected, and the one with the focus is meant.
    const auto selected = static_cast<int>(
        SendMessage(window_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    if (selected >= 0) return selected;
    return static_cast<int>(
        SendMessage(window_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

WideString PageList::Caption(int row) const {
    wchar_t text[kCaptionLimit] = L"";
    LVITEM item{};
    item.pszText = text;
    item.cchTextMax = kCaptionLimit;
    SendMessage(window_, LVM_GETITEMTEXT, static_cast<WPARAM>(row),
                reinterpret_cast<LPARAM>(&item));
    return {text};
}
