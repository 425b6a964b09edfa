#include "ui/filter_name_dialog.h"

#include <aygshell.h>

#include <algorithm>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/modal_loop.h"

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

// It runs in the program's own loop: the platform's would trap the directional pad in the field.
class FilterNameDialog final : private ModalLoop {
  public:
    explicit FilterNameDialog(WideString& title) : title_(title) {}
    // True when the user has confirmed.
    bool Run(HWND owner, const DLGTEMPLATE* form);

  private:
    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Dispatch(HWND dialog, UINT message, WPARAM wParam);
    bool OnKey(HWND dialog, const MSG& message) override;
    void OnInit(HWND dialog) const;
    void OnCommand(HWND dialog, UINT id);

    WideString& title_;
};

bool FilterNameDialog::Run(HWND owner, const DLGTEMPLATE* form) {
    return RunOver(owner, CreateDialogIndirectParam(application.instance, form, owner, DialogProc,
                                                    reinterpret_cast<LPARAM>(this))) == IDOK;
}

// By the middle of the screen; on a low one below the navigation bar.
void PlaceOnScreen(HWND dialog) {
    RECT area{};
    SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    const int top = GetSystemMetrics(SM_CYSCREEN) / 2 - ScaleY(kAboveCentre);
    SetWindowPos(dialog, HWND_TOPMOST, GetSystemMetrics(SM_CXSCREEN) / 2 - Scale(kLeftOfCentre),
                 std::max(top, static_cast<int>(area.top)), Scale(kWidth), ScaleY(kHeight),
                 SWP_SHOWWINDOW);
}

// The template's own measures follow its font; these follow the screen, in the program's font.
void PlaceControls(HWND dialog) {
    for (const DialogControl& control : kControls) {
        HWND window = Item(dialog, control.id);
        MoveWindow(window, Scale(control.x), ScaleY(control.y), Scale(control.width),
                   ScaleY(control.height), FALSE);
        SendMessage(window, WM_SETFONT, reinterpret_cast<WPARAM>(application.normalFont), FALSE);
        if (control.text) SetWindowText(window, LanguageText(control.text).CStr());
    }
}

void FilterNameDialog::OnInit(HWND dialog) const {
    PlaceControls(dialog);
    PlaceOnScreen(dialog);
    HWND name = Item(dialog, kName);
    SendMessage(name, EM_LIMITTEXT, kNameLimit, 0);
    SetWindowText(name, title_.CStr());
    SendMessage(name, EM_SETSEL, 0, -1);
    SetFocus(name);
    SipShowIM(SIPF_ON);
}

// Enter behind the name is OK.
bool FilterNameDialog::OnKey(HWND dialog, const MSG& message) {
    if (message.wParam != VK_RETURN || message.hwnd != Item(dialog, kName)) return false;
    OnCommand(dialog, IDOK);
    return true;
}

void FilterNameDialog::OnCommand(HWND dialog, UINT id) {
    if (id == IDOK) title_ = ControlText(Item(dialog, kName), kNameLimit);
    if (id == IDOK || id == IDCANCEL) Finish(static_cast<int>(id));
}

INT_PTR FilterNameDialog::Dispatch(HWND dialog, UINT message, WPARAM wParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInit(dialog);
        return FALSE; // The focus is set.
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    case WM_DISPLAYCHANGE:
        PlaceOnScreen(dialog);
        return TRUE;
    case WM_COMMAND:
        OnCommand(dialog, LOWORD(wParam));
        return TRUE;
    case WM_DESTROY: // Also where it goes with its owner.
        SipShowIM(SIPF_OFF);
        OnDestroyed();
        return TRUE;
    default:
        return FALSE;
    }
}

INT_PTR CALLBACK FilterNameDialog::DialogProc(HWND dialog, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtr(dialog, GWLP_USERDATA, lParam);
    auto* self = reinterpret_cast<FilterNameDialog*>(GetWindowLongPtr(dialog, GWLP_USERDATA));
    return self ? self->Dispatch(dialog, message, wParam) : FALSE;
}
} // namespace

bool AskFilterName(HWND owner, WideString& title) {
    HMODULE library = application.languageLibrary;
    if (!library) return false;
    HRSRC found = FindResource(library, MAKEINTRESOURCE(IDD_FILTER_NAME), RT_DIALOG);
    if (!found) return false;
    // The device makes dialogs from templates in memory only; a loaded resource is its bytes.
    const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(library, found));
    return form && FilterNameDialog(title).Run(owner, form);
}
