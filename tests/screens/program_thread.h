// The whole program on a thread of the test's process: its own entry point and message loops, real
// key messages, and its windows at hand to look into.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class ProgramThread {
  public:
    // Starts it; the page list shows when this returns.
    ProgramThread();
    ProgramThread(const ProgramThread&) = delete;
    ProgramThread& operator=(const ProgramThread&) = delete;
    // Ends it without saving.
    ~ProgramThread();

    // Null when it has ended.
    [[nodiscard]] HWND Main() const;
    [[nodiscard]] HWND Active() const { return Info().hwndActive; }
    [[nodiscard]] HWND Focus() const { return Info().hwndFocus; }
    [[nodiscard]] bool HasOpenMenu() const { return (Info().flags & GUI_INMENUMODE) != 0; }

    // A key pressed where the focus is. It and what follows from it is handled, and the active
    // window painted, when this returns; so it is with the rest.
    void Press(WPARAM key);
    // A key of the device's keyboard, which the soft keys are.
    void PressSoftKey(WORD key);
    void Post(HWND window, UINT message, WPARAM wParam);
    void Settle();

  private:
    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK HelperProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] GUITHREADINFO Info() const;

    HANDLE settled_;
    HANDLE thread_ = nullptr;
    DWORD threadId_ = 0;
    HWND helper_ = nullptr; // A window of the program's thread that answers the test.
};

// The direct children of a window, from the first in the order of the keys.
[[nodiscard]] std::vector<HWND> ChildrenOf(HWND window);
[[nodiscard]] std::wstring ClassOf(HWND window);
[[nodiscard]] bool IsListView(HWND control);
[[nodiscard]] bool IsShown(HWND control);
// Whether a user can do something with a control: it shows, is enabled, and is no mere text.
[[nodiscard]] bool IsOperable(HWND control);
