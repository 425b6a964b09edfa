#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Fetches a text (at most 1,023 characters) of a resource library; gives the number of characters.
// A missing text, or no library, gives the empty text and 0.
int LoadResString(HMODULE library, UINT id, WideString& text);

// The same from the language library, by value.
[[nodiscard]] WideString LanguageText(UINT id);
