#include "pages/colours_page.h"

#include <iterator>

#include "pages/sample_band.h"
#include "pages/scheme_list.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/colour_picker.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
// Control ids.
constexpr UINT kEdit = 1200;
constexpr UINT kColours = 1201;
constexpr UINT kSchemeName = 1202;
constexpr UINT kSaveScheme = 1203;
constexpr UINT kSchemes = 1204;
constexpr UINT kLoadScheme = 1205;
constexpr UINT kDeleteScheme = 1206;

constexpr int kColoursTab = 0;

struct ColourItem {
    DwordSetting SettingsStore::*setting;
    UINT label;
    UINT description;
};
constexpr ColourItem kItems[] = {
    {&SettingsStore::SeperatorLineClr, IDS_COLOUR_SEPARATOR, IDS_COLOUR_SEPARATOR_ABOUT},
    {&SettingsStore::ShadowFontColor, IDS_COLOUR_SHADOW, IDS_COLOUR_SHADOW_ABOUT},
    {&SettingsStore::GeneralFontColor, IDS_COLOUR_GENERAL, IDS_COLOUR_GENERAL_ABOUT},
    {&SettingsStore::HighlightBgClr, IDS_COLOUR_HIGHLIGHT_BACK, IDS_COLOUR_HIGHLIGHT_BACK_ABOUT},
    {&SettingsStore::HighlightTextClr, IDS_COLOUR_HIGHLIGHT_TEXT, IDS_COLOUR_HIGHLIGHT_TEXT_ABOUT},
    {&SettingsStore::TimeLinesBgClr, IDS_COLOUR_TIME_LINES_BACK, IDS_COLOUR_TIME_LINES_BACK_ABOUT},
    {&SettingsStore::TimeLinesDfltClr, IDS_COLOUR_TIME_LINES, IDS_COLOUR_TIME_LINES_ABOUT},
    {&SettingsStore::ClrBreakingLineClr, IDS_COLOUR_CAL_BREAK, IDS_COLOUR_CAL_BREAK_ABOUT},
    {&SettingsStore::ClrPopupClrBg, IDS_COLOUR_POPUP_BACK, IDS_COLOUR_POPUP_BACK_ABOUT},
    {&SettingsStore::ClrPopupCurr, IDS_COLOUR_POPUP_CURRENT, IDS_COLOUR_POPUP_CURRENT_ABOUT},
    {&SettingsStore::ClrPopupHighlight, IDS_COLOUR_POPUP_HIGHLIGHT,
     IDS_COLOUR_POPUP_HIGHLIGHT_ABOUT},
    {&SettingsStore::TskBreakingLineClr, IDS_COLOUR_TASKS_BREAK, IDS_COLOUR_TASKS_BREAK_ABOUT},
    {&SettingsStore::ClrStatusFree, IDS_COLOUR_STATUS_FREE, IDS_COLOUR_STATUS_FREE_ABOUT},
    {&SettingsStore::ClrStatusBusy, IDS_COLOUR_STATUS_BUSY, IDS_COLOUR_STATUS_BUSY_ABOUT},
    {&SettingsStore::ClrStatusTentative, IDS_COLOUR_STATUS_TENTATIVE,
     IDS_COLOUR_STATUS_TENTATIVE_ABOUT},
    {&SettingsStore::ClrStatusOutofoffice, IDS_COLOUR_STATUS_OUT_OF_OFFICE,
     IDS_COLOUR_STATUS_OUT_OF_OFFICE_ABOUT},
};

// Null when none is selected.
const ColourItem* SelectedColour(HWND page) {
    const int row = SelectedRow(Item(page, kColours));
    return row >= 0 && row < static_cast<int>(std::size(kItems)) ? &kItems[row] : nullptr;
}

// The page may be closed and gone when the picker is.
void EditColour(HWND window) {
    const ColourItem* item = SelectedColour(window);
    if (!item) return;
    DwordSetting& setting = settingsStore.*item->setting;
    const COLORREF chosen = PickColour(window, setting.value);
    if (chosen == kPickCancelled) return;
    setting.Set(chosen);
    RedrawSampleBand(window);
}
} // namespace

int ColoursPage::GetTabCount() const {
    return 2;
}

UINT ColoursPage::GetTabTitleId(int index) const {
    return index == kColoursTab ? IDS_TAB_COLOURS_ITEMS : IDS_TAB_COLOURS_SCHEMES;
}

