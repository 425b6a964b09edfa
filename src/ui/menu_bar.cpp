#include "ui/menu_bar.h"

#include <aygshell.h>
#include <commctrl.h>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/image_strip.h"
#include "shell/services/scaling.h"

namespace {
HWND CreateBar(HWND parent, DWORD flags, UINT id, HINSTANCE module) {
    SHMENUBARINFO info{};
    info.cbSize = sizeof(info);
    info.hwndParent = parent;
    info.dwFlags = flags;
    info.nToolBarId = id;
    info.hInstRes = module;
    return SHCreateMenuBar(&info) ? info.hwndMB : nullptr;
}
} // namespace

HWND CreateEmptyMenuBar(HWND parent) {
    return CreateBar(parent, SHCMBF_EMPTYBAR, 0, application.instance);
}

HWND CreateMenuBar(HWND parent, UINT menu) {
    if (!application.languageLibrary) return nullptr; // Would mean the program itself.
    return CreateBar(parent, SHCMBF_HMENU, menu, application.languageLibrary);
}

HWND CreateButtonBar(HWND parent, UINT buttons) {
    return CreateBar(parent, 0, buttons, application.instance);
}

UniqueImageList SetMenuBarImages(HWND bar) {
    constexpr int kImageSize = 16;
    constexpr COLORREF kImageMask = 0xC6CFDE;
    UniqueImageList images = LoadImageStrip(IDB_MENU_BAR, Scale(kImageSize), kImageMask);
    SendMessage(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.Get()));
    return images;
}
