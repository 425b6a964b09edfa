// How windows and dialogs fill the screen, share it with the input panel and keep their focus.
#include <aygshell.h>

#include "../coredll/shell_frame.h"
#include "input_panel.h"
#include "menu_bar.h"

namespace {

void MoveTo(HWND window, const RECT& area) {
    SetWindowPos(window, nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// The navigation bar is a full-screen dialog's caption.
void TakeFrameAway(HWND dialog) {
    constexpr LONG kFrame = WS_CAPTION | WS_THICKFRAME | WS_SYSMENU | DS_MODALFRAME;
    constexpr LONG kEdges = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE;
    SetWindowLongW(dialog, GWL_STYLE, GetWindowLongW(dialog, GWL_STYLE) & ~kFrame);
    SetWindowLongW(dialog, GWL_EXSTYLE, GetWindowLongW(dialog, GWL_EXSTYLE) & ~kEdges);
}

void FitDialog(HWND dialog, DWORD flags) {
    if (flags & SHIDIF_SIZEDLG) {
        MoveTo(dialog, AreaAbovePanel(true));
        return;
    }
    RECT area;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    if (!(flags & SHIDIF_FULLSCREENNOMENUBAR)) area.bottom -= ShellScale(kBarUnits);
    MoveTo(dialog, area);
}

void CreateEmptyBar(HWND dialog) {
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = dialog;
    info.dwFlags = SHCMBF_EMPTYBAR;
    SHCreateMenuBar(&info);
}

// A window that fills the work area in width and starts at its top.
bool FillsScreen(HWND window) {
    RECT place;
    RECT area;
    GetWindowRect(window, &place);
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return place.left == area.left && place.top == area.top && place.right == area.right;
}

void OnActivated(HWND window, SHACTIVATEINFO& info) {
    info.fActive = 1;
    if (info.fSipOnDeactivation != IsInputPanelRaised())
        SipShowIM(info.fSipOnDeactivation ? SIPF_ON : SIPF_OFF);
    if (IsChild(window, info.hwndLastFocus))
        SetFocus(info.hwndLastFocus);
    else if (!IsChild(window, GetFocus()))
        SetFocus(window);
}

void OnDeactivated(HWND window, SHACTIVATEINFO& info) {
    info.fActive = 0;
    info.fSipOnDeactivation = IsInputPanelRaised();
    HWND focus = GetFocus();
    if (IsChild(window, focus)) info.hwndLastFocus = focus;
}

bool IsValid(const SHACTIVATEINFO* info) {
    if (info && info->cbSize == sizeof(*info)) return true;
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

} // namespace

extern "C" {

BOOL WINAPI SHInitDialog(SHINITDLGINFO* info) {
    if (!info || !(info->dwMask & SHIDIM_FLAGS) || !IsWindow(info->hDlg)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    HWND dialog = info->hDlg;
    const DWORD flags = info->dwFlags;
    if (flags & SHIDIF_SIPDOWN) SipShowIM(SIPF_OFF);
    if (flags & (SHIDIF_SIZEDLG | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_FULLSCREENNOMENUBAR)) {
        TakeFrameAway(dialog);
        FitDialog(dialog, flags);
    }
    if (flags & SHIDIF_DONEBUTTON)
        SetWindowLongW(dialog, GWL_EXSTYLE,
                       GetWindowLongW(dialog, GWL_EXSTYLE) | static_cast<LONG>(WS_EX_CAPTIONOKBTN));
    const DWORD cancel = flags & SHIDIF_CANCELBUTTON ? kFrameCancelButton : kFramePlain;
    ShellFrameWindow(dialog, kFrameOwnTitle | cancel);
    if (flags & SHIDIF_EMPTYMENU) CreateEmptyBar(dialog);
    return TRUE;
}

BOOL WINAPI SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM /*lParam*/, SHACTIVATEINFO* info,
                               DWORD /*flags*/) {
    if (!IsValid(info)) return FALSE;
    if (LOWORD(wParam) == WA_INACTIVE)
        OnDeactivated(window, *info);
    else
        OnActivated(window, *info);
    return TRUE;
}

BOOL WINAPI SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM /*lParam*/,
                                    SHACTIVATEINFO* info) {
    if (!IsValid(info) || wParam != SPI_SETSIPINFO || !FillsScreen(window)) return FALSE;
    info->fSipUp = IsInputPanelRaised();
    MoveTo(window, AreaAbovePanel(MenuBar::Of(window) != nullptr));
    // Programs fit their controls without drawing them, as this repaints the whole.
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return TRUE;
}

} // extern "C"
