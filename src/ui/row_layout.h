#pragma once

#include <windows.h>

#include "ui/controls.h"

// The row creators of the form pages: each makes the controls of one row at the cursor, or moves
// those that are there already, and moves the cursor to the next row. All measures are scaled here;
// ids are control ids, and texts are ready to show.
class RowLayout {
  public:
    // The first row starts `top` units below the window's upper edge.
    RowLayout(HWND page, HFONT font, int top);

    void AddCheck(UINT id, const wchar_t* text);
    // An empty drop-down list behind a right-aligned label.
    void AddCombo(UINT labelId, const wchar_t* label, UINT comboId);
    // The same with an edit field.
    void AddEditableCombo(UINT labelId, const wchar_t* label, UINT comboId);
    // A label above an edit field with a button to clear it and one to browse; four ids in a row.
    // Limits are in characters.
    void AddPath(UINT firstId, const wchar_t* label, int limit);
    // A label above an edit field in one of two columns.
    void AddText(int column, UINT labelId, const wchar_t* label, UINT editId, int limit);

    // A line of text as wide as the rows.
    void AddLabel(UINT id, const wchar_t* text);

    // The room from the cursor down to `bottom` units above the window's lower edge, as wide as the
    // rows: the place for a list. In pixels.
    [[nodiscard]] ControlPlace RoomAbove(int bottom) const;

    // Moves the cursor by units; negative is up.
    void Skip(int units);
    // The cursor, for rows that a page makes itself: pixels from the window's upper edge.
    [[nodiscard]] int Y() const { return y_; }
    void MoveTo(int y) { y_ = y; }

  private:
    void AddComboOfStyle(UINT labelId, const wchar_t* label, UINT comboId, DWORD style);
    void Put(const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
             const ControlPlace& place);
    void PutEdit(UINT id, int limit, const ControlPlace& place);

    HWND page_;
    HFONT font_;
    // In pixels; the first two are the page's.
    int width_;
    int height_;
    int y_;
};
