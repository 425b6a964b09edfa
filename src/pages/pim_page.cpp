#include "pages/pim_page.h"

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "ui/messages.h"

namespace {
// Control ids.
constexpr UINT kApplicationLabel = 1200;
constexpr UINT kApplication = 1201;
constexpr UINT kAppointmentsLabel = 1202;
constexpr UINT kAppointments = 1203;
constexpr UINT kTasksLabel = 1204;
constexpr UINT kTasks = 1205;
constexpr UINT kOverrideIcons = 1206;
constexpr UINT kOverrideColours = 1207;
constexpr UINT kLeaveRunning = 1208;
constexpr UINT kHideLetters = 1209;

// What the settings hold.
constexpr uint32_t kDeviceApplication = 0;
constexpr uint32_t kPocketInformant = 1;
constexpr uint32_t kAgendaFusion = 2;
constexpr uint32_t kAgendaOne = 3;
constexpr uint32_t kTeskelCalendar = 4;
constexpr uint32_t kNoReminder = 949998;

constexpr FormTab kTabs[] = {
    {IDS_TAB_PIM_APPLICATION, kApplicationLabel, kTasks},
    {IDS_TAB_PIM_OPTIONS, kOverrideIcons, kHideLetters},
};

void AddText(HWND combo, UINT text, uint32_t data) {
    AddEntry(combo, LanguageText(text).CStr(), data);
}

void FillApplications(HWND combo) {
    AddText(combo, IDS_PIM_DEVICE, kDeviceApplication);
    AddText(combo, IDS_PIM_TESKEL_CALENDAR, kTeskelCalendar);
    if (SettingsStore::IsPocketInformantInstalled())
        AddText(combo, IDS_PIM_POCKET_INFORMANT, kPocketInformant);
    if (SettingsStore::IsAgendaFusionInstalled())
        AddText(combo, IDS_PIM_AGENDA_FUSION, kAgendaFusion);
    if (SettingsStore::IsAgendaOneInstalled()) AddText(combo, IDS_PIM_AGENDA_ONE, kAgendaOne);
}

struct Reminder {
    const wchar_t* count;
    UINT unit;
    uint32_t minutes;
};
constexpr Reminder kReminders[] = {
    {L"0 ", IDS_PIM_MINUTES, 0},   {L"5 ", IDS_PIM_MINUTES, 5},   {L"10 ", IDS_PIM_MINUTES, 10},
    {L"15 ", IDS_PIM_MINUTES, 15}, {L"30 ", IDS_PIM_MINUTES, 30}, {L"45 ", IDS_PIM_MINUTES, 45},
    {L"1 ", IDS_PIM_HOUR, 60},     {L"2 ", IDS_PIM_HOURS, 120},   {L"4 ", IDS_PIM_HOURS, 240},
    {L"8 ", IDS_PIM_HOURS, 480},   {L"1 ", IDS_PIM_DAY, 1440},
};

void FillAppointmentReminders(HWND combo) {
    AddText(combo, IDS_PIM_NO_REMINDER, kNoReminder);
    for (const Reminder& reminder : kReminders) {
        WideString text(reminder.count);
        text.Append(LanguageText(reminder.unit).CStr());
        AddEntry(combo, text.CStr(), reminder.minutes);
    }
}

// The time of day at which the user is reminded of a task, in half hours.
void FillTaskReminders(HWND combo) {
    constexpr int kLimit = 32;
    constexpr WORD kStep = 30;
    constexpr WORD kDay = 24 * 60;
    AddText(combo, IDS_PIM_NO_REMINDER, kNoReminder);
    SYSTEMTIME time;
    GetLocalTime(&time); // Only its time of day is written.
    for (WORD minute = 0; minute < kDay; minute = static_cast<WORD>(minute + kStep)) {
        time.wHour = minute / 60;
        time.wMinute = minute % 60;
        wchar_t text[kLimit] = L"";
        GetTimeFormat(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, text, kLimit);
        AddEntry(combo, text, minute);
    }
}

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Number,
     .labelId = kApplicationLabel,
     .id = kApplication,
     .text = IDS_PIM_APPLICATION,
     .fillChoices = FillApplications,
     .setting = &SettingsStore::PimSw,
     .fallback = kDeviceApplication},
    {.tab = 0,
     .kind = RowKind::Number,
     .labelId = kAppointmentsLabel,
     .id = kAppointments,
     .text = IDS_PIM_APPOINTMENTS,
     .fillChoices = FillAppointmentReminders,
     .setting = &SettingsStore::DefaultReminderAppts,
     .fallback = kNoReminder},
    {.tab = 0,
     .kind = RowKind::Number,
     .labelId = kTasksLabel,
     .id = kTasks,
     .text = IDS_PIM_TASKS,
     .fillChoices = FillTaskReminders,
     .setting = &SettingsStore::DefaultReminderTasks,
     .fallback = kNoReminder},

    {.tab = 1,
     .kind = RowKind::Check,
     .id = kOverrideIcons,
     .text = IDS_PIM_OVERRIDE_ICONS,
     .setting = &SettingsStore::OverridePimCatIcons},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kOverrideColours,
     .text = IDS_PIM_OVERRIDE_COLOURS,
     .setting = &SettingsStore::OverridePimCatColros},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kLeaveRunning,
     .text = IDS_PIM_LEAVE_RUNNING,
     .setting = &SettingsStore::LeaveAFRunning},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kHideLetters,
     .text = IDS_PIM_HIDE_LETTERS,
     .setting = &SettingsStore::HideABCVals},
};

