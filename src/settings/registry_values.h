#pragma once

#include <windows.h>

#include <cstdint>

#include "shell/services/wide_string.h"

// Registry values as this program keeps them. A null key reads as a key without values, and what
// is written to it is dropped. Failures of the registry are not reported.

// Opens a key, creating it where needed; null on failure. The caller closes.
[[nodiscard]] HKEY OpenOrCreateKey(HKEY root, const wchar_t* path);
// Opens a key that exists; null on failure. The caller closes.
[[nodiscard]] HKEY OpenExistingKey(HKEY root, const wchar_t* path);

// At most four bytes of a value, whatever its type, with 0 for those missing; the fallback when
// there is no value or it is longer.
[[nodiscard]] uint32_t ReadNumber(HKEY key, const wchar_t* name, uint32_t fallback);
// The characters of a value, whatever its type, up to the first NUL. The text stays as it is, and
// the answer is false, when there is no value.
bool ReadText(HKEY key, const wchar_t* name, WideString& text);

void SetNumberValue(HKEY key, const wchar_t* name, uint32_t value);
void SetTextValue(HKEY key, const wchar_t* name, const wchar_t* text);

// A value equal to its default is deleted.
void WriteNumber(HKEY key, const wchar_t* name, uint32_t value, uint32_t defaultValue);
void WriteText(HKEY key, const wchar_t* name, const wchar_t* text, const wchar_t* defaultText);
