#include "pages/fonts_page.h"

#include <commctrl.h>

#include <iterator>

#include "pages/font_size_list.h"
#include "pages/font_style_dialog.h"
#include "pages/sample_band.h"
#include "preview/text_style.h"
#include "resource_ids.h"
#include "settings/font_catalogue.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/colour_picker.h"
#include "ui/list_items.h"
#include "ui/menu_bar.h"
#include "ui/messages.h"
#include "ui/tab_strip.h"

namespace {
// Control ids.
constexpr UINT kSizeLabel = 1200;
constexpr UINT kSize = 1201;
constexpr UINT kTitleSizeLabel = 1202;
constexpr UINT kTitleSize = 1203;
constexpr UINT kPerItem = 1204;
constexpr UINT kFaceLabel = 1205;
constexpr UINT kFace = 1206;
constexpr UINT kShadowLabel = 1207;
constexpr UINT kShadow = 1208;
constexpr UINT kClearType = 1209;
constexpr UINT kEdit = 1210;
constexpr UINT kItems = 1211;

constexpr int kItemsTab = 1;
constexpr int kFaceLimit = 255; // Characters.

constexpr FormTab kTabs[] = {
    {IDS_TAB_FONTS_GENERAL, kSizeLabel, kClearType},
    {IDS_TAB_FONTS_ITEM_COLOURS, kEdit, kItems},
};

constexpr UINT kShadows[] = {IDS_FONTS_SHADOW_NONE, IDS_FONTS_SHADOW_BELOW_RIGHT,
                             IDS_FONTS_SHADOW_BELOW_LEFT, IDS_FONTS_SHADOW_ABOVE_RIGHT,
                             IDS_FONTS_SHADOW_ABOVE_LEFT};

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Custom,
     .labelId = kSizeLabel,
     .id = kSize,
     .text = IDS_FONTS_SIZE,
     .setting = &SettingsStore::FontGnrlSize},
    {.tab = 0,
     .kind = RowKind::Custom,
     .labelId = kTitleSizeLabel,
     .id = kTitleSize,
     .text = IDS_FONTS_TITLE_SIZE,
     .setting = &SettingsStore::FontGnrlTitlesSize},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kPerItem,
     .text = IDS_FONTS_PER_ITEM,
     .setting = &SettingsStore::FontGnrlUseAdvncd},
    {.tab = 0,
     .kind = RowKind::Custom,
     .labelId = kFaceLabel,
     .id = kFace,
     .text = IDS_FONTS_FACE,
     .path = &SettingsStore::FontFaceToUse},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kShadowLabel,
     .id = kShadow,
     .text = IDS_FONTS_SHADOW,
     .choices = kShadows,
     .setting = &SettingsStore::UseShadowColor},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kClearType,
     .text = IDS_FONTS_CLEAR_TYPE,
     .setting = &SettingsStore::ForceClearType},
    {.tab = kItemsTab, .kind = RowKind::Custom, .id = kItems},
    {.tab = kItemsTab, .kind = RowKind::Custom, .id = kEdit, .text = IDS_FONTS_EDIT},
};

bool HasOwnFonts(HWND page) {
    return IsBoxChecked(page, kPerItem);
}

bool SharesOneFont(HWND page) {
    return !HasOwnFonts(page);
}

constexpr EnablingRule kRules[] = {{kSizeLabel, kTitleSize, SharesOneFont}};

constexpr FormTables kTables{kTabs, kRows, kRules};

