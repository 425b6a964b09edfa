#include "ui/template_dialog.h"

#include <aygshell.h>

#include "shell/services/application.h"
#include "shell/services/resource_strings.h"

bool TemplateDialog::OnPaint(HWND) {
    return false;
}

void TemplateDialog::OnDestroy() {}

int TemplateDialog::RunTemplate(HWND owner, HMODULE module, UINT dialogTemplate) {
    // A null module would mean the program itself.
    HRSRC found =
        module ? FindResource(module, MAKEINTRESOURCE(dialogTemplate), RT_DIALOG) : nullptr;
    if (!found) return IDCANCEL;
    // The device makes dialogs from templates in memory only; a loaded resource is its bytes.
    const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(module, found));
    if (!form) return IDCANCEL;
    return RunOver(owner, CreateDialogIndirectParam(application.instance, form, owner, DialogProc,
                                                    reinterpret_cast<LPARAM>(this)));
}

void TemplateDialog::FillScreen(HWND dialog, UINT titleId) {
    SHINITDLGINFO info{SHIDIM_FLAGS, dialog,
                       SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN};
    SHInitDialog(&info);
    SetWindowText(dialog, LanguageText(titleId).CStr());
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT))
        SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(application.normalFont), FALSE);
}

INT_PTR TemplateDialog::Dispatch(HWND dialog, UINT message, WPARAM wParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInit(dialog);
        Layout(dialog);
        return FALSE; // The loop gives the focus.
    case WM_SIZE:
    case WM_DISPLAYCHANGE:
        Layout(dialog);
        return TRUE;
    case WM_COMMAND:
        OnCommand(dialog, LOWORD(wParam));
        return TRUE;
    case WM_PAINT:
        return OnPaint(dialog);
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
        return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    case WM_DESTROY:
        OnDestroy();
        OnDestroyed();
        return TRUE;
    default:
        return FALSE;
    }
}

INT_PTR CALLBACK TemplateDialog::DialogProc(HWND dialog, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtr(dialog, GWLP_USERDATA, lParam);
    auto* self = reinterpret_cast<TemplateDialog*>(GetWindowLongPtr(dialog, GWLP_USERDATA));
    return self ? self->Dispatch(dialog, message, wParam) : FALSE;
}
