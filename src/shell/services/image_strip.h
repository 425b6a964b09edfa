#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// Loads a row of square images of the display library as an image list of images `size` pixels wide
// and high, in which the pixels of the mask colour are transparent. The libraries have images for
// two densities: on a screen of another they are stretched. Empty without the library or the
// bitmap.
[[nodiscard]] UniqueImageList LoadImageStrip(UINT bitmap, int size, COLORREF mask);