void ColoursPage::CreateControls(HWND window) {
    Layout(window);
    HWND colours = Item(window, kColours);
    for (const ColourItem& item : kItems)
        AddRow(colours, LanguageText(item.label).CStr());
    FitColumn(colours);
    SendMessage(Item(window, kSchemeName), EM_LIMITTEXT, kMaxSchemeName, 0);
    FillSchemeList(Item(window, kSchemes), normalFont);
}

// Makes the controls, or moves them when they are there already.
LRESULT ColoursPage::Layout(HWND window) {
    constexpr int kMargin = 10;
    constexpr int kNameTop = 50;
    constexpr int kNameWidth = 130;
    constexpr int kSaveLeft = 150;
    constexpr int kButtonsFromBottom = 48;
    constexpr int kDeleteLeft = 100;
    constexpr int kButtonWidth = 80;
    constexpr int kRowHeight = 20;
    constexpr int kButtonRow = 26;
    const auto putButton = [&](UINT id, UINT text, int left, int top) {
        PutControl(window, L"BUTTON", LanguageText(text).CStr(), WS_TABSTOP, id,
                   {Scale(left), top, Scale(kButtonWidth), ScaleY(kRowHeight)}, normalFont);
    };
    PlaceSampleList(window, kColours, normalFont);
    PlaceSampleButton(window, kEdit, LanguageText(IDS_COLOURS_EDIT).CStr(), normalFont);
    PutControl(window, L"EDIT", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, kSchemeName,
               {Scale(kMargin), ScaleY(kNameTop), Scale(kNameWidth), ScaleY(kRowHeight)},
               normalFont);
    putButton(kSaveScheme, IDS_COLOURS_SAVE, kSaveLeft, ScaleY(kNameTop));
    PlaceSampleList(window, kSchemes, normalFont, kButtonRow);
    const int buttonsTop = ClientSize(window).cy - ScaleY(kButtonsFromBottom);
    putButton(kLoadScheme, IDS_COLOURS_LOAD, kMargin, buttonsTop);
    putButton(kDeleteScheme, IDS_COLOURS_DELETE, kDeleteLeft, buttonsTop);
    return 0;
}

void ColoursPage::ShowTab(HWND window, int showCommand) {
    if (CurrentTab() == kColoursTab)
        ShowControlRange(window, kEdit, kColours, showCommand);
    else
        ShowControlRange(window, kSchemeName, kDeleteScheme, showCommand);
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

// Nothing: after a scheme was loaded the store is newer than the page.
void ColoursPage::SaveValues(HWND, WPARAM) {}

LRESULT ColoursPage::OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    {
        const SelectScope font(dc, normalFont);
        if (CurrentTab() == kColoursTab) {
            PaintColour(window, dc);
        } else {
            RECT place = SampleBand(window).Description();
            DrawText(dc, LanguageText(IDS_COLOURS_SCHEMES).CStr(), -1, &place,
                     DT_WORDBREAK | DT_NOPREFIX);
        }
    }
    EndPaint(window, &paint);
    return 0;
}

void ColoursPage::PaintColour(HWND window, HDC dc) const {
    constexpr int kSwatchFromRight = 90;
    const ColourItem* item = SelectedColour(window);
    if (!item) return;
    const SampleBand band(window);
    RECT place = band.Description();
    DrawText(dc, LanguageText(item->description).CStr(), -1, &place, DT_WORDBREAK | DT_NOPREFIX);
    DrawColourSample(dc, (settingsStore.*item->setting).value,
                     place.right - Scale(kSwatchFromRight), band.Swatch().top);
}

LRESULT ColoursPage::OnCommand(HWND window, UINT, WPARAM wParam, LPARAM) {
    if (HIWORD(wParam) != BN_CLICKED) return 0;
    HWND schemes = Item(window, kSchemes);
    switch (LOWORD(wParam)) {
    case kEdit:
        EditColour(window);
        break;
    case kSaveScheme:
        SaveScheme(window, Item(window, kSchemeName), schemes);
        break;
    case kLoadScheme:
        LoadScheme(window, schemes);
        break;
    case kDeleteScheme:
        DeleteScheme(window, schemes);
        break;
    default:
        break;
    }
    return 0;
}

LRESULT ColoursPage::OnNotify(HWND window, UINT, WPARAM, NMHDR* header) {
    RedrawOnSelection(window, kColours, *header);
    return 0;
}
