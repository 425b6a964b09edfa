#include "pages/special_events_page.h"

#include "files/category_store.h"
#include "pages/shared_choices.h"
#include "resource_ids.h"
#include "shell/services/number_text.h"
#include "shell/services/resource_strings.h"

namespace {
// Control ids.
constexpr UINT kShowLabel = 1200;
constexpr UINT kShow = 1201;
constexpr UINT kAlertLabel = 1202;
constexpr UINT kAlert = 1203;
constexpr UINT kDateFormatLabel = 1204;
constexpr UINT kDateFormat = 1205;
constexpr UINT kNameFormatLabel = 1206;
constexpr UINT kNameFormat = 1207;
constexpr UINT kDaySpanLabel = 1208;
constexpr UINT kDaySpan = 1209;
constexpr UINT kFilterAlertLabel = 1210;
constexpr UINT kFilterAlert = 1211;
constexpr UINT kCategoryLabel1 = 1212;
constexpr UINT kCategory1 = 1213;
constexpr UINT kCategoryLabel2 = 1214;
constexpr UINT kCategory2 = 1215;
constexpr UINT kCategoryLabel3 = 1216;
constexpr UINT kCategory3 = 1217;
constexpr UINT kCategoryLabel4 = 1218;
constexpr UINT kCategory4 = 1219;
constexpr UINT kBreakLineLabel = 1220;
constexpr UINT kBreakLine = 1221;
constexpr UINT kFolding = 1222;
constexpr UINT kCounters = 1223;

constexpr FormTab kTabs[] = {
    {IDS_TAB_SEVENTS_DISPLAY, kShowLabel, kNameFormat},
    {IDS_TAB_SEVENTS_FILTERS, kDaySpanLabel, kCategory4},
    {IDS_TAB_TITLES, kBreakLineLabel, kCounters},
};

constexpr UINT kShowChoices[] = {IDS_SEVENTS_SHOW_BIRTHDAYS, IDS_SEVENTS_SHOW_ANNIVERSARIES,
                                 IDS_SEVENTS_SHOW_BOTH};
constexpr UINT kDateChoices[] = {IDS_SEVENTS_DATE_DEVICE};

// The setting counts from 0.
void FillAlertDays(HWND combo) {
    constexpr int kMostDays = 16;
    for (int days = 1; days <= kMostDays; ++days)
        AddEntry(combo, DecimalText(days).CStr());
}

void FillDaySpans(HWND combo) {
    for (const uint32_t days : {15U, 30U, 60U, 120U, 365U})
        AddEntry(combo, DecimalText(static_cast<int32_t>(days)).CStr(), days);
}

// Today, in each of the pictures.
void FillDateSamples(HWND combo) {
    constexpr int kLimit = 32;
    for (const wchar_t* picture : {L"MM/dd", L"MM/dd/yy", L"dd/MM", L"dd/MM/yy"}) {
        wchar_t text[kLimit] = L"";
        GetDateFormat(LOCALE_USER_DEFAULT, 0, nullptr, picture, text, kLimit);
        AddEntry(combo, text);
    }
}

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kShowLabel,
     .id = kShow,
     .text = IDS_SEVENTS_SHOW,
     .choices = kShowChoices,
     .setting = &SettingsStore::SEventDays},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kAlertLabel,
     .id = kAlert,
     .text = IDS_SEVENTS_ALERT,
     .fillChoices = FillAlertDays,
     .setting = &SettingsStore::SEAlertBeforeDays},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kDateFormatLabel,
     .id = kDateFormat,
     .text = IDS_SEVENTS_DATE_FORMAT,
     .choices = kDateChoices,
     .fillChoices = FillDateSamples,
     .setting = &SettingsStore::SEDateFormat},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kNameFormatLabel,
     .id = kNameFormat,
     .text = IDS_NAME_FORMAT,
     .choices = kNameChoices,
     .setting = &SettingsStore::SEContactFormat},

    {.tab = 1,
     .kind = RowKind::Number,
     .labelId = kDaySpanLabel,
     .id = kDaySpan,
     .text = IDS_SEVENTS_DAY_SPAN,
     .fillChoices = FillDaySpans,
     .setting = &SettingsStore::SEApptsDaySpan,
     .fallback = 30},
    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kFilterAlertLabel,
     .id = kFilterAlert,
     .text = IDS_SEVENTS_FILTER_ALERT,
     .fillChoices = FillAlertDays,
     .setting = &SettingsStore::SEFilterAlertBeforeDays},
    {.tab = 1,
     .kind = RowKind::CustomChoice,
     .labelId = kCategoryLabel1,
     .id = kCategory1,
     .text = IDS_SEVENTS_CATEGORY_1,
     .path = &SettingsStore::AdditionalFilterCat1},
    {.tab = 1,
     .kind = RowKind::CustomChoice,
     .labelId = kCategoryLabel2,
     .id = kCategory2,
     .text = IDS_SEVENTS_CATEGORY_2,
     .path = &SettingsStore::AdditionalFilterCat2},
    {.tab = 1,
     .kind = RowKind::CustomChoice,
     .labelId = kCategoryLabel3,
     .id = kCategory3,
     .text = IDS_SEVENTS_CATEGORY_3,
     .path = &SettingsStore::AdditionalFilterCat3},
    {.tab = 1,
     .kind = RowKind::CustomChoice,
     .labelId = kCategoryLabel4,
     .id = kCategory4,
     .text = IDS_SEVENTS_CATEGORY_4,
     .path = &SettingsStore::AdditionalFilterCat4},

    {.tab = 2,
     .kind = RowKind::Choice,
     .labelId = kBreakLineLabel,
     .id = kBreakLine,
     .text = IDS_TITLES_BREAK_LINE,
     .choices = kBreakLineChoices,
     .setting = &SettingsStore::BreakLineStyle},
    {.tab = 2,
     .kind = RowKind::Check,
     .id = kFolding,
     .text = IDS_TITLES_FOLDING,
     .setting = &SettingsStore::IncldFoldBttns},
    {.tab = 2,
     .kind = RowKind::Check,
     .id = kCounters,
     .text = IDS_TITLES_COUNTERS,
     .setting = &SettingsStore::SEventsIncldCounters},
};

constexpr FormTables kTables{kTabs, kRows, {}};
} // namespace

SpecialEventsPage::SpecialEventsPage() : FormPage(kTables) {}

void SpecialEventsPage::LoadCustomRow(HWND window, const FormRow& row) {
    HWND combo = Item(window, row.id);
    AddEntry(combo, LanguageText(IDS_CHOICE_OFF).CStr());
    for (const auto& category : categoryStore.All())
        AddEntry(combo, category->name.CStr());
    const wchar_t* name = (settingsStore.*row.path).value.CStr();
    // Begins behind the first entry: a category may be called what that one says.
    const LRESULT entry = SendMessage(combo, CB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(name));
    SelectIndex(combo, entry < 0 ? 0 : static_cast<uint32_t>(entry));
}

void SpecialEventsPage::SaveCustomRow(HWND window, const FormRow& row) {
    const int entry = SelectedIndex(window, row.id);
    const auto category = static_cast<size_t>(entry - 1);
    const bool isNamed = entry > 0 && category < categoryStore.All().size();
    (settingsStore.*row.path).Set(isNamed ? categoryStore.All()[category]->name.CStr() : L"");
}
