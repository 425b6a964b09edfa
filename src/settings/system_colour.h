#pragma once

#include <windows.h>

// The device's colour scheme. An entry's own value, named by the entry's number in decimal, wins
// over the scheme's array "SHColor". The array's last entry is never used; kept on purpose.
[[nodiscard]] COLORREF SystemColour(int index, COLORREF fallback);
