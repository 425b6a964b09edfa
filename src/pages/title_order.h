#pragma once

#include <windows.h>

// The order of the calendar's titles, shown above an option list: six rows that two buttons move.
// The control ids are the caller's: the list, up, down.

inline constexpr UINT kTitleOrderIds = 3;

// Makes the controls, hidden, with the stored order; a stored number that is no title's shows the
// title of its place.
void CreateTitleOrder(HWND page, HFONT font, UINT firstId, int top);

// A click on one of the buttons moves the selected row; false for another id. A message box may
// come, in whose loop the page may go.
bool OnTitleOrderButton(HWND page, UINT firstId, UINT id);

// Stores the order shown.
void SaveTitleOrder(HWND page, UINT firstId);
