#include "pages/calendar_page.h"

#include "pages/calendar_options.h"
#include "pages/title_order.h"
#include "resource_ids.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/file_dialog.h"
#include "ui/tab_strip.h"

namespace {
// Control ids; those of the option lists stand in calendar_options.h.
constexpr UINT kDaysLabel = 1200;
constexpr UINT kDays = 1201;
constexpr UINT kWeeksLabel = 1202;
constexpr UINT kWeeks = 1203;
constexpr UINT kTextColourLabel = 1204;
constexpr UINT kTextColour = 1205;
constexpr UINT kHideEmptyDays = 1206;
constexpr UINT kHideEmptyLine = 1207;
constexpr UINT kSpecialEvents = 1208;
constexpr UINT kSortTasks = 1209;
constexpr UINT kPassedLabel = 1210;
constexpr UINT kPassed = 1211;
constexpr UINT kBarsLabel = 1212;
constexpr UINT kBars = 1213;
constexpr UINT kConflictsLabel = 1214;
constexpr UINT kConflicts = 1215;
constexpr UINT kCountYears = 1216;
constexpr UINT kHideAllDayIcon = 1217;
constexpr UINT kWeatherNotice = 1218;
constexpr UINT kWeatherLayoutLabel = 1219;
constexpr UINT kWeatherLayout = 1220;
constexpr UINT kWeatherTapLabel = 1221;
constexpr UINT kWeatherTap = 1222;
constexpr UINT kPanel = 1240;
constexpr UINT kIcons = 1260;
constexpr UINT kTaskIconIds = kIcons + IconGroup::kIdCount;
constexpr UINT kDisplayFormat = kTaskIconIds + IconGroup::kIdCount;

// The tabs that are no list of options.
constexpr int kGeneralTab = 0;
constexpr int kAppointmentsTab = 1;
constexpr int kIconsTab = 4;
constexpr int kWeatherTab = 7;

constexpr int kTop = 8;
constexpr int kMargin = 10;

constexpr FormTab kTabs[] = {
    {IDS_TAB_GENERAL, kDaysLabel, kSortTasks},
    {IDS_TAB_CALENDAR_APPOINTMENTS, kPassedLabel, kHideAllDayIcon},
    {IDS_TAB_CALENDAR_TASKS, kCalendarTaskList, kCalendarTaskList},
    {IDS_TAB_CALENDAR_DAY_TITLES, kCalendarDayList, kCalendarDayList},
    {IDS_TAB_CALENDAR_ICONS, kIcons, kDisplayFormat},
    {IDS_TAB_CALENDAR_MONTH, kCalendarMonthList, kCalendarMonthList},
    {IDS_TAB_CALENDAR_MAIL, kCalendarMailList, kCalendarMailList},
    {IDS_TAB_CALENDAR_WEATHER, kWeatherNotice, kWeatherTap},
    {IDS_TAB_MISCELLANEOUS, kCalendarMiscellaneousList, kCalendarMiscellaneousList},
};

constexpr UINT kWeekChoices[] = {IDS_CALENDAR_WEEKS_DEVICE, IDS_CALENDAR_WEEKS_JANUARY,
                                 IDS_CALENDAR_WEEKS_FOUR_DAYS, IDS_CALENDAR_WEEKS_FULL};
constexpr UINT kTextColourChoices[] = {IDS_CALENDAR_TEXT_COLOUR_FONT,
                                       IDS_CALENDAR_TEXT_COLOUR_APPOINTMENTS,
                                       IDS_CALENDAR_TEXT_COLOUR_ALL};
constexpr UINT kPassedChoices[] = {IDS_CALENDAR_PASSED_SHOW, IDS_CALENDAR_PASSED_HIDE};
constexpr UINT kBarChoices[] = {IDS_CALENDAR_BARS_NONE, IDS_CALENDAR_BARS_STATUS,
                                IDS_CALENDAR_BARS_CATEGORY};
constexpr UINT kConflictChoices[] = {IDS_CALENDAR_CONFLICTS_NONE, IDS_CALENDAR_CONFLICTS_TIME,
                                     IDS_CALENDAR_CONFLICTS_ITEM};
constexpr UINT kWeatherLayoutChoices[] = {
    IDS_CALENDAR_WEATHER_LAYOUT_ONE_LINE, IDS_CALENDAR_WEATHER_LAYOUT_TWO_LINES,
    IDS_CALENDAR_WEATHER_LAYOUT_LARGE_ICONS, IDS_CALENDAR_WEATHER_LAYOUT_ICONS_ONLY};
constexpr UINT kWeatherTapChoices[] = {IDS_CALENDAR_WEATHER_TAP_NOTHING,
                                       IDS_CALENDAR_WEATHER_TAP_OPEN};

constexpr FormRow kRows[] = {
    {.tab = kGeneralTab,
     .kind = RowKind::Custom,
     .labelId = kDaysLabel,
     .id = kDays,
     .text = IDS_CALENDAR_DAYS},
    {.tab = kGeneralTab,
     .kind = RowKind::Choice,
     .labelId = kWeeksLabel,
     .id = kWeeks,
     .text = IDS_CALENDAR_WEEKS,
     .choices = kWeekChoices,
     .setting = &SettingsStore::FirstWeekInYear},
    {.tab = kGeneralTab,
     .kind = RowKind::Choice,
     .labelId = kTextColourLabel,
     .id = kTextColour,
     .text = IDS_CALENDAR_TEXT_COLOUR,
     .choices = kTextColourChoices,
     .setting = &SettingsStore::ClrTextColor},
    {.tab = kGeneralTab,
     .kind = RowKind::Check,
     .id = kHideEmptyDays,
     .text = IDS_CALENDAR_HIDE_EMPTY_DAYS,
     .setting = &SettingsStore::HideEmptyGroups,
     .gapAfter = -3},
    {.tab = kGeneralTab,
     .kind = RowKind::Check,
     .id = kHideEmptyLine,
     .text = IDS_CALENDAR_HIDE_EMPTY_LINE,
     .setting = &SettingsStore::HideEmptyGroupsItem,
     .gapAfter = -3},
    {.tab = kGeneralTab,
     .kind = RowKind::Check,
     .id = kSpecialEvents,
     .text = IDS_CALENDAR_SPECIAL_EVENTS,
     .setting = &SettingsStore::SEventsOnClr,
     .gapAfter = -3},
    {.tab = kGeneralTab,
     .kind = RowKind::Check,
     .id = kSortTasks,
     .text = IDS_CALENDAR_SORT_TASKS,
     .setting = &SettingsStore::ClrSortTsksWithAppts,
     .gapAfter = -3},

    {.tab = kAppointmentsTab,
     .kind = RowKind::Choice,
     .labelId = kPassedLabel,
     .id = kPassed,
     .text = IDS_CALENDAR_PASSED,
     .choices = kPassedChoices,
     .setting = &SettingsStore::dAppoPassedToday},
    {.tab = kAppointmentsTab,
     .kind = RowKind::Choice,
     .labelId = kBarsLabel,
     .id = kBars,
     .text = IDS_CALENDAR_BARS,
     .choices = kBarChoices,
     .setting = &SettingsStore::LeadingRects},
    {.tab = kAppointmentsTab,
     .kind = RowKind::Choice,
     .labelId = kConflictsLabel,
     .id = kConflicts,
     .text = IDS_CALENDAR_CONFLICTS,
     .choices = kConflictChoices,
     .setting = &SettingsStore::Conflicting},
    {.tab = kAppointmentsTab,
     .kind = RowKind::Check,
     .id = kCountYears,
     .text = IDS_CALENDAR_COUNT_YEARS,
     .setting = &SettingsStore::IncludeYearlyCounters,
     .gapAfter = -3},
    {.tab = kAppointmentsTab,
     .kind = RowKind::Check,
     .id = kHideAllDayIcon,
     .text = IDS_CALENDAR_HIDE_ALL_DAY_ICON,
     .setting = &SettingsStore::HideAlldayEventIcon,
     .gapAfter = -3},

    {.tab = kIconsTab, .kind = RowKind::Custom, .id = kIcons},

    {.tab = kWeatherTab,
     .kind = RowKind::Custom,
     .id = kWeatherNotice,
     .text = IDS_CALENDAR_WEATHER_MISSING},
    {.tab = kWeatherTab,
     .kind = RowKind::Choice,
     .labelId = kWeatherLayoutLabel,
     .id = kWeatherLayout,
     .text = IDS_CALENDAR_WEATHER_LAYOUT,
     .choices = kWeatherLayoutChoices,
     .setting = &SettingsStore::WeatehrLayout},
    {.tab = kWeatherTab,
     .kind = RowKind::Choice,
     .labelId = kWeatherTapLabel,
     .id = kWeatherTap,
     .text = IDS_CALENDAR_WEATHER_TAP,
     .choices = kWeatherTapChoices,
     .setting = &SettingsStore::WeatehrOnClick},
};

bool ShowsEmptyDays(HWND page) {
    return !IsBoxChecked(page, kHideEmptyDays);
}

constexpr EnablingRule kRules[] = {{kHideEmptyLine, kHideEmptyLine, ShowsEmptyDays}};

constexpr FormTables kTables{kTabs, kRows, kRules};

constexpr IconGroupTable kAppointmentIconTable{
    .left1 = {IDS_APPOINTMENT_LEFT_ICON_1, 1, &SettingsStore::ApptLeftAlignIcon1},
    .left2 = {IDS_APPOINTMENT_LEFT_ICON_2, 2, &SettingsStore::ApptLeftAlignIcon2},
    .right = {IDS_APPOINTMENT_RIGHT_ICONS, 5, &SettingsStore::ClrApptRightIcons},
    .flags = kAppointmentIconFlags,
};
constexpr IconGroupTable kTaskIconTable{
    .left1 = {IDS_TASK_LEFT_ICON_1, 3, &SettingsStore::TaskLeftAlignIcon1},
    .left2 = {IDS_TASK_LEFT_ICON_2, 4, &SettingsStore::TaskLeftAlignIcon2},
    .right = {IDS_TASK_RIGHT_ICONS, 6, &SettingsStore::ClrTaskRightIcons},
    .flags = kTaskIconFlags,
};

// 1 to 30 days, and the stored number where it is none of them.
void LoadDays(HWND combo) {
    constexpr uint32_t kMost = 30;
    const uint32_t stored = settingsStore.dNumOfDays.value;
    for (uint32_t days = 1; days <= kMost; ++days)
        AddNumberEntry(combo, days);
    if (stored < 1 || stored > kMost) AddNumberEntry(combo, stored);
    SelectData(combo, stored);
}

// The weather line comes from another product, by a library of its own.
bool HasWeather() {
    WideString path(L"\\Program Files\\Teskel\\Nimbrel\\TeskelNWUtils.dll");
    const UniqueKey key(OpenExistingKey(HKEY_CURRENT_USER, L"Software\\Teskel\\Nimbrel"));
    ReadText(key.Get(), L"NWUtilsPath", path);
    const DWORD attributes = GetFileAttributes(path.CStr());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// The page may be closed and gone when the user is done.
void BrowseMailProgram(HWND page, HWND field) {
    const WideString files = LanguageText(IDS_CALENDAR_MAIL_PATH_FILES);
    WideString path;
    if (SelectFileToOpen(page, {L"Custom Mail App.", files.CStr(), L"exe", L""}, path))
        SetWindowText(field, path.CStr());
}
} // namespace

CalendarPage::CalendarPage()
    : FormPage(kTables), appointmentIcons_(kAppointmentIconTable), taskIcons_(kTaskIconTable) {}

void CalendarPage::CreateControls(HWND window) {
    FormPage::CreateControls(window);
    // Above the lists, where it is seen, for the keys too.
    CreateTitleOrder(window, normalFont, kCalendarTitleOrder, kTop);
    optionLists_.Create(window, normalFont, CalendarOptionLists(), kPanel);
}

void CalendarPage::ShowTab(HWND window, int showCommand) {
    const int tab = CurrentTab();
    if (tab < 0 || tab >= GetTabCount()) return;
    const UINT firstId = kTabs[static_cast<size_t>(tab)].firstId;
    if (showCommand != SW_HIDE) optionLists_.Enter(window, firstId);
    if (tab == kWeatherTab && showCommand != SW_HIDE) {
        const bool hasWeather = HasWeather();
        ShowControlRange(window, hasWeather ? kWeatherLayoutLabel : kWeatherNotice,
                         hasWeather ? kWeatherTap : kWeatherNotice, showCommand);
    } else {
        FormPage::ShowTab(window, showCommand);
    }
    if (showCommand == SW_HIDE) optionLists_.Leave(window, firstId);
    InvalidateRect(window, nullptr, TRUE);
    if (showCommand != SW_HIDE) UpdateWindow(window);
}

void CalendarPage::SaveValues(HWND window, WPARAM) {
    SaveRows(window);
    ShowTab(window, SW_HIDE);
    SaveTitleOrder(window, kCalendarTitleOrder);
    // What is posted to a window that goes is lost. The page is no owner for a box any more, and
    // in the box's loop it may lose its controls.
    optionLists_.ExplainRefusal(GetParent(window));
}

void CalendarPage::PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) {
    switch (row.id) {
    case kDays:
        layout.AddCombo(row.labelId, LanguageText(row.text).CStr(), row.id);
        break;
    case kIcons:
        PlaceIcons(window, layout);
        break;
    case kWeatherNotice:
        PlaceWeatherNotice(window, layout.Y());
        break;
    default:
        break;
    }
}

