#pragma once

#include <windows.h>

// Draws a picture of any size in the middle of a place in pixels: shrunk where it is larger, on a
// dense screen enlarged by the screen's density at most. Its white pixels are not drawn. Nothing is
// drawn for a null bitmap.
void DrawPicture(HDC dc, const RECT& place, HBITMAP picture);
