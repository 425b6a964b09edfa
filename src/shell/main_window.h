#pragma once

#include <windows.h>

inline constexpr wchar_t kMainWindowClass[] = L"OV_OPTIONS";
inline constexpr wchar_t kProgramTitle[] = L"OV Options";

// Registers the class and creates the program's one main window, with the settings loaded and the
// page list filled; null on failure.
[[nodiscard]] HWND CreateMainWindow(HINSTANCE instance);

// Takes the menu bar's height off the main window, which is created over the whole work area.
void MakeRoomForMenuBar(HWND mainWindow);

// The window that works the keys now: the open page's, or the main window.
[[nodiscard]] HWND ActiveRoot(HWND mainWindow);