// What the list and the header above the sample call a font, in the order of the fonts' numbers.
struct ItemTexts {
    UINT label;
    UINT description;
};
constexpr ItemTexts kItemTexts[] = {
    {IDS_FONT_GENERAL, IDS_FONT_GENERAL_ABOUT},
    {IDS_FONT_CAL_TASKS, IDS_FONT_CAL_TASKS_ABOUT},
    {IDS_FONT_CAL_TASKS_OVERDUE, IDS_FONT_CAL_TASKS_OVERDUE_ABOUT},
    {IDS_FONT_CAL_TASKS_FUTURE, IDS_FONT_CAL_TASKS_FUTURE_ABOUT},
    {IDS_FONT_CAL_TASKS_COMPLETED, IDS_FONT_CAL_TASKS_COMPLETED_ABOUT},
    {IDS_FONT_CAL_TASKS_UNDATED, IDS_FONT_CAL_TASKS_UNDATED_ABOUT},
    {IDS_FONT_CAL_BUSY, IDS_FONT_CAL_BUSY_ABOUT},
    {IDS_FONT_CAL_FREE, IDS_FONT_CAL_FREE_ABOUT},
    {IDS_FONT_CAL_OUT_OF_OFFICE, IDS_FONT_CAL_OUT_OF_OFFICE_ABOUT},
    {IDS_FONT_CAL_TENTATIVE, IDS_FONT_CAL_TENTATIVE_ABOUT},
    {IDS_FONT_CAL_PAST, IDS_FONT_CAL_PAST_ABOUT},
    {IDS_FONT_CAL_COMPLETED, IDS_FONT_CAL_COMPLETED_ABOUT},
    {IDS_FONT_MAIL_READ, IDS_FONT_MAIL_READ_ABOUT},
    {IDS_FONT_MAIL_UNREAD, IDS_FONT_MAIL_UNREAD_ABOUT},
    {IDS_FONT_CAL_DAY_TITLES, IDS_FONT_CAL_DAY_TITLES_ABOUT},
    {IDS_FONT_TASKS_OVERDUE, IDS_FONT_TASKS_OVERDUE_ABOUT},
    {IDS_FONT_TASKS_TODAY, IDS_FONT_TASKS_TODAY_ABOUT},
    {IDS_FONT_TASKS_NO_DUE, IDS_FONT_TASKS_NO_DUE_ABOUT},
    {IDS_FONT_TASKS_FUTURE, IDS_FONT_TASKS_FUTURE_ABOUT},
    {IDS_FONT_TASKS_TITLES, IDS_FONT_TASKS_TITLES_ABOUT},
    {IDS_FONT_NOTES, IDS_FONT_NOTES},
    {IDS_FONT_NOTES_TITLES, IDS_FONT_NOTES_TITLES},
    {IDS_FONT_CONTACTS, IDS_FONT_CONTACTS},
    {IDS_FONT_CONTACTS_TITLES, IDS_FONT_CONTACTS_TITLES},
    {IDS_FONT_MESSAGES_UNREAD, IDS_FONT_MESSAGES_UNREAD},
    {IDS_FONT_MESSAGES_READ, IDS_FONT_MESSAGES_READ},
    {IDS_FONT_MESSAGES_TITLES, IDS_FONT_MESSAGES_TITLES},
    {IDS_FONT_EVENTS, IDS_FONT_EVENTS_ABOUT},
    {IDS_FONT_EVENTS_1, IDS_FONT_EVENTS_1_ABOUT},
    {IDS_FONT_EVENTS_2, IDS_FONT_EVENTS_2_ABOUT},
    {IDS_FONT_EVENTS_3, IDS_FONT_EVENTS_3_ABOUT},
    {IDS_FONT_EVENTS_4, IDS_FONT_EVENTS_4_ABOUT},
    {IDS_FONT_EVENTS_TITLES, IDS_FONT_EVENTS_TITLES_ABOUT},
};
static_assert(std::size(kItemTexts) == static_cast<size_t>(FontId::Count));

int CALLBACK AddFace(const LOGFONT* font, const TEXTMETRIC*, DWORD, LPARAM combo) {
    AddEntry(reinterpret_cast<HWND>(combo), font->lfFaceName);
    return 1;
}

void FillFaces(HWND combo, const WideString& current) {
    HDC dc = GetDC(combo);
    EnumFonts(dc, nullptr, AddFace, reinterpret_cast<LPARAM>(combo));
    ReleaseDC(combo, dc);
    // Every face begins like an empty text.
    if (current.IsEmpty()) return;
    // The first face that begins like this, as the platform searches.
    SendMessage(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                reinterpret_cast<LPARAM>(current.CStr()));
}

void FillItems(HWND list) {
    for (const ItemTexts& item : kItemTexts)
        AddRow(list, LanguageText(item.label).CStr());
    FitColumn(list);
}

HWND ItemsOf(HWND page) {
    return Item(page, kItems);
}

// The fonts of contacts keep sizes of their own.
bool TakesGeneralSize(int font) {
    return font != static_cast<int>(FontId::FontGeneral) &&
           font != static_cast<int>(FontId::FontContactItems) &&
           font != static_cast<int>(FontId::FontContactTitles);
}

void OfferSameSize(HWND window) {
    if (!AskYesNo(window, IDS_FONTS_SAME_SIZE_QUESTION, IDS_FONTS_SAME_SIZE_CAPTION)) return;
    for (int id = 0; id < static_cast<int>(FontId::Count); ++id) {
        if (!TakesGeneralSize(id)) continue;
        FontSetting& font = *FontOfStore(id);
        font.logFont.lfHeight = settingsStore.FontGeneral.logFont.lfHeight;
        font.Set(&font.logFont, font.colour.value);
    }
    RedrawSampleBand(window);
}

// The page may be closed and gone when the dialog is.
void EditItem(HWND window) {
    FontSetting* font = FontOfStore(SelectedRow(ItemsOf(window)));
    if (!font) return;
    COLORREF colour = font->colour.value;
    if (HasOwnFonts(window)) {
        EditFontStyle(window, font->logFont, colour);
    } else {
        const COLORREF chosen = PickColour(window, colour);
        if (chosen != kPickCancelled) colour = chosen;
    }
    font->Set(&font->logFont, colour);
    RedrawSampleBand(window);
}
} // namespace

