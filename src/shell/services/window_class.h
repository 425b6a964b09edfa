#pragma once

#include <windows.h>

// Registers a window class that redraws whenever its size changes, has no cursor and no menu, and
// paints its background with a stock brush (WHITE_BRUSH …). Gives RegisterClass's answer: 0 on
// failure, as when the class exists.
ATOM RegisterWindowClass(HINSTANCE instance, WNDPROC procedure, HICON icon,
                         const wchar_t* className, int stockBrush);
