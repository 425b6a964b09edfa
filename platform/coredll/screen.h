#pragma once

#include <windows.h>

// The screen less the navigation bar.
[[nodiscard]] RECT WorkArea();
