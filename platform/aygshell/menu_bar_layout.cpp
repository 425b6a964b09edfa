#include "menu_bar_layout.h"

#include "../coredll/shell_frame.h"

#include <algorithm>

namespace {

constexpr int kTextMarginUnits = 8;
constexpr int kCellUnits = 28; // Of an icon and of the panel button.

int ItemWidth(HDC dc, const MenuBarItem& item) {
    if (!item.IsText()) return ShellScale(kCellUnits);
    RECT text = {};
    DrawTextW(dc, item.text.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX);
    return text.right + 2 * ShellScale(kTextMarginUnits);
}

struct Layout {
    std::vector<MenuBarItem*> texts;
    std::vector<MenuBarItem*> icons;
    RECT* panelButton;
    int width;
    int height;
    int cell;

    void Place(RECT& place, int left, int itemWidth) const {
        place = {left, 0, left + itemWidth, height};
    }

    // Icons, then the panel button.
    void PlaceMiddle(int left) const {
        for (MenuBarItem* icon : icons) {
            Place(icon->place, left, cell);
            left += cell;
        }
        if (panelButton) Place(*panelButton, left, cell);
    }

    [[nodiscard]] int MiddleWidth() const {
        return cell * (static_cast<int>(icons.size()) + (panelButton ? 1 : 0));
    }

    // Texts at the ends; false when that is not possible.
    [[nodiscard]] bool PlaceAtEnds(const std::vector<int>& widths) const {
        if (texts.size() > 2) return false;
        const int left = texts.empty() ? 0 : widths[0];
        const int right = texts.size() < 2 ? 0 : widths[1];
        const int middle = MiddleWidth();
        if (left + middle + right > width) return false;
        if (!texts.empty()) Place(texts[0]->place, 0, left);
        if (texts.size() == 2) Place(texts[1]->place, width - right, right);
        // In the middle of the bar, as long as the texts leave it free.
        PlaceMiddle(std::clamp((width - middle) / 2, left, width - right - middle));
        return true;
    }

    void PlaceInFlow(const std::vector<int>& widths) const {
        int x = 0;
        for (size_t i = 0; i < texts.size(); ++i) {
            Place(texts[i]->place, x, widths[i]);
            x += widths[i];
        }
        PlaceMiddle(x);
        if (panelButton) Place(*panelButton, width - cell, cell);
    }
};

} // namespace

void LayOutMenuBar(HDC dc, int width, int height, std::vector<MenuBarItem>& items,
                   RECT* panelButton) {
    Layout layout = {{}, {}, panelButton, width, height, ShellScale(kCellUnits)};
    std::vector<int> widths;
    for (MenuBarItem& item : items) {
        item.place = {};
        if (!item.IsShown()) continue;
        if (item.IsText()) widths.push_back(ItemWidth(dc, item));
        (item.IsText() ? layout.texts : layout.icons).push_back(&item);
    }
    if (!layout.PlaceAtEnds(widths)) layout.PlaceInFlow(widths);
}
