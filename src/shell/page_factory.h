#pragma once

#include <windows.h>

#include "pages/settings_page.h"

inline constexpr int kPageCount = 12;

// The text id of a page's caption in the page list, by row.
[[nodiscard]] UINT PageCaption(int row);

// Makes the page of a page-list row with its window; the caller owns the page. Null for a row of
// kPageCount or more and when there is no memory. A page whose window could not be made has a null
// `hwnd`.
[[nodiscard]] SettingsPage* CreatePage(HWND mainWindow, int row);
