#pragma once

#include <windows.h>

#include "shell/services/application.h"
#include "shell/services/scaling.h"

// A window in the place of the program's main one, on a screen of 240 by 320 units, with what the
// start of the program sets besides.
inline HWND CreateOwner() {
    application.instance = GetModuleHandle(nullptr);
    SetVgaMode(false); // As at start, by the screen's density.
    return CreateWindowEx(0, L"Static", L"Owner", WS_POPUP | WS_VISIBLE, 0, Scale(26), Scale(240),
                          Scale(268), nullptr, nullptr, application.instance, nullptr);
}
