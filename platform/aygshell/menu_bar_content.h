// What a menu bar is made of, read from the resources that a program names.
#pragma once

#include <aygshell.h>
#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

struct MenuBarItem {
    std::wstring text;
    int image = I_IMAGENONE; // Index into the bar's image list.
    UINT command = 0;
    BYTE state = TBSTATE_ENABLED;
    HMENU popup = nullptr; // Opened by the item instead of sending its command.
    RECT place = {};

    [[nodiscard]] bool IsText() const { return image < 0; }
    [[nodiscard]] bool IsShown() const { return !(state & TBSTATE_HIDDEN); }
    [[nodiscard]] bool IsEnabled() const { return state & TBSTATE_ENABLED; }
};

struct MenuBarContent {
    HMENU menu = nullptr; // The receiver destroys it. Null for an empty bar.
    std::vector<MenuBarItem> items;
};

// Reads what `info` asks for: nothing, a menu, or a menu-bar resource. None when a resource that it
// names is missing or damaged.
[[nodiscard]] std::optional<MenuBarContent> LoadMenuBarContent(const SHMENUBARINFO& info);
