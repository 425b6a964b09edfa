#include "shell/main_menu_bar.h"

#include <aygshell.h>
#include <commctrl.h>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/image_strip.h"
#include "shell/services/scaling.h"

namespace {
constexpr int kImageSize = 16;
constexpr COLORREF kImageMask = 0xC6CFDE;
constexpr int kCancelImage = 0;
constexpr int kOkImage = 1;

TBBUTTON IconButton(int image, int command) {
    TBBUTTON button{};
    button.iBitmap = image;
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    return button;
}
} // namespace

void MainMenuBar::Create(HWND parent) {
    SHMENUBARINFO info{};
    info.cbSize = sizeof(info);
    info.hwndParent = parent;
    info.dwFlags = SHCMBF_HMENU;
    info.nToolBarId = IDM_MAIN;
    info.hInstRes = application.languageLibrary;
    if (!SHCreateMenuBar(&info)) return;
    window_ = info.hwndMB;
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
    images_ = LoadImageStrip(IDB_MENU_BAR, Scale(kImageSize), kImageMask);
    SendMessage(window_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.Get()));
    TBBUTTON buttons[] = {IconButton(kOkImage, IDOK), IconButton(kCancelImage, IDCANCEL)};
    SendMessage(window_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessage(window_, TB_ADDBUTTONS, 2, reinterpret_cast<LPARAM>(buttons));
}

void MainMenuBar::Destroy() {
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
    images_.Reset();
}
