#pragma once

#include <windows.h>

#include <aygshell.h>

struct IImagingFactory;

// What the whole process shares. One thread uses it; the main window fills it at its creation and
// empties it at its destruction.
struct Application {
    HINSTANCE instance = nullptr;
    HMODULE languageLibrary = nullptr;
    HMODULE displayLibrary = nullptr;
    HFONT normalFont = nullptr;
    HFONT boldFont = nullptr;
    IImagingFactory* imagingFactory = nullptr; // Null where the platform has none.
    // Registered before the entry point runs.
    UINT settingsChangedMessage = RegisterWindowMessage(L"TeskelOrvaneSettingsChanged");
};

extern Application application;
