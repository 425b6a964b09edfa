#pragma once

#include <windows.h>

// Shows the program's name, version and purpose over the owner until the user taps OK.
void ShowAbout(HWND owner);
