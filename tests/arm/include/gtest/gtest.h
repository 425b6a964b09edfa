// The device's tests run over a C library that knows no system: what googletest would do on Windows
// is not for them. The names that say Windows are away while it is read.
#pragma once

#pragma push_macro("_WIN32")
#pragma push_macro("__MINGW32__")
#undef _WIN32
#undef __MINGW32__
#include_next <gtest/gtest.h>
#pragma pop_macro("__MINGW32__")
#pragma pop_macro("_WIN32")
