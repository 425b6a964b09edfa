#pragma once

#include <windows.h>

// Working a window by keys, made for the directional pad: Tab, Up and Down go from control to
// control (a list keeps Up and Down until its first or last row), Left and Right change the entry
// of a closed drop-down list, the button of a button strip, the value of a track bar and the tab of
// a tab strip, and leave a list of rows for the controls that act on its selected row; all four
// move the mark of a colour surface until its edge, Ctrl+Tab changes the tab from anywhere, Enter
// presses buttons, toggles boxes and opens drop-down lists. Every ring of controls is closed,
// passes over what is hidden or disabled, and includes the tab strip.

// Handles the key message of a window that `root` contains; false when the message is to go on to
// its window. Part of every message loop.
[[nodiscard]] bool TranslateNavigationKey(HWND root, const MSG& message);

// Gives the focus to the first control that takes it, or else to the tab strip.
void FocusFirstControl(HWND root);
