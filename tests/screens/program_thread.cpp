#include "tests/screens/program_thread.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cwchar>

#include "shell/main_window.h"
#include "tests/support/window_support.h"

namespace {
constexpr DWORD kLimit = 20'000; // Milliseconds; nothing takes a hundredth of it.
constexpr UINT kSettle = WM_APP;
constexpr UINT_PTR kIdleTimer = 1;
} // namespace

ProgramThread::ProgramThread() : settled_(CreateEvent(nullptr, FALSE, FALSE, nullptr)) {
    thread_ = CreateThread(nullptr, 0, Run, this, 0, &threadId_);
    EXPECT_EQ(WaitForSingleObject(settled_, kLimit), WAIT_OBJECT_0);
    Settle();
}

ProgramThread::~ProgramThread() {
    for (int step = 0; step < 10 && Main(); ++step) {
        if (Active() == Main())
            Post(Main(), WM_COMMAND, IDCANCEL);
        else
            Press(VK_RETURN); // Yes, to the question.
    }
    // A program that does not end would work on in what the next test holds.
    if (WaitForSingleObject(thread_, kLimit) != WAIT_OBJECT_0) ExitProcess(3);
    CloseHandle(thread_);
    CloseHandle(settled_);
}

DWORD WINAPI ProgramThread::Run(void* self) {
    auto& program = *static_cast<ProgramThread*>(self);
    program.helper_ =
        CreateWindowEx(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtr(program.helper_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    SetWindowLongPtr(program.helper_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(HelperProc));
    PostMessage(program.helper_, kSettle, 0, 0);
    wchar_t noArguments[] = L"";
    return static_cast<DWORD>(wWinMain(GetModuleHandle(nullptr), nullptr, noArguments, SW_SHOW));
}

LRESULT CALLBACK ProgramThread::HelperProc(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    const auto* self = reinterpret_cast<ProgramThread*>(GetWindowLongPtr(window, GWLP_USERDATA));
    switch (message) {
    case kSettle:
        // What was posted while the last messages were handled waits behind this one.
        if (wParam > 0) return PostMessage(window, kSettle, wParam - 1, lParam);
        RedrawWindow(GetActiveWindow(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        if (lParam) return static_cast<LRESULT>(SetTimer(window, kIdleTimer, 1, nullptr));
        SetEvent(self->settled_);
        return 0;
    case WM_TIMER: // Comes when nothing else waits, the keyboard's messages neither.
        KillTimer(window, kIdleTimer);
        SetEvent(self->settled_);
        return 0;
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}

HWND ProgramThread::Main() const {
    return FindWindow(kMainWindowClass, nullptr);
}

GUITHREADINFO ProgramThread::Info() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(threadId_, &info);
    return info;
}

void ProgramThread::Settle() {
    if (PostMessage(helper_, kSettle, 3, 0)) WaitForSingleObject(settled_, kLimit);
}

void ProgramThread::Press(WPARAM key) {
    HWND focus = Focus();
    PostMessage(focus, WM_KEYDOWN, key, 1);
    PostMessage(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Settle();
}

void ProgramThread::PressSoftKey(WORD key) {
    INPUT press[2]{};
    press[0].type = press[1].type = INPUT_KEYBOARD;
    press[0].ki.wVk = press[1].ki.wVk = key;
    press[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, press, sizeof(INPUT));
    if (PostMessage(helper_, kSettle, 3, 1)) WaitForSingleObject(settled_, kLimit);
    Settle();
}

void ProgramThread::Post(HWND window, UINT message, WPARAM wParam) {
    PostMessage(window, message, wParam, 0);
    Settle();
}

std::vector<HWND> ChildrenOf(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassName(window, name, 64);
    return name;
}

bool IsListView(HWND control) {
    return ClassOf(control) == WC_LISTVIEW;
}

bool IsShown(HWND control) {
    return (GetWindowLong(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

bool IsOperable(HWND control) {
    if (!IsShown(control) || !IsWindowEnabled(control) || ClassOf(control) == L"Static")
        return false;
    // An empty list offers nothing, and could not show that it has the focus.
    return !IsListView(control) || SendMessage(control, LVM_GETITEMCOUNT, 0, 0) > 0;
}
