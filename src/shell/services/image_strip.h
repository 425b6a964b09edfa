#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// Loads a bitmap of the display library as an image list of images `width` pixels wide, in which
// the pixels of the mask colour are transparent. Empty without the library or the bitmap.
[[nodiscard]] UniqueImageList LoadImageStrip(UINT bitmap, int width, COLORREF mask);
