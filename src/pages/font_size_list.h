#pragma once

#include <windows.h>

#include <cstdint>

// The drop-down list of font heights, in pixels.

// Offers 10 to 30 and selects `size`; any other selects none.
void FillFontSizes(HWND combo, uint32_t size);

// The size of the selected entry; 9, one below the first, where none is selected.
[[nodiscard]] uint32_t ChosenFontSize(HWND combo);
