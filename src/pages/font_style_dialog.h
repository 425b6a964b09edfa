#pragma once

#include <windows.h>

// Lets the user change a font's size, weight, slant and lines, and its colour, on a full-screen
// dialog over `owner`. Both are changed in place: the font when the user confirms, with a weight of
// 700 or 100; the colour as soon as it is chosen, so that it stays even when the user cancels. The
// owner may be gone when it returns.
void EditFontStyle(HWND owner, LOGFONT& font, COLORREF& colour);
