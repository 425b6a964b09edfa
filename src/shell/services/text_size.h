#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Texts measured in pixels, in the font of a device context.

// Of a text on one line.
[[nodiscard]] int TextWidth(HDC dc, const WideString& text);
[[nodiscard]] int LineHeight(HDC dc);
