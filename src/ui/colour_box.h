#pragma once

#include <windows.h>

#include <cstdint>

// Draws the box that shows a colour setting: framed in black and filled with the colour, of which
// the lower three bytes count; "none" (0xFFFFFFFF) is white and says so in the font. The box is in
// pixels.
void DrawColourBox(HDC dc, RECT box, uint32_t colour, HFONT font);
