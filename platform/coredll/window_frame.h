// The top-level windows that have a place in the navigation bar.
#pragma once

#include "shell_frame.h"

// Whether the window has a place in the navigation bar.
[[nodiscard]] bool IsFramed(HWND window);

// The flags of a window, 0 for one without a place.
[[nodiscard]] DWORD FlagsOf(HWND window);
