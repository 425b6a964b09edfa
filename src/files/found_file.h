#pragma once

#include <windows.h>

// Whether what was found is a file, not a folder, whose name ends in the extension (with its dot),
// in capitals or not. A pattern with three letters finds longer extensions as well on some
// platforms.
[[nodiscard]] bool IsFileOf(const WIN32_FIND_DATA& found, const wchar_t* extension);
