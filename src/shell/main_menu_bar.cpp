#include "shell/main_menu_bar.h"

#include <aygshell.h>
#include <commctrl.h>

#include "resource_ids.h"
#include "ui/menu_bar.h"

namespace {
TBBUTTON IconButton(int image, int command) {
    TBBUTTON button{};
    button.iBitmap = image;
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    return button;
}
} // namespace

void MainMenuBar::Create(HWND parent) {
    window_ = CreateMenuBar(parent, IDM_MAIN);
    if (!window_) return;
    TakeOutDashboardItems();
    AddButtons();
}

// The dashboard shows the same menu, with a separator and an item that opens this program.
void MainMenuBar::TakeOutDashboardItems() const {
    constexpr UINT kPosition = 5;
    auto* menu = reinterpret_cast<HMENU>(SendMessage(window_, SHCMBM_GETMENU, 0, 0));
    HMENU tools = GetSubMenu(menu, 1);
    DeleteMenu(tools, kPosition, MF_BYPOSITION);
    DeleteMenu(tools, kPosition, MF_BYPOSITION);
}

void MainMenuBar::AddButtons() {
    images_ = SetMenuBarImages(window_);
    TBBUTTON buttons[] = {IconButton(kOkImage, IDOK), IconButton(kCancelImage, IDCANCEL)};
    SendMessage(window_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessage(window_, TB_ADDBUTTONS, 2, reinterpret_cast<LPARAM>(buttons));
}

void MainMenuBar::Destroy() {
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
    images_.Reset();
}
