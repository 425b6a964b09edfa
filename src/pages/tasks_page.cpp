#include "pages/tasks_page.h"

#include "pages/shared_choices.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"

namespace {
// Control ids.
constexpr UINT kDateFormatLabel = 1200;
constexpr UINT kDateFormat = 1201;
constexpr UINT kFutureLimitLabel = 1202;
constexpr UINT kFutureLimit = 1203;
constexpr UINT kHideCompleted = 1204;
constexpr UINT kHidePastCompleted = 1205;
constexpr UINT kConfirm = 1206;
constexpr UINT kNoUndatedPrefix = 1207;
constexpr UINT kHideUndated = 1208;
constexpr UINT kBreakLineLabel = 1209;
constexpr UINT kBreakLine = 1210;
constexpr UINT kFoldStartLabel = 1211;
constexpr UINT kFoldStart = 1212;
constexpr UINT kFolding = 1213;
constexpr UINT kCounters = 1214;
constexpr UINT kIcons = 1215; // The first of the icon group's.
constexpr UINT kCustomDate = kIcons + IconGroup::kIdCount;
constexpr UINT kCustomStartLabel = kCustomDate + 1;
constexpr UINT kCustomStart = kCustomDate + 2;
constexpr UINT kCustomDueLabel = kCustomDate + 3;
constexpr UINT kCustomDue = kCustomDate + 4;
constexpr UINT kCustomShowLabel = kCustomDate + 5;
constexpr UINT kCustomShow = kCustomDate + 6;

constexpr int kIconsTab = 2;
constexpr int kSampleGap = 8;
constexpr int8_t kTextRow = 42; // The height of a row of texts.

constexpr FormTab kTabs[] = {
    {IDS_TAB_TASKS_GENERAL, kDateFormatLabel, kHideUndated},
    {IDS_TAB_TITLES, kBreakLineLabel, kCounters},
    {IDS_TAB_TASKS_ICONS, kIcons, kIcons + IconGroup::kIdCount - 1},
    {IDS_TAB_TASKS_DATES, kCustomDate, kCustomShow},
};

constexpr UINT kCustomShowChoices[] = {IDS_TASKS_CUSTOM_DATE_SHOW_START,
                                       IDS_TASKS_CUSTOM_DATE_SHOW_DUE,
                                       IDS_TASKS_CUSTOM_DATE_SHOW_BOTH};

// How a task's dates are written; null for the date that is left out.
struct DatePictures {
    const wchar_t* start;
    const wchar_t* due;
};

// The setting holds the index. The slash is quoted, so that no locale replaces it.
constexpr DatePictures kDatePictures[] = {
    {L"M'/'d", L"M'/'d'/'yy"}, {L"M'/'d", L"M'/'d"}, {L"M'/'d'/'yy", nullptr},
    {nullptr, L"M'/'d'/'yy"},  {L"M'/'d", nullptr},  {nullptr, L"M'/'d"},
    {L"d'/'M", L"d'/'M'/'yy"}, {L"d'/'M", L"d'/'M"}, {L"d'/'M'/'yy", nullptr},
    {nullptr, L"d'/'M'/'yy"},  {L"d'/'M", nullptr},  {nullptr, L"d'/'M"},
};

SYSTEMTIME DaysAfter(const SYSTEMTIME& day, int days) {
    constexpr ULONGLONG kTicksPerDay = 24ULL * 60 * 60 * 10'000'000;
    FILETIME file{};
    SystemTimeToFileTime(&day, &file);
    ULARGE_INTEGER ticks;
    ticks.LowPart = file.dwLowDateTime;
    ticks.HighPart = file.dwHighDateTime;
    ticks.QuadPart += static_cast<ULONGLONG>(days) * kTicksPerDay;
    file = {ticks.LowPart, ticks.HighPart};
    SYSTEMTIME later{};
    FileTimeToSystemTime(&file, &later);
    return later;
}

WideString DateText(const SYSTEMTIME& date, const wchar_t* picture) {
    constexpr int kLimit = 32;
    wchar_t text[kLimit] = L"";
    GetDateFormat(LOCALE_USER_DEFAULT, 0, &date, picture, text, kLimit);
    return WideString(text);
}

WideString DateSample(const DatePictures& pictures, const SYSTEMTIME& start,
                      const SYSTEMTIME& due) {
    WideString sample;
    if (pictures.start)
        sample = DateText(start, pictures.start);
    else
        sample = LanguageText(IDS_TASKS_DATE_DUE);
    sample.Append(pictures.start && pictures.due ? L" - " : L" ");
    if (pictures.due)
        sample.Append(DateText(due, pictures.due).CStr());
    else
        sample.Append(LanguageText(IDS_TASKS_DATE_START).CStr());
    return sample;
}

// How a task that starts today and is due in a week would be dated.
void FillDateSamples(HWND combo) {
    constexpr int kWeek = 7;
    SYSTEMTIME today;
    GetLocalTime(&today);
    const SYSTEMTIME due = DaysAfter(today, kWeek);
    for (const DatePictures& pictures : kDatePictures)
        AddEntry(combo, DateSample(pictures, today, due).CStr());
}

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kDateFormatLabel,
     .id = kDateFormat,
     .text = IDS_TASKS_DATE_FORMAT,
     .fillChoices = FillDateSamples,
     .setting = &SettingsStore::TsksDateFrmt},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kFutureLimitLabel,
     .id = kFutureLimit,
     .text = IDS_TASKS_FUTURE_LIMIT,
     .choices = kFutureLimitChoices,
     .setting = &SettingsStore::TsksLimitFutureDate},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kHideCompleted,
     .text = IDS_TASKS_HIDE_COMPLETED,
     .setting = &SettingsStore::HideCompletedTasks,
     .gapAfter = -2},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kHidePastCompleted,
     .text = IDS_TASKS_HIDE_PAST_COMPLETED,
     .setting = &SettingsStore::HidePastCompletedTasks,
     .gapAfter = -2},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kConfirm,
     .text = IDS_TASKS_CONFIRM,
     .setting = &SettingsStore::ConfirmTaskCompleteTsks,
     .gapAfter = -2},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kNoUndatedPrefix,
     .text = IDS_TASKS_NO_UNDATED_PREFIX,
     .setting = &SettingsStore::RemoveUndatedLeadingStr,
     .gapAfter = -2},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kHideUndated,
     .text = IDS_TASKS_HIDE_UNDATED,
     .setting = &SettingsStore::RemoveUndatedTsks},

    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kBreakLineLabel,
     .id = kBreakLine,
     .text = IDS_TITLES_BREAK_LINE,
     .choices = kBreakLineChoices,
     .setting = &SettingsStore::TsksLineBreaker},
    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kFoldStartLabel,
     .id = kFoldStart,
     .text = IDS_TITLES_FOLD_START,
     .choices = kFoldingChoices,
     .setting = &SettingsStore::TsksFoldingType},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kFolding,
     .text = IDS_TITLES_FOLDING,
     .setting = &SettingsStore::TsksUseSmartFolding,
     .gapAfter = -2},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kCounters,
     .text = IDS_TITLES_COUNTERS,
     .setting = &SettingsStore::IncludeCountersTsks},

    {.tab = kIconsTab, .kind = RowKind::Custom, .id = kIcons},

    {.tab = 3,
     .kind = RowKind::Check,
     .id = kCustomDate,
     .text = IDS_TASKS_CUSTOM_DATE,
     .setting = &SettingsStore::UseCustomDateTsks,
     .gapAfter = -2},
    {.tab = 3,
     .kind = RowKind::Text,
     .labelId = kCustomStartLabel,
     .id = kCustomStart,
     .text = IDS_TASKS_CUSTOM_DATE_START,
     .path = &SettingsStore::CustomDateFrmtStart,
     .gapAfter = -kTextRow},
    {.tab = 3,
     .kind = RowKind::Text,
     .labelId = kCustomDueLabel,
     .id = kCustomDue,
     .text = IDS_TASKS_CUSTOM_DATE_DUE,
     .path = &SettingsStore::CustomDateFrmtEnd,
     .column = 1},
    {.tab = 3,
     .kind = RowKind::Choice,
     .labelId = kCustomShowLabel,
     .id = kCustomShow,
     .text = IDS_TASKS_CUSTOM_DATE_SHOW,
     .choices = kCustomShowChoices,
     .setting = &SettingsStore::TsksCustomDateStruct},
};

