#pragma once

#include <windows.h>

#include "ui/controls.h"

// The row creators of the form pages: each makes the controls of one row at the cursor and moves
// the cursor to the next row. All measures are scaled here; ids are control ids, and texts are
// ready to show.
class RowLayout {
  public:
    // The first row starts `top` units below the window's upper edge.
    RowLayout(HWND page, HFONT font, int top);

    HWND AddCheck(UINT id, const wchar_t* text, bool checked);
    // An empty drop-down list behind a right-aligned label.
    HWND AddCombo(UINT labelId, const wchar_t* label, UINT comboId);
    // The same with an edit field.
    HWND AddEditableCombo(UINT labelId, const wchar_t* label, UINT comboId);
    // A label above an edit field with a button to clear it and one to browse; four ids in a row.
    void AddPath(UINT firstId, const wchar_t* label, const wchar_t* path, int limit);

    // Moves the cursor by units; negative is up.
    void Skip(int units);

  private:
    HWND AddComboOfStyle(UINT labelId, const wchar_t* label, UINT comboId, DWORD style);

    HWND page_;
    HFONT font_;
    int width_; // Of the page, in pixels.
    int y_;     // In pixels.
};
