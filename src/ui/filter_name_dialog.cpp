#include "ui/filter_name_dialog.h"

#include <aygshell.h>

#include <algorithm>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/template_dialog.h"

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

class FilterNameDialog final : private TemplateDialog {
  public:
    explicit FilterNameDialog(WideString& title) : title_(title) {}
    // True when the user has confirmed.
    bool Run(HWND owner) {
        return RunTemplate(owner, application.languageLibrary, IDD_FILTER_NAME) == IDOK;
    }

  private:
    bool OnKey(HWND dialog, const MSG& message) override;
    void OnInit(HWND dialog) override;
    void Layout(HWND dialog) override;
    void OnCommand(HWND dialog, UINT id) override;
    void OnDestroy() override;

    WideString& title_;
};

// By the middle of the screen; on a low one below the navigation bar.
void FilterNameDialog::Layout(HWND dialog) {
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

void FilterNameDialog::OnInit(HWND dialog) {
    PlaceControls(dialog);
    Layout(dialog); // The focus goes to what is shown only.
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

// Also where it goes with its owner.
void FilterNameDialog::OnDestroy() {
    SipShowIM(SIPF_OFF);
}
} // namespace

bool AskFilterName(HWND owner, WideString& title) {
    return FilterNameDialog(title).Run(owner);
}