void CalendarPage::PlaceIcons(HWND window, RowLayout& layout) {
    if (!Item(window, kIcons)) {
        appointmentIcons_.Create(window, normalFont, kIcons);
        taskIcons_.Create(window, normalFont, kTaskIconIds);
        displayFormat_.Create(window, normalFont, kDisplayFormat);
    }
    layout.MoveTo(appointmentIcons_.Place(window, layout.Y()));
    layout.MoveTo(taskIcons_.Place(window, layout.Y()));
    displayFormat_.Place(window, layout.Y());
}

void CalendarPage::PlaceWeatherNotice(HWND window, int top) const {
    const SIZE size = ClientSize(window);
    PutControl(window, L"STATIC", LanguageText(IDS_CALENDAR_WEATHER_MISSING).CStr(), SS_LEFT,
               kWeatherNotice,
               {Scale(kMargin), top, size.cx - Scale(2 * kMargin),
                size.cy - ScaleY(kTabStripHeight) - top},
               normalFont);
}

void CalendarPage::LoadCustomRow(HWND window, const FormRow& row) {
    if (row.id == kDays) LoadDays(Item(window, kDays));
}

void CalendarPage::SaveCustomRow(HWND window, const FormRow& row) {
    if (row.id == kDays) settingsStore.dNumOfDays.Set(SelectedData(Item(window, kDays)));
}

