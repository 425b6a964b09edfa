#include "pages/title_order.h"

#include <cstdint>
#include <iterator>

#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
constexpr int kListLeft = 10;
constexpr int kListWidth = 160;
constexpr int kListHeight = 62;
constexpr int kRowHeight = 20; // Three whole rows.
constexpr int kButtonLeft = 175;
constexpr int kButtonWidth = 55;
constexpr int kButtonHeight = 20;
constexpr int kButtonPitch = 25;

constexpr auto kTitles = static_cast<uint32_t>(std::size(kCalendarTitlePlaces));

// In the order of the titles' numbers.
constexpr UINT kNames[kTitles] = {
    IDS_CALENDAR_TITLE_OVERDUE,        IDS_CALENDAR_TITLE_UNDATED, IDS_CALENDAR_TITLE_MAIL,
    IDS_CALENDAR_TITLE_SPECIAL_EVENTS, IDS_CALENDAR_TITLE_WEATHER, IDS_CALENDAR_TITLE_DAYS,
};
} // namespace

void CreateTitleOrder(HWND page, HFONT font, UINT firstId, int top) {
    HWND list = CreateList(page, firstId, font, kRowHeight);
    PlaceControl(list, {Scale(kListLeft), ScaleY(top), Scale(kListWidth), ScaleY(kListHeight)});
    for (uint32_t row = 0; row < kTitles; ++row) {
        const uint32_t stored = (settingsStore.*kCalendarTitlePlaces[row]).value;
        const uint32_t title = stored < kTitles ? stored : row;
        AddRow(list, LanguageText(kNames[title]).CStr(), static_cast<LPARAM>(title));
    }
    FitColumn(list);
    const UINT buttons[] = {IDS_MOVE_UP, IDS_MOVE_DOWN};
    for (UINT i = 0; i < std::size(buttons); ++i) {
        const int y = top + static_cast<int>(i) * kButtonPitch;
        CreateHiddenControl(
            page, L"BUTTON", LanguageText(buttons[i]).CStr(), WS_TABSTOP, firstId + 1 + i,
            {Scale(kButtonLeft), ScaleY(y), Scale(kButtonWidth), ScaleY(kButtonHeight)}, font);
    }
}

bool OnTitleOrderButton(HWND page, UINT firstId, UINT id) {
    if (id != firstId + 1 && id != firstId + 2) return false;
    MoveSelectedRow(page, Item(page, firstId), id == firstId + 1);
    return true;
}

void SaveTitleOrder(HWND page, UINT firstId) {
    HWND list = Item(page, firstId);
    for (uint32_t row = 0; list && row < kTitles; ++row)
        (settingsStore.*kCalendarTitlePlaces[row])
            .Set(static_cast<uint32_t>(RowData(list, static_cast<int>(row))));
}
