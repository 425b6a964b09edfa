#include <aygshell.h>

#include "menu_bar.h"

#include <utility>

namespace {

HWND CreateMenuBar(const SHMENUBARINFO& info) {
    if (!IsWindow(info.hwndParent)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return nullptr;
    }
    std::optional<MenuBarContent> content = LoadMenuBarContent(info);
    return content ? MenuBar::Create(info, std::move(*content)) : nullptr;
}

} // namespace

extern "C" {

BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info) {
    if (!info || info->cbSize != sizeof(*info)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    info->hwndMB = CreateMenuBar(*info);
    return info->hwndMB != nullptr;
}

HWND WINAPI SHFindMenuBar(HWND owner) {
    const MenuBar* bar = MenuBar::Of(owner);
    return bar ? bar->Window() : nullptr;
}

} // extern "C"
