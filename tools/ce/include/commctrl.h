// The device's common controls take one form of each text message, the wide one, under the number
// that elsewhere means the narrow one.
#pragma once

#include_next <commctrl.h>

#undef TB_ADDBUTTONS
#define TB_ADDBUTTONS (WM_USER + 20)
