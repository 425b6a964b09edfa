#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "shell/services/wide_string.h"
#include "ui/controls.h"

// The alphabets of the contacts' search bar, each with a tick for "active": the built-in ones, the
// custom ones, and those that are active although their file is gone. A file that cannot be read is
// listed as such, and cannot be made active; none can while it is unknown which ones are.
class AlphabetList {
  public:
    void Create(HWND page, UINT id, HFONT font);
    void Place(const ControlPlace& place) const;
    // Fills the new list from the store.
    void Fill();
    // Stores what the user changed; flags of languages unknown here stay.
    void Save() const;
    // A notification of the list.
    void OnNotify(const NMHDR& header) const;

  private:
    struct Row {
        uint32_t language = 0; // The flag of a built-in alphabet; 0 for a custom one.
        WideString fileName;   // Of a custom one.
        bool isUsable = true;
        bool wasActive = false;
    };

    void AddLanguages();
    void AddCustoms();
    void AddRow(const Row& row, const WideString& text);
    // Takes the tick from a row that cannot be active.
    void RefuseTick(int row) const;

    HWND list_ = nullptr;
    std::vector<Row> rows_;
};
