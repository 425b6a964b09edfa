#include "screen.h"

#include <stand_in.h>

#include "shell_frame.h"

namespace {

SIZE playedScreen = {}; // Empty: the PC's own.

// The density cannot change while a process lives.
int Density() {
    static int density = 0;
    if (density == 0) {
        HDC screen = GetDC(nullptr);
        density = GetDeviceCaps(screen, LOGPIXELSY);
        ReleaseDC(nullptr, screen);
    }
    return density;
}

// The bars and windows of this process find their new places, as when the screen is turned.
BOOL CALLBACK TellOfScreen(HWND window, LPARAM size) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) PostMessageW(window, WM_DISPLAYCHANGE, 16, size);
    return TRUE;
}

} // namespace

RECT WorkArea() {
    return {0, ShellScale(kBarUnits), CoreGetSystemMetrics(SM_CXSCREEN),
            CoreGetSystemMetrics(SM_CYSCREEN)};
}

extern "C" {

int WINAPI ShellScale(int units) {
    return MulDiv(units, Density(), kUnitsPerInch);
}

int WINAPI CoreGetSystemMetrics(int index) {
    if (index == SM_CXSCREEN && playedScreen.cx > 0) return playedScreen.cx;
    if (index == SM_CYSCREEN && playedScreen.cy > 0) return playedScreen.cy;
    return GetSystemMetrics(index);
}

void WINAPI StandInSetScreen(int width, int height) {
    playedScreen = {width, height};
    EnumWindows(TellOfScreen,
                MAKELPARAM(CoreGetSystemMetrics(SM_CXSCREEN), CoreGetSystemMetrics(SM_CYSCREEN)));
}

BOOL WINAPI CoreSystemParametersInfoW(UINT action, UINT number, PVOID data, UINT change) {
    if (action != SPI_GETWORKAREA) return SystemParametersInfoW(action, number, data, change);
    if (!data) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    *static_cast<RECT*>(data) = WorkArea();
    return TRUE;
}

} // extern "C"
