#include "ui/folder_view.h"

#include <commctrl.h>

#include <cwchar>
#include <vector>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/image_strip.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
constexpr int kButtonWidth = 108;
constexpr int kImageSize = 20;
constexpr COLORREF kImageMask = RGB(0, 255, 0);
constexpr int kFolderImage = 0;
constexpr int kFileImage = 1;

// A path as far as it fits a width in pixels: where it does not, its first folders give way to an
// ellipsis, and even the start of the last one.
WideString FitPath(HDC dc, const WideString& path, int width) {
    const auto length = static_cast<int>(path.Length());
    std::vector<int> ends(path.Length()); // How far each character reaches.
    SIZE size{};
    GetTextExtentExPoint(dc, path.CStr(), length, 0, nullptr, ends.data(), &size);
    if (size.cx <= width) return path;
    WideString fitting(L"\u2026");
    SIZE ellipsis{};
    GetTextExtentExPoint(dc, fitting.CStr(), 1, 0, nullptr, nullptr, &ellipsis);
    const int room = width - ellipsis.cx;
    size_t start = 1;
    while (start < path.Length() && size.cx - ends[start - 1] > room)
        ++start;
    const wchar_t* rest = path.CStr() + start;
    const wchar_t* wholeNames = wcschr(rest, L'\\');
    fitting.Append(wholeNames ? wholeNames : rest);
    return fitting;
}
} // namespace

FolderView::FolderView(const WideString& start, const wchar_t* extension) : extension_(extension) {
    if (start.IsEmpty() || !IsFolder(start.CStr())) return;
    const size_t length = start.Length();
    const bool endsWithBackslash = start.CStr()[length - 1] == L'\\';
    folder_.Assign(start.CStr(), endsWithBackslash ? length - 1 : length);
}

void FolderView::Create(HWND window) {
    window_ = window;
    HFONT font = application.normalFont;
    CreateControl(window, L"STATIC", L"", SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE, kPathText, {},
                  font);
    CreateList();
    const UINT emptyText = extension_ ? IDS_FILE_EMPTY : IDS_FOLDER_EMPTY;
    CreateControl(window, L"STATIC", LanguageText(emptyText).CStr(), SS_CENTER, kEmptyText, {},
                  font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_FOLDER_UP).CStr(), WS_TABSTOP, kUpButton, {},
                  font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_CANCEL).CStr(), WS_TABSTOP, IDCANCEL, {},
                  font);
    Fill();
}

void FolderView::CreateList() {
    HWND list = CreateControl(window_, WC_LISTVIEW, L"",
                              WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                                  LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                              kList, {}, application.normalFont);
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
                LVS_EX_FULLROWSELECT | LVS_EX_ONECLICKACTIVATE);
    images_ = LoadImageStrip(IDB_FILE_IMAGES, Scale(kImageSize, true), kImageMask);
    SendMessage(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.Get()));
    AddColumn(list);
}

void FolderView::Layout(int listTop) const {
    RECT client{};
    GetClientRect(window_, &client);
    const int margin = Scale(kMargin);
    const int rowHeight = ScaleY(kRowHeight);
    const int button = Scale(kButtonWidth);
    const int width = client.right - 2 * margin;
    const int buttonTop = client.bottom - ScaleY(kMargin) - rowHeight;
    const auto place = [this](UINT id, const ControlPlace& to) {
        MoveWindow(Item(id), to.x, to.y, to.width, to.height, TRUE);
    };
    place(kPathText, {margin, ScaleY(kMargin), width, rowHeight});
    place(kList, {margin, listTop, width, buttonTop - ScaleY(kMargin) - listTop});
    place(kEmptyText, {2 * margin, listTop + rowHeight, width - 2 * margin, rowHeight});
    place(kUpButton, {margin, buttonTop, button, rowHeight});
    place(IDCANCEL, {client.right - margin - button, buttonTop, button, rowHeight});
    SendMessage(Item(kList), LVM_SETCOLUMNWIDTH, 0,
                width - GetSystemMetrics(SM_CXVSCROLL) - Scale(kMargin));
    ShowPath();
}

void FolderView::ShowPath() const {
    HWND text = Item(kPathText);
    RECT client{};
    GetClientRect(text, &client);
    HDC dc = GetDC(text);
    {
        const SelectScope font(dc, application.normalFont);
        const WideString path = folder_.IsEmpty() ? WideString(L"\\") : folder_;
        SetWindowText(text, FitPath(dc, path, client.right).CStr());
    }
    ReleaseDC(text, dc);
}

void FolderView::Fill() {
    listing_ = ListFolder(folder_, extension_);
    HWND list = Item(kList);
    // Drawn once, not for each row.
    SendMessage(list, WM_SETREDRAW, FALSE, 0);
    SendMessage(list, LVM_DELETEALLITEMS, 0, 0);
    SendMessage(list, LVM_SETITEMCOUNT, listing_.names.size(), 0);
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    for (const WideString& name : listing_.names) {
        const bool isFolder = static_cast<size_t>(item.iItem) < listing_.folderCount;
        item.iImage = isFolder ? kFolderImage : kFileImage;
        item.pszText = const_cast<wchar_t*>(name.CStr());
        SendMessage(list, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
        ++item.iItem;
    }
    LVITEM first{};
    // A file is selected by the user only.
    first.stateMask = LVIS_FOCUSED | (listing_.folderCount > 0 ? LVIS_SELECTED : 0U);
    first.state = first.stateMask;
    SendMessage(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));
    SendMessage(list, WM_SETREDRAW, TRUE, 0);
    const bool isEmpty = listing_.names.empty();
    // An empty list cannot show that it has the focus, so the keys pass over it.
    SetTabStop(list, !isEmpty);
    ShowWindow(Item(kEmptyText), isEmpty ? SW_SHOW : SW_HIDE);
    EnableWindow(Item(kUpButton), !folder_.IsEmpty());
    ShowPath();
}

void FolderView::TakeFocus() const {
    SetFocus(Item(listing_.names.empty() && !folder_.IsEmpty() ? kUpButton : kList));
}

void FolderView::Show(const WideString& folder) {
    folder_ = folder;
    Fill();
    TakeFocus();
}

int FolderView::RowInState(UINT state) const {
    return static_cast<int>(
        SendMessage(Item(kList), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), state));
}

int FolderView::ActiveRow() const {
    const int selected = RowInState(LVNI_SELECTED);
    return selected >= 0 ? selected : RowInState(LVNI_FOCUSED);
}

WideString FolderView::FileInRow(int row) const {
    const auto index = static_cast<size_t>(row); // No row is past them all.
    const bool isFile = index >= listing_.folderCount && index < listing_.names.size();
    return isFile ? listing_.names[index] : WideString();
}

WideString FolderView::SelectedFile() const {
    return FileInRow(RowInState(LVNI_SELECTED));
}

WideString FolderView::FocusedFile() const {
    return FileInRow(ActiveRow());
}

bool FolderView::OnCommand(UINT id) {
    if (id != kUpButton) return false;
    Show(ParentFolder(folder_));
    return true;
}

bool FolderView::OnNotify(const NMHDR& header) {
    if (header.idFrom != kList || header.code != LVN_ITEMACTIVATE) return false;
    const auto row = static_cast<size_t>(ActiveRow());
    if (row >= listing_.folderCount) return false;
    WideString folder(folder_);
    folder.Append(L"\\");
    folder.Append(listing_.names[row].CStr());
    Show(folder);
    return true;
}
