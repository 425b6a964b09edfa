// Stands in for the dashboard: waits for the message that settings changed, and says so.
// Usage: settings_listener SECONDS. Exit code 0 when the message came, 1 when the time ran out.
#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace {
UINT settingsChanged;
bool wasTold;

LRESULT CALLBACK ListenerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == settingsChanged) {
        std::printf("TeskelOrvaneSettingsChanged wParam=%u lParam=%d\n", static_cast<UINT>(wParam),
                    static_cast<int>(lParam));
        std::fflush(stdout);
        wasTold = true;
        PostQuitMessage(0);
    }
    if (message == WM_TIMER) PostQuitMessage(1);
    return DefWindowProcW(window, message, wParam, lParam);
}
} // namespace

int main(int count, char** arguments) {
    const int seconds = count > 1 ? std::atoi(arguments[1]) : 60;
    settingsChanged = RegisterWindowMessageW(L"TeskelOrvaneSettingsChanged");
    WNDCLASSW listener{};
    listener.lpfnWndProc = ListenerProc;
    listener.lpszClassName = L"SettingsListener";
    RegisterClassW(&listener);
    // A broadcast reaches top-level windows only, not message-only ones; this one is never shown.
    HWND window = CreateWindowW(L"SettingsListener", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                nullptr, nullptr);
    SetTimer(window, 1, static_cast<UINT>(seconds) * 1000, nullptr);
    std::printf("ready\n");
    std::fflush(stdout);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return wasTold ? 0 : 1;
}
