#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Lets the user type the title of a filter, with the input panel raised. `title` gives the present
// one and receives at most 255 characters; any text will do, none as well. False, with `title`
// untouched, when the user cancels or the language library lacks the dialog.
[[nodiscard]] bool AskFilterName(HWND owner, WideString& title);