bool IsDeviceApplication(HWND) {
    return settingsStore.PimSw.value == kDeviceApplication;
}
bool IsOtherApplication(HWND) {
    return settingsStore.PimSw.value != kDeviceApplication;
}
bool IsAgendaFusion(HWND) {
    return settingsStore.PimSw.value == kAgendaFusion;
}

constexpr EnablingRule kRules[] = {
    {kAppointmentsLabel, kTasks, IsDeviceApplication},
    {kOverrideIcons, kOverrideColours, IsOtherApplication},
    {kLeaveRunning, kLeaveRunning, IsAgendaFusion},
    {kHideLetters, kHideLetters, IsOtherApplication},
};

constexpr FormTables kTables{kTabs, kRows, kRules};

HWND ApplicationCombo(HWND window) {
    return Item(window, kApplication);
}

// Back to what was confirmed last: a list that is left by Escape, by a tap elsewhere or with the
// page keeps the entry that was highlighted, which nobody has checked.
void ShowConfirmed(HWND window) {
    HWND combo = ApplicationCombo(window);
    if (!SelectData(combo, settingsStore.PimSw.value)) SelectIndex(combo, 0);
}
} // namespace

PimPage::PimPage() : FormPage(kTables) {}

// A list that is open closes with its tab, and tells that nothing was chosen: so it is known of the
// PC, while a device's list may say nothing, and would have its highlighted entry saved.
void PimPage::SaveValues(HWND window, WPARAM wParam) {
    ShowTab(window, SW_HIDE);
    ShowConfirmed(window);
    FormPage::SaveValues(window, wParam);
}

LRESULT PimPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == kApplication && HIWORD(wParam) == CBN_SELENDCANCEL) ShowConfirmed(window);
    if (LOWORD(wParam) != kApplication || HIWORD(wParam) != CBN_SELENDOK)
        return FormPage::OnCommand(window, message, wParam, lParam);
    OnApplicationChosen(window);
    return 0;
}

void PimPage::OnApplicationChosen(HWND window) {
    HWND combo = ApplicationCombo(window);
    const uint32_t chosen = SelectedData(combo);
    const bool isRefused = chosen == kTeskelCalendar && !SettingsStore::IsTeskelCalendarInstalled();
    if (isRefused) SelectIndex(combo, 0);
    settingsStore.PimSw.Set(SelectedData(combo));
    ApplyRules(window);
    // Last, as the page may be closed and gone when the user is done with it.
    if (isRefused) ShowMessage(window, IDS_PIM_NOT_INSTALLED, IDS_PIM_NOT_INSTALLED_CAPTION);
}
