// What the shell library needs of the core library: measures and the navigation bar. Exported for
// it alone; programs never see it. One thread of a process makes all its top-level windows.
#pragma once

#include <windows.h>

constexpr int kUnitsPerInch = 96;

// Height, in units, of the navigation bar and of every menu bar.
constexpr int kBarUnits = 26;

enum FrameFlags : DWORD {
    kFramePlain = 0,
    kFrameOwnTitle = 1,     // The navigation bar shows this window's title, not its owner's.
    kFrameCancelButton = 2, // The bar's X sends IDCANCEL to this window.
};

extern "C" {
// Units of a 96-dpi screen in pixels of this screen, rounded.
int WINAPI ShellScale(int units);

// Gives a top-level window a place in the navigation bar, which shows it whenever it is active. A
// window that has a place keeps it and takes the flags.
void WINAPI ShellFrameWindow(HWND window, DWORD flags);

// Passes the activation that a bar got on to the topmost window that has a place in the navigation
// bar. For WM_ACTIVATE of windows that must never be active: where the active window goes away and
// has no owner, Wine gives the activation to the next window, whatever its style.
void WINAPI ShellPassActivationOn(WPARAM activation);

// Sends, later, what a tap on the "ok" button of the navigation bar sends at once. FALSE when the
// bar shows none, or when its window is disabled or not the active one.
BOOL WINAPI ShellPostOk();
}
