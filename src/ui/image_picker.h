#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Lets the user choose a picture of the icon catalogue on a full-screen window: a list of the icons
// with their names, which is built first where that was not done yet. `path` gives the file of the
// present picture, empty for none, and receives that of the chosen one, empty for none. The present
// picture is marked; where the catalogue does not hold it, it stands before the others. False, with
// `path` untouched, when the user cancels.
[[nodiscard]] bool PickImage(HWND owner, WideString& path);
