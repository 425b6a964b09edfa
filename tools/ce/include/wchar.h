// The device's C library has a few calls more than the compiler's headers declare.
#pragma once

#include_next <wchar.h>

#ifdef __cplusplus
extern "C" {
#endif
int _wcsicmp(const wchar_t* left, const wchar_t* right);
int _wcsnicmp(const wchar_t* left, const wchar_t* right, size_t limit);
int _vsnwprintf(wchar_t* to, size_t limit, const wchar_t* format, __builtin_va_list arguments);
#ifdef __cplusplus
}
#endif
