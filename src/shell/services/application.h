#pragma once

#include <windows.h>

#include <aygshell.h>

// What the whole process shares. One thread uses it; the main window fills it at its creation and
// empties it at its destruction.
struct Application {
    HINSTANCE instance = nullptr;
    HMODULE languageLibrary = nullptr;
    HMODULE displayLibrary = nullptr;
    HFONT normalFont = nullptr;
    HFONT boldFont = nullptr;
    UINT settingsChangedMessage = 0;
};

extern Application application;
