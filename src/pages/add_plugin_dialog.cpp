#include "pages/add_plugin_dialog.h"

#include <vector>

#include "resource_ids.h"
#include "settings/today_items.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/today_screen.h"
#include "ui/controls.h"
#include "ui/menu_bar.h"
#include "ui/messages.h"
#include "ui/template_dialog.h"

namespace {
constexpr int kMargin = 10;
constexpr int kHelpTop = 8;
constexpr int kHelpHeight = 56;
constexpr int kLabelTop = 68;
constexpr int kLabelHeight = 16;
constexpr int kListTop = 84;
constexpr int kRowHeight = 20;
constexpr int kDropHeight = 100;
constexpr int kButtonWidth = 108;
constexpr int kButtonGap = 6; // Below the button.

// Fixed texts, not the language library's.
constexpr wchar_t kNothingSelected[] = L"No Today screen plugin is selecetd. Please select a Today "
                                       L"screen plugin from the selection combo-box.";
constexpr wchar_t kNothingSelectedCaption[] = L"Selection Missing";

class AddPluginDialog final : private TemplateDialog {
  public:
    // IDOK when a plug-in was chosen.
    int Run(HWND owner) { return RunTemplate(owner, application.instance, IDD_ADD_PLUGIN); }
    [[nodiscard]] const WideString& Chosen() const { return chosen_; }

  private:
    void OnInit(HWND dialog) override;
    void Layout(HWND dialog) override;
    void OnCommand(HWND dialog, UINT id) override;
    void OnOk(HWND dialog);

    std::vector<WideString> plugins_; // In the order of the list's entries.
    WideString chosen_;
};

void AddPluginDialog::Layout(HWND dialog) {
    RECT client{};
    GetClientRect(dialog, &client);
    const int left = Scale(kMargin);
    const int width = client.right - 2 * left;
    const int button = Scale(kButtonWidth);
    const int row = ScaleY(kRowHeight);
    PlaceControl(Item(dialog, IDC_ADD_PLUGIN_HELP),
                 {left, ScaleY(kHelpTop), width, ScaleY(kHelpHeight)});
    PlaceControl(Item(dialog, IDC_ADD_PLUGIN_LABEL),
                 {left, ScaleY(kLabelTop), width, ScaleY(kLabelHeight)});
    PlaceControl(Item(dialog, IDC_ADD_PLUGIN_LIST),
                 {left, ScaleY(kListTop), width, ScaleY(kDropHeight)});
    PlaceControl(Item(dialog, IDCANCEL), {client.right - left - button,
                                          client.bottom - ScaleY(kButtonGap) - row, button, row});
}

void AddPluginDialog::OnInit(HWND dialog) {
    FillScreen(dialog, IDS_TABS_ADD_TITLE);
    CreateEmptyMenuBar(dialog);
    SetDlgItemText(dialog, IDC_ADD_PLUGIN_LABEL, LanguageText(IDS_TABS_PLUGIN).CStr());
    SetDlgItemText(dialog, IDC_ADD_PLUGIN_HELP, LanguageText(IDS_TABS_PLUGIN_HELP).CStr());
    SetDlgItemText(dialog, IDCANCEL, LanguageText(IDS_CANCEL).CStr());
    plugins_ = TodayPlugins();
    HWND list = Item(dialog, IDC_ADD_PLUGIN_LIST);
    for (const WideString& plugin : plugins_)
        AddEntry(list, plugin.CStr());
    SelectIndex(list, 0);
}

void AddPluginDialog::OnCommand(HWND dialog, UINT id) {
    if (id == IDOK) OnOk(dialog);
    if (id == IDCANCEL) Finish(IDCANCEL);
}

void AddPluginDialog::OnOk(HWND dialog) {
    const int entry = SelectedIndex(dialog, IDC_ADD_PLUGIN_LIST);
    if (entry < 0) {
        MessageBox(dialog, kNothingSelected, kNothingSelectedCaption, MB_OK);
        return;
    }
    const WideString& plugin = plugins_[static_cast<size_t>(entry)];
    if (IsTodayItemEnabled(plugin.CStr())) {
        if (!AskYesNo(dialog, IDS_TABS_DISABLE_QUESTION, IDS_TABS_DISABLE_CAPTION)) {
            Finish(IDCANCEL);
            return;
        }
        DisableTodayItem(plugin.CStr());
        // The Today screen may take its time; nothing of the question is to stay meanwhile.
        InvalidateRect(dialog, nullptr, TRUE);
        UpdateWindow(dialog);
        RefreshTodayScreen();
    }
    chosen_ = plugin;
    Finish(IDOK);
}
} // namespace

bool ChoosePluginToAdd(HWND owner, WideString& name) {
    AddPluginDialog dialog;
    if (dialog.Run(owner) != IDOK) return false;
    name = dialog.Chosen();
    return true;
}
