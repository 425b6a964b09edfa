#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "shell/page_factory.h"
#include "tests/support/registry_fixture.h"

// Drives the installed program from outside, on the same device: as a person does, with taps and
// keys, and as the dashboard does, listening for its message.

inline constexpr wchar_t kSettingsKey[] = L"Software\\Teskel\\Orvane";
inline constexpr wchar_t kInstallFolder[] = L"\\Program Files\\Teskel\\Orvane";

// The pages in the order of their list.
struct DrivenPage {
    const char* name;
    const wchar_t* className;
};
inline constexpr DrivenPage kPages[kPageCount] = {
    {"general", L"GeneralSettingsWin"},
    {"calendar", L"CalendarSettingsWin"},
    {"tasks", L"TasksSettingsWin"},
    {"notes", L"NotesSettingsWin"},
    {"contacts", L"ContactSettingsWin"},
    {"messages", L"MessagesSettingsWin"},
    {"special-events", L"SEventsSettingsWin"},
    {"fonts", L"FontSettingsWin"},
    {"colours", L"ColorSettingsWin"},
    {"pim", L"PIMSettingsWin"},
    {"tabs", L"TabsSettingsWin"},
    {"category", L"CategorySettingsWin"},
};
inline constexpr int kColoursRow = 8;

// Whether the program runs on an emulated processor, which takes its time.
bool IsEmulated();

// Looks until the condition holds, at most ten seconds.
bool WaitUntil(const std::function<bool()>& condition);
// Waits so long for a window to be gone.
bool GoesAway(HWND window);
// Presses a button of a dialog or message box, whose window then goes.
bool Answer(HWND window, int button);

// A tap on the screen, and on the middle of a window; a key pressed and released.
void TapAt(int x, int y);
void TapOn(HWND window);
// The round ok button of the navigation bar.
void TapOk();
// The first colour of the Colours page.
void TapFirstColour(HWND page);
void Press(WORD key);

// The program, run once; a copy that is still there at the end is ended.
class Program {
  public:
    // Starts it with a command line (without the program's own name).
    explicit Program(const std::wstring& arguments = L"");
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    // A visible window of the program by its class; null when it does not come.
    HWND WaitForWindow(const wchar_t* className) const;
    // The main window with its page list filled.
    HWND WaitForPageList() const;
    // The message box that shows; null when none comes.
    HWND WaitForMessageBox() const;
    // Taps a page in the list and gives its window.
    HWND OpenPage(int row) const;
    // The picker for the colour that is selected on the Colours page.
    HWND OpenColourPicker(HWND page) const;

    bool IsRunning() const;
    // The exit code; STILL_ACTIVE when it does not end within ten seconds.
    DWORD WaitForExit() const;

  private:
    HWND Find(const wchar_t* className) const;

    PROCESS_INFORMATION process_{};
};

// Receives the dashboard's message while it lives, in a window of this process.
class DashboardListener {
  public:
    DashboardListener();
    DashboardListener(const DashboardListener&) = delete;
    DashboardListener& operator=(const DashboardListener&) = delete;
    ~DashboardListener();

    // Handles what has arrived.
    void Listen();

    int timesTold = 0;
    // Called when the message arrives.
    std::function<void()> onTold;

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_;
    UINT message_;
};

// The settings of the device as they stand in its registry.
RegistryTree SettingsTree();
void DeleteSettings();
std::optional<uint32_t> StoredNumber(const wchar_t* name);
