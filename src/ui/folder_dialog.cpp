#include "ui/folder_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <cwchar>
#include <vector>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/modal_window.h"

namespace {
constexpr UINT kPathText = 100;
constexpr UINT kUpButton = 101;
constexpr UINT kFolderList = 102;
constexpr UINT kEmptyText = 103;
constexpr int kMargin = 6;
constexpr int kButtonWidth = 84;
constexpr int kRowHeight = 20;
constexpr int kListTop = 2 * kMargin + kRowHeight;

bool IsDots(const wchar_t* name) {
    return wcscmp(name, L".") == 0 || wcscmp(name, L"..") == 0;
}

// The names of the folders directly below one, in the order people look for them.
std::vector<WideString> SubFoldersOf(const WideString& folder) {
    std::vector<WideString> names;
    WideString pattern(folder);
    pattern.Append(L"\\*");
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(pattern.CStr(), &found));
    for (bool more = static_cast<bool>(find); more; more = FindNextFile(find.Get(), &found)) {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || IsDots(found.cFileName))
            continue;
        names.emplace_back(found.cFileName);
    }
    std::sort(names.begin(), names.end(), [](const WideString& left, const WideString& right) {
        return lstrcmpi(left.CStr(), right.CStr()) < 0;
    });
    return names;
}

bool IsFolder(const wchar_t* path) {
    const DWORD attributes = GetFileAttributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

class FolderDialog final : public ModalWindow {
  public:
    explicit FolderDialog(const WideString& start);
    [[nodiscard]] WideString Folder() const;

  protected:
    void CreateControls(HWND window) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void OnNotify(HWND window, const NMHDR& header) override;
    void Layout(HWND window) override;

  private:
    void Fill(HWND window) const;
    void Enter(HWND window);
    void GoUp(HWND window);

    WideString folder_; // Without a trailing backslash: the root is empty.
};

FolderDialog::FolderDialog(const WideString& start) {
    if (start.IsEmpty() || !IsFolder(start.CStr())) return;
    const size_t length = start.Length();
    const bool endsWithBackslash = start.CStr()[length - 1] == L'\\';
    folder_.Assign(start.CStr(), endsWithBackslash ? length - 1 : length);
}

WideString FolderDialog::Folder() const {
    return folder_.IsEmpty() ? WideString(L"\\") : folder_;
}

void FolderDialog::CreateControls(HWND window) {
    HFONT font = application.normalFont;
    CreateControl(window, L"STATIC", L"", SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE, kPathText, {},
                  font);
    HWND list = CreateControl(window, WC_LISTVIEW, L"",
                              WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                                  LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS,
                              kFolderList, {}, font);
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
                LVS_EX_FULLROWSELECT | LVS_EX_ONECLICKACTIVATE);
    LVCOLUMN column{};
    column.mask = LVCF_WIDTH;
    SendMessage(list, LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
    CreateControl(window, L"STATIC", LanguageText(IDS_FOLDER_EMPTY).CStr(), SS_CENTER, kEmptyText,
                  {}, font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_FOLDER_UP).CStr(), WS_TABSTOP, kUpButton, {},
                  font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_CANCEL).CStr(), WS_TABSTOP, IDCANCEL, {},
                  font);
    Fill(window);
}

void FolderDialog::Layout(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const int margin = Scale(kMargin);
    const int rowHeight = ScaleY(kRowHeight);
    const int button = Scale(kButtonWidth);
    const int width = client.right - 2 * margin;
    const int listTop = ScaleY(kListTop);
    const int buttonTop = client.bottom - ScaleY(kMargin) - rowHeight;
    const auto place = [window](UINT id, const ControlPlace& to) {
        MoveWindow(GetDlgItem(window, static_cast<int>(id)), to.x, to.y, to.width, to.height, TRUE);
    };
    place(kPathText, {margin, ScaleY(kMargin), width, rowHeight});
    place(kFolderList, {margin, listTop, width, buttonTop - ScaleY(kMargin) - listTop});
    place(kEmptyText, {2 * margin, listTop + rowHeight, width - 2 * margin, rowHeight});
    place(kUpButton, {margin, buttonTop, button, rowHeight});
    place(IDCANCEL, {client.right - margin - button, buttonTop, button, rowHeight});
    HWND list = GetDlgItem(window, kFolderList);
    SendMessage(list, LVM_SETCOLUMNWIDTH, 0,
                width - GetSystemMetrics(SM_CXVSCROLL) - Scale(kMargin));
}

void FolderDialog::Fill(HWND window) const {
    SetDlgItemText(window, kPathText, Folder().CStr());
    const std::vector<WideString> names = SubFoldersOf(folder_);
    HWND list = GetDlgItem(window, kFolderList);
    SendMessage(list, WM_SETREDRAW, FALSE, 0);
    SendMessage(list, LVM_DELETEALLITEMS, 0, 0);
    LVITEM item{};
    item.mask = LVIF_TEXT;
    for (const WideString& name : names) {
        item.pszText = const_cast<wchar_t*>(name.CStr());
        SendMessage(list, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
        ++item.iItem;
    }
    LVITEM first{};
    first.state = first.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessage(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));
    SendMessage(list, WM_SETREDRAW, TRUE, 0);
    ShowWindow(GetDlgItem(window, kEmptyText), names.empty() ? SW_SHOW : SW_HIDE);
    HWND up = GetDlgItem(window, kUpButton);
    EnableWindow(up, !folder_.IsEmpty());
    // An empty list cannot show that it has the focus.
    SetFocus(names.empty() && !folder_.IsEmpty() ? up : list);
}

void FolderDialog::Enter(HWND window) {
    HWND list = GetDlgItem(window, kFolderList);
    const LRESULT row = SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (row < 0) return;
    wchar_t name[MAX_PATH] = L"";
    LVITEM item{};
    item.pszText = name;
    item.cchTextMax = MAX_PATH;
    SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    folder_.Append(L"\\");
    folder_.Append(name);
    Fill(window);
}

void FolderDialog::GoUp(HWND window) {
    size_t end = folder_.Length();
    while (end > 0 && folder_.CStr()[end - 1] != L'\\')
        --end;
    folder_.Assign(folder_.CStr(), end > 0 ? end - 1 : 0);
    Fill(window);
}

void FolderDialog::OnCommand(HWND window, UINT id, UINT) {
    if (id == IDOK || id == IDCANCEL) Finish(static_cast<int>(id));
    if (id == kUpButton) GoUp(window);
}

void FolderDialog::OnNotify(HWND window, const NMHDR& header) {
    if (header.idFrom == kFolderList && header.code == LVN_ITEMACTIVATE) Enter(window);
}
} // namespace

bool SelectFolder(HWND owner, const wchar_t* title, WideString& path) {
    FolderDialog dialog(path);
    if (dialog.Run(owner, L"SelectFolderWin", title) != IDOK) return false;
    path = dialog.Folder();
    return true;
}
