#pragma once

#include <windows.h>

// Draws a symbol, by the number of its bitmap in the display library, in the middle of a place
// given in pixels. Dimmed it is half transparent. Draws nothing without the library or the bitmap.
void DrawSymbol(HDC dc, UINT bitmap, const RECT& place, bool isDimmed = false);
