#include "pages/contacts_page.h"

#include "pages/shared_choices.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"

namespace {
// Control ids.
constexpr UINT kLayoutLabel = 1200;
constexpr UINT kLayout = 1201;
constexpr UINT kNameFormatLabel = 1202;
constexpr UINT kNameFormat = 1203;
constexpr UINT kPhoneWidthLabel = 1204;
constexpr UINT kPhoneWidth = 1205;
constexpr UINT kBreakLineLabel = 1206;
constexpr UINT kBreakLine = 1207;
constexpr UINT kCounters = 1208;
constexpr UINT kCategoryColour = 1209;
constexpr UINT kHideNoPicture = 1210;
constexpr UINT kSearchBarLabel = 1211;
constexpr UINT kSearchBar = 1212;
constexpr UINT kDPadActionLabel = 1213;
constexpr UINT kDPadAction = 1214;
constexpr UINT kTapOpens = 1215;
constexpr UINT kPreview = 1216;
constexpr UINT kFolding = 1217;
constexpr UINT kAlphabetsLabel = 1218;
constexpr UINT kAlphabets = 1219;

constexpr int kListBottom = 28; // Units from the list to the window's lower edge.

constexpr FormTab kTabs[] = {
    {IDS_TAB_CONTACTS_DISPLAY, kLayoutLabel, kHideNoPicture},
    {IDS_TAB_CONTACTS_ACTIONS, kSearchBarLabel, kFolding},
    {IDS_TAB_CONTACTS_ALPHABETS, kAlphabetsLabel, kAlphabets},
};

constexpr UINT kLayoutChoices[] = {IDS_CONTACTS_LAYOUT_ONE_LINE, IDS_CONTACTS_LAYOUT_TWO_LINES,
                                   IDS_CONTACTS_LAYOUT_PICTURES};

// In units. A width that is not among those offered has an entry of its own at the end.
void FillPhoneWidths(HWND combo) {
    constexpr uint32_t kLeast = 40;
    constexpr uint32_t kMost = 160;
    constexpr uint32_t kStep = 10;
    for (uint32_t width = kLeast; width <= kMost; width += kStep)
        AddNumberEntry(combo, width);
    const uint32_t stored = settingsStore.CntctsPhoneColumnWidth.value;
    if (!SelectData(combo, stored)) AddNumberEntry(combo, stored);
}

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kLayoutLabel,
     .id = kLayout,
     .text = IDS_CONTACTS_LAYOUT,
     .choices = kLayoutChoices,
     .setting = &SettingsStore::ContactsLayout,
     .gapAfter = -2,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kNameFormatLabel,
     .id = kNameFormat,
     .text = IDS_NAME_FORMAT,
     .choices = kNameChoices,
     .setting = &SettingsStore::CntctsTitleStruct,
     .gapAfter = -2,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Number,
     .labelId = kPhoneWidthLabel,
     .id = kPhoneWidth,
     .text = IDS_CONTACTS_PHONE_WIDTH,
     .fillChoices = FillPhoneWidths,
     .setting = &SettingsStore::CntctsPhoneColumnWidth,
     .gapAfter = -2,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kBreakLineLabel,
     .id = kBreakLine,
     .text = IDS_TITLES_BREAK_LINE,
     .choices = kBreakLineChoices,
     .setting = &SettingsStore::CntctsBreakLineStyle,
     .gapAfter = -1,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kCounters,
     .text = IDS_TITLES_COUNTERS,
     .setting = &SettingsStore::CntctsIncldCounters,
     .gapAfter = -2,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kCategoryColour,
     .text = IDS_CONTACTS_CATEGORY_COLOUR,
     .setting = &SettingsStore::ContactsTxtByCategoryClr,
     .gapAfter = -2,
     .keepsOthers = true},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kHideNoPicture,
     .text = IDS_CONTACTS_HIDE_NO_PICTURE,
     .setting = &SettingsStore::CntctsHideNoPicture,
     .keepsOthers = true},

    {.tab = 1,
     .kind = RowKind::CustomChoice,
     .labelId = kSearchBarLabel,
     .id = kSearchBar,
     .text = IDS_SEARCH_BAR},
    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kDPadActionLabel,
     .id = kDPadAction,
     .text = IDS_DPAD_ACTION,
     .choices = kDPadActionChoices,
     .setting = &SettingsStore::CntctsDPadActionOverride,
     .keepsOthers = true},
    {.tab = 1,
     .kind = RowKind::Switch,
     .id = kTapOpens,
     .text = IDS_TAP_OPENS,
     .setting = &SettingsStore::CntctsOnClickActionOpenItem,
     .keepsOthers = true},
    {.tab = 1,
     .kind = RowKind::Switch,
     .id = kPreview,
     .text = IDS_PREVIEW_ON_OPEN,
     .setting = &SettingsStore::CntctsPrvwDlgUponOpenItem,
     .keepsOthers = true},
    {.tab = 1,
     .kind = RowKind::Switch,
     .id = kFolding,
     .text = IDS_TITLES_FOLDING,
     .setting = &SettingsStore::CntctsIncldFoldBttns,
     .keepsOthers = true},

    {.tab = 2,
     .kind = RowKind::Custom,
     .labelId = kAlphabetsLabel,
     .id = kAlphabets,
     .text = IDS_CONTACTS_ALPHABETS},
};

constexpr FormTables kTables{kTabs, kRows, {}};
} // namespace

ContactsPage::ContactsPage() : FormPage(kTables) {}

void ContactsPage::PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) {
    layout.AddLabel(row.labelId, LanguageText(row.text).CStr());
    if (!Item(window, row.id)) alphabets_.Create(window, row.id, normalFont);
    alphabets_.Place(layout.RoomAbove(kListBottom));
}

void ContactsPage::LoadCustomRow(HWND window, const FormRow& row) {
    if (row.id == kAlphabets) {
        alphabets_.Fill();
        return;
    }
    searchBar_.Fill(Item(window, row.id));
}

void ContactsPage::SaveCustomRow(HWND, const FormRow& row) {
    if (row.id == kAlphabets) {
        alphabets_.Save();
        return;
    }
    searchBar_.Save();
}

LRESULT ContactsPage::OnNotify(HWND, UINT, WPARAM, NMHDR* header) {
    alphabets_.OnNotify(*header);
    return 0;
}