bool HasCustomDate(HWND page) {
    return IsBoxChecked(page, kCustomDate);
}

constexpr EnablingRule kRules[] = {{kCustomStartLabel, kCustomShow, HasCustomDate}};

constexpr FormTables kTables{kTabs, kRows, kRules};

constexpr IconGroupTable kIconTable{
    .left1 = {IDS_TASK_LEFT_ICON_1, 1, &SettingsStore::TaskTabLeftAlignIcon1},
    .left2 = {IDS_TASK_LEFT_ICON_2, 2, &SettingsStore::TaskTabLeftAlignIcon2},
    .right = {IDS_TASK_RIGHT_ICONS, 3, &SettingsStore::TasksRightIcons},
    .flags = kTaskIconFlags,
};
} // namespace

TasksPage::TasksPage() : FormPage(kTables), icons_(kIconTable), sample_(settingsStore) {}

void TasksPage::PlaceCustomRow(HWND window, const FormRow&, RowLayout& layout) {
    if (!Item(window, kIcons)) icons_.Create(window, normalFont, kIcons);
    layout.MoveTo(icons_.Place(window, layout.Y()));
    layout.Skip(kSampleGap);
    sampleTop_ = layout.Y();
}

void TasksPage::ShowTab(HWND window, int showCommand) {
    FormPage::ShowTab(window, showCommand);
    if (CurrentTab() == kIconsTab) InvalidateRect(window, nullptr, TRUE);
}

LRESULT TasksPage::OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    if (CurrentTab() == kIconsTab) {
        RECT client{};
        GetClientRect(window, &client);
        sample_.PaintTask(dc, sampleTop_, client.right, LanguageText(IDS_TASKS_SAMPLE));
    }
    EndPaint(window, &paint);
    return 0;
}

LRESULT TasksPage::OnToolbarMenuSelect(HWND window, UINT, WPARAM value, LPARAM code) {
    if (icons_.OnMenuSelect(code, static_cast<uint32_t>(value)))
        ItemSample::Redraw(window, sampleTop_);
    return 0;
}

LRESULT TasksPage::OnToolbarClick(HWND window, UINT, WPARAM, LPARAM code) {
    if (icons_.OnClick(code)) ItemSample::Redraw(window, sampleTop_);
    return 0;
}
