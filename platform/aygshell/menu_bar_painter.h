#pragma once

#include "menu_bar_content.h"

// How a bar looks at a moment.
struct MenuBarLook {
    const std::vector<MenuBarItem>& items;
    HIMAGELIST images;
    COLORREF background;
    const MenuBarItem* pressed; // Null when none is.
    const RECT* panelButton;    // Null when hidden.
    bool panelPressed;
};

constexpr COLORREF kMenuBarColour = RGB(0xD6, 0xDF, 0xEA);

// The font of a bar's texts, which the caller deletes.
[[nodiscard]] HFONT CreateMenuBarFont();

// Draws a bar, with the bar's font selected into `dc`.
void PaintMenuBar(HDC dc, const RECT& client, const MenuBarLook& look);
