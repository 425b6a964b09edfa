#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Lets the user choose a folder of the device on a full-screen window: a list of the folders below
// the one shown, entered by a tap or Enter; ok takes the folder shown. `path` gives the folder to
// start from (empty or missing: the root) and receives the choice, without a trailing backslash
// but for the root. False, with `path` untouched, when the user cancels.
[[nodiscard]] bool SelectFolder(HWND owner, const wchar_t* title, WideString& path);