FontsPage::FontsPage() : FormPage(kTables) {}

void FontsPage::CreateControls(HWND window) {
    FormPage::CreateControls(window);
    CreateOwnMenuBar(window);
    NameItemsTab(window);
}

// The empty bar goes when there is another to take its place.
void FontsPage::CreateOwnMenuBar(HWND window) {
    HWND ownBar = CreateMenuBar(window, IDM_FONTS);
    if (!ownBar) return;
    if (menuBar) DestroyWindow(menuBar);
    menuBar = ownBar;
}

// A tab takes a new caption only as a new tab.
void FontsPage::NameItemsTab(HWND window) const {
    const UINT caption =
        HasOwnFonts(window) ? IDS_TAB_FONTS_ITEM_FONTS : IDS_TAB_FONTS_ITEM_COLOURS;
    SendMessage(tabStrip, TCM_DELETEITEM, kItemsTab, 0);
    InsertTab(tabStrip, kItemsTab, LanguageText(caption).CStr());
}

void FontsPage::ShowTab(HWND window, int showCommand) {
    FormPage::ShowTab(window, showCommand);
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

// --- Rows ----------------------------------------------------------------------------------------

void FontsPage::PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) {
    if (row.tab != kItemsTab)
        layout.AddCombo(row.labelId, LanguageText(row.text).CStr(), row.id);
    else if (row.id == kItems)
        PlaceSampleList(window, kItems, normalFont);
    else
        PlaceSampleButton(window, kEdit, LanguageText(row.text).CStr(), normalFont);
}

void FontsPage::LoadCustomRow(HWND window, const FormRow& row) {
    HWND control = Item(window, row.id);
    switch (row.id) {
    case kSize:
    case kTitleSize:
        FillFontSizes(control, (settingsStore.*row.setting).value);
        break;
    case kFace:
        FillFaces(control, (settingsStore.*row.path).value);
        break;
    case kItems:
        FillItems(control);
        break;
    default:
        break;
    }
}

void FontsPage::SaveCustomRow(HWND window, const FormRow& row) {
    HWND control = Item(window, row.id);
    switch (row.id) {
    case kSize:
    case kTitleSize:
        (settingsStore.*row.setting).Set(ChosenFontSize(control));
        break;
    case kFace:
        (settingsStore.*row.path).Set(ControlText(control, kFaceLimit).CStr());
        break;
    default:
        break; // Fonts of single items are in the store already.
    }
}

// --- The sample ----------------------------------------------------------------------------------

LRESULT FontsPage::OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    if (CurrentTab() == kItemsTab) PaintItem(window, dc);
    EndPaint(window, &paint);
    return 0;
}

void FontsPage::PaintItem(HWND window, HDC dc) const {
    constexpr int kSwatchFromRight = 104;
    constexpr int kLabelGap = 2;
    const int item = SelectedRow(ItemsOf(window));
    const FontSetting* font = FontOfStore(item);
    if (!font) return;
    const SampleBand band(window);
    const SelectScope pageFont(dc, normalFont);
    const bool hasOwnFont = HasOwnFonts(window);
    WideString header = LanguageText(hasOwnFont ? IDS_FONTS_HEADER_FONT : IDS_FONTS_HEADER_COLOUR);
    header.Append(LanguageText(kItemTexts[item].description).CStr());
    RECT place = band.Header();
    DrawText(dc, header.CStr(), -1, &place, DT_CENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (hasOwnFont) {
        const LOGFONT bounded = BoundedFont(font->logFont);
        const UniqueFont own(CreateFontIndirect(&bounded));
        const SelectScope ownFont(dc, own.Get());
        place = band.Sample();
        DrawText(dc, LanguageText(IDS_FONTS_SAMPLE).CStr(), -1, &place,
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    place = band.Swatch();
    const int swatch = place.right - Scale(kSwatchFromRight);
    DrawColourSample(dc, font->colour.value, swatch, place.top);
    place.right = swatch - Scale(kLabelGap);
    // The last letter may reach a pixel further than the platform reckons.
    DrawText(dc, LanguageText(IDS_FONTS_COLOUR).CStr(), -1, &place,
             DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
}

// --- Commands ------------------------------------------------------------------------------------

LRESULT FontsPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDC_SAME_SIZE:
        OfferSameSize(window);
        return 0;
    case kEdit:
        if (HIWORD(wParam) == BN_CLICKED) EditItem(window);
        return 0;
    case kPerItem:
        if (HIWORD(wParam) == BN_CLICKED) NameItemsTab(window);
        break;
    default:
        break;
    }
    return FormPage::OnCommand(window, message, wParam, lParam);
}

LRESULT FontsPage::OnNotify(HWND window, UINT, WPARAM, NMHDR* header) {
    RedrawOnSelection(window, kItems, *header);
    return 0;
}
