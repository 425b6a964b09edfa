#pragma once

#include <windows.h>

// The list of schemes on the Colours page, and what its buttons do. The owner is the page's window;
// messages stand over it.

// Characters in a name that can be typed, and in a file's name that the list gives back.
inline constexpr int kMaxSchemeName = 255;

// Fills a list view of the page with the schemes' file names, in the font given.
void FillSchemeList(HWND list, HFONT font);

// Each gives 1 when it changed something, else 0.

// Saves the stored colours and fonts under the name in the box, which is emptied. An existing
// scheme is never written over.
int SaveScheme(HWND owner, HWND nameBox, HWND list);

// Loads the selected scheme in place of the stored colours and fonts, and all settings with it. The
// main window then closes the page.
int LoadScheme(HWND owner, HWND list);

int DeleteScheme(HWND owner, HWND list);
