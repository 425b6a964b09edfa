#pragma once

#include <string>

// Makes a file that holds texts as a language library does: text `id` and nothing else. False when
// the file cannot be made. `path` is overwritten.
bool MakeStringLibrary(const std::wstring& path, unsigned id, const std::wstring& text);
