#include "ui/filter_name_dialog.h"

#include <aygshell.h>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"

namespace {
constexpr UINT kLabel = 419;
constexpr UINT kName = 1590;
constexpr int kNameLimit = 255; // Characters.

constexpr int kWidth = 226;
constexpr int kHeight = 120;
constexpr int kLeftOfCentre = 113;
constexpr int kAboveCentre = 100;

struct DialogControl {
    UINT id;
    UINT text; // 0 for none.
    int x, y, width, height;
};
constexpr DialogControl kControls[] = {
    {kLabel, IDS_FILTER_NAME, 10, 14, 204, 16},
    {kName, 0, 10, 34, 204, 20},
    {IDOK, IDS_FILTER_NAME_OK, 44, 74, 80, 22},
    {IDCANCEL, IDS_FILTER_NAME_CANCEL, 134, 74, 80, 22},
};

// The template's own measures follow its font; these follow the screen, in the program's font.
void PlaceControls(HWND dialog) {
    SetWindowPos(dialog, HWND_TOPMOST, GetSystemMetrics(SM_CXSCREEN) / 2 - Scale(kLeftOfCentre),
                 GetSystemMetrics(SM_CYSCREEN) / 2 - ScaleY(kAboveCentre), Scale(kWidth),
                 ScaleY(kHeight), 0);
    for (const DialogControl& control : kControls) {
        HWND window = GetDlgItem(dialog, static_cast<int>(control.id));
        MoveWindow(window, Scale(control.x), ScaleY(control.y), Scale(control.width),
                   ScaleY(control.height), FALSE);
        SendMessage(window, WM_SETFONT, reinterpret_cast<WPARAM>(application.normalFont), FALSE);
        if (control.text) SetWindowText(window, LanguageText(control.text).CStr());
    }
}

void OnInit(HWND dialog, const WideString& title) {
    PlaceControls(dialog);
    HWND name = GetDlgItem(dialog, kName);
    SendMessage(name, EM_LIMITTEXT, kNameLimit, 0);
    SetWindowText(name, title.CStr());
    SendMessage(name, EM_SETSEL, 0, -1);
    SetFocus(name);
    SipShowIM(SIPF_ON);
}

void Finish(HWND dialog, UINT id) {
    if (id == IDOK) {
        auto* title = reinterpret_cast<WideString*>(GetWindowLongPtr(dialog, GWLP_USERDATA));
        *title = ControlText(GetDlgItem(dialog, kName), kNameLimit);
    }
    EndDialog(dialog, id == IDOK ? 1 : 0);
}

INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtr(dialog, GWLP_USERDATA, lParam);
        OnInit(dialog, *reinterpret_cast<const WideString*>(lParam));
        return FALSE; // The focus is set.
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) Finish(dialog, LOWORD(wParam));
        return TRUE;
    case WM_DESTROY: // Also where it goes with its owner.
        SipShowIM(SIPF_OFF);
        return TRUE;
    default:
        return FALSE;
    }
}
} // namespace

bool AskFilterName(HWND owner, WideString& title) {
    HMODULE library = application.languageLibrary;
    if (!library) return false;
    HRSRC found = FindResource(library, MAKEINTRESOURCE(IDD_FILTER_NAME), RT_DIALOG);
    // The device dialogs are made from a template in memory only. A loaded resource is its bytes.
    auto* form = found ? static_cast<const DLGTEMPLATE*>(LoadResource(library, found)) : nullptr;
    if (!form) return false;
    return DialogBoxIndirectParam(application.instance, form, owner, DialogProc,
                                  reinterpret_cast<LPARAM>(&title)) == 1;
}
