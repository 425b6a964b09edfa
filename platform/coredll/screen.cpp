#include "screen.h"

#include "shell_frame.h"

namespace {

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

} // namespace

RECT WorkArea() {
    return {0, ShellScale(kBarUnits), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

extern "C" {

int WINAPI ShellScale(int units) {
    return MulDiv(units, Density(), kUnitsPerInch);
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
