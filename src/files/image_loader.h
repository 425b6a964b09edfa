#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// The colour of the clear pixels of a picture that LoadImageFile gives.
inline constexpr COLORREF kClearColour = RGB(255, 255, 255);

// Loads a picture file by its extension: ".png" through the platform's imaging service, ".tga" by
// the program's own reader, ".bmp" by the platform. Gives a device-independent bitmap; empty when
// there is no such file, it is no picture of its kind, or (png, tga) it has more than kMaxImageSide
// pixels a side.
//
// The alpha of a png or tga is laid over white, the ground of every page: what is clear is white,
// and nothing else is.
[[nodiscard]] UniqueBitmap LoadImageFile(const wchar_t* path);
