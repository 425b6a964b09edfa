#pragma once

#include "picture.h"

#include <wincodec.h>

// Decodes the first picture of a file of any kind that the system's codecs know. On failure (not a
// picture, cut off, too large) the picture is left as it was.
[[nodiscard]] HRESULT DecodePicture(IWICImagingFactory* codecs, IStream* stream, Picture& picture);
