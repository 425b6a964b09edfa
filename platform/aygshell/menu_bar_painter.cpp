#include "menu_bar_painter.h"

#include "../coredll/shell_frame.h"

#include <cwchar>

namespace {

constexpr COLORREF kHairline = RGB(0x8F, 0xA3, 0xBC);
constexpr COLORREF kPressed = RGB(0x33, 0x60, 0x96);
constexpr COLORREF kInk = RGB(0x00, 0x00, 0x00);
constexpr COLORREF kPressedInk = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kDisabledInk = RGB(0x85, 0x90, 0x9E);
constexpr COLORREF kKeyboard = RGB(0x33, 0x47, 0x5F);

void Fill(HDC dc, const RECT& area, COLORREF colour) {
    SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}

void PaintText(HDC dc, const MenuBarItem& item, bool pressed) {
    RECT place = item.place;
    SetTextColor(dc, !item.IsEnabled() ? kDisabledInk : pressed ? kPressedInk : kInk);
    DrawTextW(dc, item.text.c_str(), -1, &place,
              DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
}

void PaintIcon(HDC dc, const MenuBarItem& item, const MenuBarLook& look) {
    int width;
    int height;
    if (!ImageList_GetIconSize(look.images, &width, &height)) return;
    const int x = (item.place.left + item.place.right - width) / 2;
    const int y = (item.place.top + item.place.bottom - height) / 2;
    const UINT style = item.IsEnabled() ? ILD_TRANSPARENT : ILD_TRANSPARENT | ILD_BLEND50;
    ImageList_DrawEx(look.images, item.image, dc, x, y, 0, 0, CLR_NONE, look.background, style);
}

void PaintItem(HDC dc, const MenuBarItem& item, const MenuBarLook& look) {
    const bool pressed = &item == look.pressed;
    if (pressed) Fill(dc, item.place, kPressed);
    if (item.image >= 0 && look.images)
        PaintIcon(dc, item, look);
    else
        PaintText(dc, item, pressed);
}

// A small keyboard: a plate with two rows of keys and a space bar.
void PaintPanelButton(HDC dc, const RECT& place, bool pressed, COLORREF background) {
    if (pressed) Fill(dc, place, kPressed);
    const int unit = ShellScale(1);
    const int left = (place.left + place.right - 17 * unit) / 2;
    const int top = (place.top + place.bottom - 11 * unit) / 2;
    const auto box = [&](int x, int y, int width, int height, COLORREF colour) {
        const int right = left + (x + width) * unit;
        const int bottom = top + (y + height) * unit;
        Fill(dc, {left + x * unit, top + y * unit, right, bottom}, colour);
    };
    const COLORREF plate = pressed ? kPressedInk : kKeyboard;
    const COLORREF key = pressed ? kPressed : background;
    box(1, 0, 15, 11, plate); // Without its four corners.
    box(0, 1, 17, 9, plate);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 5; ++column)
            box(2 + 3 * column + row, 2 + 3 * row, 1, 1, key);
    box(5, 8, 7, 1, key);
}

} // namespace

HFONT CreateMenuBarFont() {
    LOGFONTW font = {};
    font.lfHeight = -ShellScale(11); // 8 points.
    font.lfWeight = FW_BOLD;
    wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&font);
}

void PaintMenuBar(HDC dc, const RECT& client, const MenuBarLook& look) {
    Fill(dc, client, look.background);
    SetBkMode(dc, TRANSPARENT);
    for (const MenuBarItem& item : look.items)
        if (item.IsShown()) PaintItem(dc, item, look);
    if (look.panelButton)
        PaintPanelButton(dc, *look.panelButton, look.panelPressed, look.background);
    Fill(dc, {client.left, client.top, client.right, client.top + ShellScale(1)}, kHairline);
}
