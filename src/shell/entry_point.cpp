#include <windows.h>

#include <commctrl.h>

#include <cwchar>

#include "shell/about_window.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "ui/key_navigation.h"

namespace {
// The platform's way to bring a window and its pop-ups to the front.
HWND WithPopUps(HWND window) {
    return reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) | 1);
}

// A first copy that shows a page has the page's title: the class alone finds it then.
HWND FindFirstCopy() {
    HWND window = FindWindow(kMainWindowClass, kProgramTitle);
    return window ? window : FindWindow(kMainWindowClass, nullptr);
}

int RunMessageLoop(HWND window) {
    HACCEL accelerators = LoadAccelerators(application.instance, L"OV_OPTIONS");
    MSG message{};
    while (GetMessage(&message, nullptr, 0, 0)) {
        if (TranslateAccelerator(window, accelerators, &message)) continue;
        if (TranslateNavigationKey(ActiveRoot(window), message)) continue;
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return static_cast<int>(message.wParam);
}
} // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the header's are Hungarian.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand) {
    const bool startsWithAbout = wcscmp(commandLine, L"About") == 0;
    application.instance = instance;
    if (HWND firstCopy = FindFirstCopy()) {
        SetForegroundWindow(WithPopUps(firstCopy));
        return 0;
    }
    INITCOMMONCONTROLSEX controls{sizeof(controls),
                                  ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    HWND window = CreateMainWindow(instance);
    if (!window) return 0;
    MakeRoomForMenuBar(window);
    if (startsWithAbout) ShowAbout(window);
    ShowWindow(window, showCommand);
    UpdateWindow(window);
    return RunMessageLoop(window);
}
