#pragma once

#include <windows.h>

#include "shell/services/handles.h"
#include "shell/services/wide_string.h"
#include "ui/folder_listing.h"

// What the dialogs of files and folders share: the path of the folder shown, a list of its folders,
// entered by a tap or Enter, and of its files of one kind, and the buttons Up and Cancel.
class FolderView {
  public:
    static constexpr UINT kPathText = 100;
    static constexpr UINT kUpButton = 101;
    static constexpr UINT kList = 102;
    static constexpr UINT kEmptyText = 103;
    // The look of the dialogs, in units: the first row, with the path, stands one margin below the
    // window's upper edge.
    static constexpr int kMargin = 6;
    static constexpr int kRowHeight = 20;

    // Shows `start`, or the root when that is empty or missing. Files are listed that have the
    // extension (without its dot; it must outlive the view); null lists none.
    FolderView(const WideString& start, const wchar_t* extension);

    // Makes the controls on a window, where they follow those that exist; once.
    void Create(HWND window);
    // Places them in the window's client area, with the list from `listTop` (pixels) down.
    void Layout(int listTop) const;
    // Gives the focus to the list, or to the Up button when there is nothing to choose.
    void TakeFocus() const;

    // Both give whether the message was the view's own.
    bool OnCommand(UINT id);
    bool OnNotify(const NMHDR& header);

    // The folder shown, without a trailing backslash: the root is empty.
    [[nodiscard]] const WideString& Folder() const { return folder_; }
    // The name of the selected file; empty while none is selected.
    [[nodiscard]] WideString SelectedFile() const;
    // The file that Enter means: the selected one or else the one with the focus.
    [[nodiscard]] WideString FocusedFile() const;

  private:
    [[nodiscard]] HWND Item(UINT id) const { return GetDlgItem(window_, static_cast<int>(id)); }
    [[nodiscard]] int RowInState(UINT state) const;
    [[nodiscard]] int ActiveRow() const;
    [[nodiscard]] WideString FileInRow(int row) const;
    void CreateList();
    void ShowPath() const;
    void Show(const WideString& folder);
    void Fill();

    HWND window_ = nullptr;
    const wchar_t* extension_;
    WideString folder_;
    FolderListing listing_;
    UniqueImageList images_;
};