LRESULT CalendarPage::OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    if (CurrentTab() == kIconsTab) {
        RECT client{};
        GetClientRect(window, &client);
        displayFormat_.Paint(dc, client.right);
    }
    EndPaint(window, &paint);
    return 0;
}

LRESULT CalendarPage::OnLButtonDown(HWND, UINT, WPARAM, LPARAM lParam) {
    if (CurrentTab() == kIconsTab)
        displayFormat_.OnTap(static_cast<short>(LOWORD(lParam)),
                             static_cast<short>(HIWORD(lParam)));
    return 0;
}

LRESULT CalendarPage::OnToolbarMenuSelect(HWND, UINT, WPARAM value, LPARAM code) {
    const auto flag = static_cast<uint32_t>(value);
    if (appointmentIcons_.OnMenuSelect(code, flag) || taskIcons_.OnMenuSelect(code, flag))
        displayFormat_.RedrawSample();
    return 0;
}

LRESULT CalendarPage::OnToolbarClick(HWND, UINT, WPARAM, LPARAM code) {
    if (appointmentIcons_.OnClick(code) || taskIcons_.OnClick(code)) displayFormat_.RedrawSample();
    return 0;
}

LRESULT CalendarPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (optionLists_.OnCommand(window, id)) return 0;
    const OptionDetailPanel& panel = optionLists_.Panel();
    const bool isClick = lParam && HIWORD(wParam) == BN_CLICKED;
    if (isClick && (OnTitleOrderButton(window, kCalendarTitleOrder, id) || panel.OnButton(id)))
        return 0;
    if (!isClick || id != panel.BrowseId())
        return FormPage::OnCommand(window, message, wParam, lParam);
    BrowseMailProgram(window, panel.PathField());
    return 0;
}

LRESULT CalendarPage::Layout(HWND window) {
    FormPage::Layout(window);
    optionLists_.Place(window);
    return 0;
}

LRESULT CalendarPage::OnNotify(HWND window, UINT, WPARAM, NMHDR* header) {
    optionLists_.OnNotify(window, *header);
    return 0;
}
