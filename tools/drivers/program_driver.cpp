#include "tools/drivers/program_driver.h"

#include <commctrl.h>

namespace {
constexpr int kWaitMilliseconds = 10'000;
constexpr int kPollMilliseconds = 20;
// Nobody taps or presses two things at once; menus and activation need their moment.
constexpr int kHandMilliseconds = 100;

int Dpi() {
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

struct FindContext {
    DWORD process;
    const wchar_t* className;
    HWND found;
};

BOOL CALLBACK MatchWindow(HWND window, LPARAM lParam) {
    auto* context = reinterpret_cast<FindContext*>(lParam);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t name[64] = L"";
    GetClassName(window, name, 64);
    if (process != context->process || lstrcmp(name, context->className) != 0 ||
        !IsWindowVisible(window))
        return TRUE;
    context->found = window;
    return FALSE;
}

// What runs the program, where the device's tool says that something has to: a word of the command
// line and a blank.
std::wstring Runner() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetEnvironmentVariable(L"OVDEVICE_RUNNER", path, MAX_PATH);
    return length > 0 && length < MAX_PATH ? std::wstring(path) + L" " : L"";
}

DashboardListener* currentListener;
} // namespace

bool IsEmulated() {
    return !Runner().empty();
}

bool WaitUntil(const std::function<bool()>& condition) {
    for (int waited = 0; waited < kWaitMilliseconds; waited += kPollMilliseconds) {
        if (condition()) return true;
        Sleep(kPollMilliseconds);
    }
    return condition();
}

bool GoesAway(HWND window) {
    return WaitUntil([window] { return !IsWindow(window); });
}

bool Answer(HWND window, int button) {
    PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    return GoesAway(window);
}

void TapAt(int x, int y) {
    // Straight to the window that stands there. An injected click would land where the screen's own
    // pointer is whenever a window that comes or goes makes the screen report it.
    POINT point{x, y};
    HWND window = WindowFromPoint(point);
    ScreenToClient(window, &point);
    const LPARAM position = MAKELPARAM(point.x, point.y);
    Sleep(kHandMilliseconds);
    PostMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, position);
    PostMessage(window, WM_LBUTTONUP, 0, position);
}

void TapOn(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    TapAt((place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void TapOk() {
    constexpr int kBarHalf = 13;
    TapAt(GetSystemMetrics(SM_CXSCREEN) - kBarHalf * Dpi() / 96, kBarHalf * Dpi() / 96);
}

void TapFirstColour(HWND page) {
    constexpr int kColourItems = 1201;
    RECT place{};
    GetWindowRect(GetDlgItem(page, kColourItems), &place);
    TapAt((place.left + place.right) / 2, place.top + (place.bottom - place.top) / 8);
}

void Press(WORD key) {
    INPUT press[2]{};
    press[0].type = press[1].type = INPUT_KEYBOARD;
    press[0].ki.wVk = press[1].ki.wVk = key;
    press[1].ki.dwFlags = KEYEVENTF_KEYUP;
    Sleep(kHandMilliseconds);
    SendInput(2, press, sizeof(INPUT));
}

Program::Program(const std::wstring& arguments) {
    std::wstring line = Runner() + L"\"" + kInstallFolder + L"\\OVOptions.exe\"";
    if (!arguments.empty()) line += L" " + arguments;
    STARTUPINFO startup{};
    startup.cb = sizeof(startup);
    CreateProcess(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                  &process_);
}

Program::~Program() {
    if (IsRunning()) TerminateProcess(process_.hProcess, 9);
    WaitForSingleObject(process_.hProcess, kWaitMilliseconds);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND Program::Find(const wchar_t* className) const {
    FindContext context{process_.dwProcessId, className, nullptr};
    EnumWindows(MatchWindow, reinterpret_cast<LPARAM>(&context));
    return context.found;
}

HWND Program::WaitForWindow(const wchar_t* className) const {
    HWND window = nullptr;
    WaitUntil([&] { return (window = Find(className)) != nullptr || !IsRunning(); });
    return window;
}

HWND Program::WaitForPageList() const {
    HWND window = WaitForWindow(L"OV_OPTIONS");
    WaitUntil([window] {
        HWND list = FindWindowEx(window, nullptr, WC_LISTVIEW, nullptr);
        return list && SendMessage(list, LVM_GETITEMCOUNT, 0, 0) == kPageCount;
    });
    WaitForInputIdle(process_.hProcess, kWaitMilliseconds);
    return window;
}

HWND Program::WaitForMessageBox() const {
    return WaitForWindow(L"#32770");
}

HWND Program::OpenPage(int row) const {
    HWND window = Find(L"OV_OPTIONS");
    HWND list = FindWindowEx(window, nullptr, WC_LISTVIEW, nullptr);
    const auto spacing = static_cast<DWORD>(SendMessage(list, LVM_GETITEMSPACING, FALSE, 0));
    const int width = LOWORD(spacing);
    const int height = HIWORD(spacing);
    if (width == 0) return nullptr;
    RECT place{};
    GetWindowRect(list, &place);
    const int columns = (place.right - place.left) / width;
    TapAt(place.left + row % columns * width + width / 2,
          place.top + row / columns * height + height / 3);
    HWND page = WaitForWindow(kPages[row].className);
    // A window shows before its controls are made; the program answers when it is done.
    SendMessage(window, WM_NULL, 0, 0);
    return page;
}

HWND Program::OpenColourPicker(HWND page) const {
    constexpr int kEditColour = 1200;
    HWND button = GetDlgItem(page, kEditColour);
    WaitUntil([button] { return IsWindowEnabled(button) != FALSE; });
    TapOn(button);
    return WaitForWindow(L"ColourPickerWin");
}

bool Program::IsRunning() const {
    return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Program::WaitForExit() const {
    WaitForSingleObject(process_.hProcess, kWaitMilliseconds);
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

DashboardListener::DashboardListener()
    : message_(RegisterWindowMessage(L"TeskelOrvaneSettingsChanged")) {
    WNDCLASS listener{};
    listener.lpfnWndProc = WindowProc;
    listener.lpszClassName = L"DashboardListener";
    RegisterClass(&listener);
    currentListener = this;
    // Broadcasts reach top-level windows, shown or not.
    window_ = CreateWindowEx(0, L"DashboardListener", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                             nullptr, nullptr);
}

DashboardListener::~DashboardListener() {
    DestroyWindow(window_);
    currentListener = nullptr;
}

void DashboardListener::Listen() {
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessage(&message);
}

LRESULT CALLBACK DashboardListener::WindowProc(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam) {
    if (currentListener && message == currentListener->message_ && wParam == 0 && lParam == 0) {
        ++currentListener->timesTold;
        if (currentListener->onTold) currentListener->onTold();
    }
    return DefWindowProc(window, message, wParam, lParam);
}

RegistryTree SettingsTree() {
    HKEY key = nullptr;
    if (RegOpenKeyEx(HKEY_CURRENT_USER, kSettingsKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return {};
    RegistryTree tree = GetTree(key);
    RegCloseKey(key);
    return tree;
}

// The device deletes a key with everything below it.
void DeleteSettings() {
    RegDeleteKey(HKEY_CURRENT_USER, kSettingsKey);
}

std::optional<uint32_t> StoredNumber(const wchar_t* name) {
    return GetNumber(HKEY_CURRENT_USER, kSettingsKey, name);
}
