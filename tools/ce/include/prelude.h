// Read before everything else: lets the toolchain's Windows headers, which expect a compiler for
// Windows, live beside the C and C++ headers of a compiler that knows no system.
#pragma once

// First the C library's own types, so that they are not defined again.
#include <stddef.h>
#include <stdlib.h>
#include <string.h>
#include <sys/types.h>
#include <wchar.h>
#include <wctype.h>

#define _TIME_T_DEFINED
#define _TIME32_T_DEFINED
#define _WCTYPE_T_DEFINED
#define _WINT_T
typedef long __time32_t;

#define _WIN32 1
#define WIN32 1
#define UNDER_CE 0x420
#define __MINGW32__ 1
#define _M_ARM 5

// There is one calling convention, and nothing is imported by a keyword.
#define __stdcall
#define __cdecl
#undef __fastcall
#define __fastcall
#define __declspec(what)
#define __int64 long long

// These inline functions for unaligned texts are not written for this compiler.
#define __STRALIGN_H_
#define _STRALIGN_H_
