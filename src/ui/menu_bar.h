#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// What the menu bars of windows and dialogs have in common.

// A bar without menus and buttons, which belongs to the window and goes with it. Null when the
// platform refuses.
HWND CreateEmptyMenuBar(HWND parent);

// A bar with a menu of the language's library. Null without the library, or when the platform
// refuses.
HWND CreateMenuBar(HWND parent, UINT menu);

// A bar with the buttons of a resource of the program. Null when the platform refuses.
HWND CreateButtonBar(HWND parent, UINT buttons);

// Gives a bar the images of OK and cancel. The bar shows them as long as the list is kept.
[[nodiscard]] UniqueImageList SetMenuBarImages(HWND bar);
inline constexpr int kCancelImage = 0;
inline constexpr int kOkImage = 1;
