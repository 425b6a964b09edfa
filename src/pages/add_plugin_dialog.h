#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Lets the user choose the Today plug-in that becomes a tab of the dashboard. One that is on the
// Today screen is taken off it, after a question, and the Today screen is told. `name` receives the
// name of the plug-in's Today item; false, with `name` untouched, when the user cancels.
[[nodiscard]] bool ChoosePluginToAdd(HWND owner, WideString& name);
