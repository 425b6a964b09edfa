#pragma once

#include <windows.h>

// The screen less the navigation bar.
[[nodiscard]] RECT WorkArea();

extern "C" int WINAPI CoreGetSystemMetrics(int index);
