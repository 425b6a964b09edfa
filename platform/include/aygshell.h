// The Pocket PC shell library, as far as the program uses it.
#pragma once

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags; // SHCMBF_*
    UINT nToolBarId;
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB; // Out: the bar.
    COLORREF clrBk;
} SHMENUBARINFO, *PSHMENUBARINFO;

#define SHCMBF_EMPTYBAR 0x0001
#define SHCMBF_HIDDEN 0x0002
#define SHCMBF_HIDESIPBUTTON 0x0004
#define SHCMBF_COLORBK 0x0008
#define SHCMBF_HMENU 0x0010

#define SHCMBM_SETSUBMENU (WM_USER + 400)
#define SHCMBM_GETSUBMENU (WM_USER + 401)
#define SHCMBM_GETMENU (WM_USER + 402)
#define SHCMBM_OVERRIDEKEY (WM_USER + 403)

#define SHMBOF_NODEFAULT 0x00000001
#define SHMBOF_NOTIFY 0x00000002

#define NOMENU 0xFFFF

typedef struct {
    DWORD dwMask; // SHIDIM_FLAGS
    HWND hDlg;
    DWORD dwFlags; // SHIDIF_*
} SHINITDLGINFO, *PSHINITDLGINFO;

#define SHIDIM_FLAGS 0x0001

#define SHIDIF_DONEBUTTON 0x0001
#define SHIDIF_SIZEDLG 0x0002
#define SHIDIF_SIZEDLGFULLSCREEN 0x0004
#define SHIDIF_SIPDOWN 0x0008
#define SHIDIF_FULLSCREENNOMENUBAR 0x0010
#define SHIDIF_EMPTYMENU 0x0020
#define SHIDIF_CANCELBUTTON 0x0080

typedef struct {
    DWORD cbSize;
    HWND hwndLastFocus;
    UINT fSipUp : 1;
    UINT fSipOnDeactivation : 1;
    UINT fActive : 1;
    UINT fReserved : 29;
} SHACTIVATEINFO, *PSHACTIVATEINFO;

#define SIPF_OFF 0x0000
#define SIPF_ON 0x0001
#define SIPF_DOCKED 0x0002
#define SIPF_LOCKED 0x0004

#ifndef SPI_SETSIPINFO
#define SPI_SETSIPINFO 224
#endif

#ifndef WS_EX_CAPTIONOKBTN
#define WS_EX_CAPTIONOKBTN 0x80000000L
#endif
#ifndef WS_NONAVDONEBUTTON
#define WS_NONAVDONEBUTTON WS_MINIMIZEBOX
#endif

BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info);
HWND WINAPI SHFindMenuBar(HWND owner);
BOOL WINAPI SHInitDialog(SHINITDLGINFO* info);
BOOL WINAPI SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info,
                               DWORD flags);
BOOL WINAPI SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam,
                                    SHACTIVATEINFO* info);
// Loads a picture file as a bitmap that the caller deletes; null when it cannot.
HBITMAP WINAPI SHLoadImageFile(LPCWSTR path);
// Raises (SIPF_ON) or lowers (SIPF_OFF) the input panel.
BOOL WINAPI SipShowIM(DWORD flags);

#ifdef __cplusplus
}
#endif
