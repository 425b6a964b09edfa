#pragma once

#include <windows.h>

// The strip of tabs along the bottom of a window.

// A strip without tabs in its place; null when the platform refuses.
HWND CreateTabStrip(HWND parent, HFONT font);

// Puts the strip where it belongs after its window's size changed.
void PlaceTabStrip(HWND strip);

// Units that the strip takes from the lower edge of its window.
inline constexpr int kTabStripHeight = 22;

void InsertTab(HWND strip, int index, const wchar_t* title);

// The selected tab, −1 for none.
[[nodiscard]] int SelectedTab(HWND strip);
