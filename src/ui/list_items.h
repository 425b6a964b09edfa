#pragma once

#include <windows.h>

// Lists of one column: report-mode list views without a header.

// An empty list with rows `rowHeight` units high (a line of text alone is too low for a finger), of
// which one can be selected, not shown yet. Null when the platform refuses.
HWND CreateList(HWND parent, UINT id, HFONT font, int rowHeight);

// Makes the column as wide as the list has room, so that no scroll bar lies below it. To be called
// whenever the list's size or number of rows changed.
void FitColumn(HWND list);

// Empties a list view and gives it its one column anew.
void ResetList(HWND list);

// Gives a list view of another kind its one column, which has no title and no width yet.
void AddColumn(HWND list);

// Adds a row at the end or before another, with a number or a pointer as its data.
void AddRow(HWND list, const wchar_t* text, LPARAM data = 0);
void InsertRow(HWND list, int row, const wchar_t* text, LPARAM data = 0);

[[nodiscard]] int RowCount(HWND list);
[[nodiscard]] LPARAM RowData(HWND list, int row);

// Gives every row a box to tick, in the middle of its height.
void AddTickBoxes(HWND list);
[[nodiscard]] bool IsRowTicked(HWND list, int row);
void TickRow(HWND list, int row, bool ticked);
// For NM_RETURN: devices have no space bar, the one key by which a list view ticks a row itself.
void ToggleFocusedRow(HWND list);

// −1 for none.
[[nodiscard]] int SelectedRow(HWND list);
[[nodiscard]] int FocusedRow(HWND list);
// Selects and focuses a row and scrolls it into view.
void SelectRow(HWND list, int row);
// Leaves no row selected, focused or marked.
void ClearSelection(HWND list);

// Moves the selected row one place up or down, with its text (up to 1,023 characters), data, tick
// and selection; a row at the edge stays. Where none is selected a message box over `owner` says
// so. Either may be gone when it returns.
void MoveSelectedRow(HWND owner, HWND list, bool up);
