#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>
#include <vector>

#include "shell/services/text_order.h"
#include "shell/services/wide_string.h"
#include "ui/controls.h"

// A list of folders, each with the icon that the device's shell has for it.
class FolderList {
  public:
    void Create(HWND page, UINT id, HFONT font);
    void Place(const ControlPlace& place) const;

    // Adds these folders to the new list, as far as Add takes them.
    void Fill(std::span<const WideString> paths);
    // Adds a folder after the others. False for one that is listed already, however its letters are
    // cased, and one for which the shell has no icon, as for a folder that is missing.
    bool Add(const WideString& path);
    // Removes the selected folder and leaves none selected; false when none is.
    bool RemoveSelected();
    // Empty when no folder is selected.
    [[nodiscard]] WideString SelectedPath() const;
    // In the order of the rows.
    [[nodiscard]] const std::vector<WideString>& Paths() const { return paths_; }

  private:
    bool Append(const WideString& path);
    void OnRowsChanged() const;
    void InsertRow(const WideString& path, HICON icon);

    HWND list_ = nullptr;
    HIMAGELIST icons_ = nullptr; // Belongs to the list.
    std::vector<WideString> paths_;
    TextSet known_; // The same ones, to be found again.
};
