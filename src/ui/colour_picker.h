#pragma once

#include <windows.h>

// What PickColour gives when the user cancels; no colour of a setting.
inline constexpr COLORREF kPickCancelled = 0xFFFFFFFE;

// Lets the user choose a colour on a full-screen window over `owner`: from a palette or a field of
// hues, or by its values. Gives the colour, or 0xFFFFFFFF where the built-in colour was chosen with
// the "Default" button or was there at the start and stayed. Of another starting colour the lower
// three bytes count. The owner may be gone when it returns.
[[nodiscard]] COLORREF PickColour(HWND owner, COLORREF start);
