#pragma once

#include "pages/folder_list.h"
#include "pages/form_page.h"
#include "ui/search_bar_chooser.h"

// The Notes page: how notes are searched and previewed, the titles of groups, the types of files
// that count as notes and the folders that are scanned for them. The folders are not part of the
// store: they reach the registry when the page is closed.
class NotesPage final : public FormPage {
  public:
    NotesPage();

    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;

  private:
    void PlaceFolders(HWND window, const FormRow& row, RowLayout& layout);
    void AddFolder(HWND window);
    void RemoveFolder(HWND window);

    SearchBarChooser searchBar_{settingsStore.NotesActiveSearchBar,
                                settingsStore.NotesCustomSearchBarSelected};
    FolderList folders_;
    bool foldersAreKnown_ = false; // They could be read, and so may be replaced.
};
