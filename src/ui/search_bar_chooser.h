#pragma once

#include <windows.h>

#include <vector>

#include "settings/setting.h"
#include "shell/services/wide_string.h"

// A drop-down list that offers no search bar, the built-in one, and one for each custom alphabet
// that can be read. What it was given and cannot offer stays until the user chooses something else:
// an alphabet whose file is gone has an entry all the same, any other choice shows no entry.
class SearchBarChooser {
  public:
    // The two settings that hold the choice; they must outlive the chooser.
    SearchBarChooser(DwordSetting& active, StringSetting& custom)
        : activeSetting_(active), customSetting_(custom) {}

    // Fills the empty list, which must outlive the chooser's use, and shows the stored choice.
    void Fill(HWND combo);
    void Save();

  private:
    void AddCustom(const WideString& fileName, const WideString& text);
    [[nodiscard]] int StoredEntry() const;

    DwordSetting& activeSetting_;
    StringSetting&
        customSetting_; // The custom alphabet, by its file's name; kept while not active.
    HWND combo_ = nullptr;
    int shown_ = -1;                  // The entry of the stored choice.
    std::vector<WideString> customs_; // The files' names, from the third entry on.
};
