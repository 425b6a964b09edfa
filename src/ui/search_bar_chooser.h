#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "shell/services/wide_string.h"

// Which search bar a view of the dashboard has, as the settings hold it.
struct SearchBarChoice {
    static constexpr uint32_t kNone = 0;
    static constexpr uint32_t kBuiltIn = 1;
    static constexpr uint32_t kCustom = 2;

    uint32_t active = kBuiltIn;
    WideString custom; // The custom alphabet of the bar, by its file's name; kept while not active.
};

// A drop-down list that offers no search bar, the built-in one, and one for each custom alphabet
// that can be read. What it was given and cannot offer stays until the user chooses something else:
// an alphabet whose file is gone has an entry all the same, any other choice shows no entry.
class SearchBarChooser {
  public:
    // Fills the empty list, which must outlive the chooser's use, and shows the stored choice.
    void Fill(HWND combo, const SearchBarChoice& stored);
    [[nodiscard]] SearchBarChoice Choice() const;

  private:
    void AddCustom(const WideString& fileName, const WideString& text);
    [[nodiscard]] int EntryOf(const SearchBarChoice& choice) const;

    HWND combo_ = nullptr;
    SearchBarChoice stored_;
    int shown_ = -1;                  // The entry of the stored choice.
    std::vector<WideString> customs_; // The files' names, from the third entry on.
};
