#include "pages/calendar_options.h"

#include "pages/calendar_samples.h"
#include "pages/shared_choices.h"
#include "pages/title_order.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"

namespace {
// An option's texts are numbered by one name.
#define OPTION_TEXTS(name)                                                                         \
    { IDS_CALENDAR_##name, IDS_CALENDAR_##name##_LABEL, IDS_CALENDAR_##name##_TIP }

constexpr UINT kCompletedChoices[] = {
    IDS_CALENDAR_TASKS_COMPLETED_NONE, IDS_CALENDAR_TASKS_COMPLETED_TODAY,
    IDS_CALENDAR_TASKS_COMPLETED_FROM_TODAY, IDS_CALENDAR_TASKS_COMPLETED_ALL};
constexpr UINT kSortChoices[] = {
    IDS_CALENDAR_TASKS_SORT_DUE,        IDS_CALENDAR_TASKS_SORT_START,
    IDS_CALENDAR_TASKS_SORT_IMPORTANCE, IDS_CALENDAR_TASKS_SORT_SUBJECT,
    IDS_CALENDAR_TASKS_SORT_CATEGORY,   IDS_CALENDAR_TASKS_SORT_COMPLETION,
    IDS_CALENDAR_TASKS_SORT_DEVICE};
constexpr UINT kSkipChoices[] = {IDS_CALENDAR_TASKS_SKIP_NONE, IDS_CALENDAR_TASKS_SKIP_SATURDAY,
                                 IDS_CALENDAR_TASKS_SKIP_SUNDAY, IDS_CALENDAR_TASKS_SKIP_BOTH};
constexpr UINT kTimeLineChoices[] = {IDS_CALENDAR_DAYS_TIME_LINES_NONE,
                                     IDS_CALENDAR_DAYS_TIME_LINES_TODAY,
                                     IDS_CALENDAR_DAYS_TIME_LINES_ALL};
constexpr UINT kMonthTapChoices[] = {IDS_CALENDAR_MONTH_TAP_GO, IDS_CALENDAR_MONTH_TAP_OPEN,
                                     IDS_CALENDAR_MONTH_TAP_NEW, IDS_CALENDAR_MONTH_TAP_NOTHING};
constexpr UINT kMonthTimeLineChoices[] = {IDS_CALENDAR_MONTH_TIME_LINES_NONE,
                                          IDS_CALENDAR_MONTH_TIME_LINES_PLAIN,
                                          IDS_CALENDAR_MONTH_TIME_LINES_COLOURS};
constexpr UINT kMonthDPadChoices[] = {IDS_CALENDAR_MONTH_DPAD_NONE, IDS_CALENDAR_MONTH_DPAD_WEEKS,
                                      IDS_CALENDAR_MONTH_DPAD_DAYS};
constexpr UINT kMailFormatChoices[] = {
    IDS_CALENDAR_MAIL_FORMAT_NEW, IDS_CALENDAR_MAIL_FORMAT_NEW_ALL,
    IDS_CALENDAR_MAIL_FORMAT_ACCOUNTS, IDS_CALENDAR_MAIL_FORMAT_KINDS};
constexpr UINT kMailProgramChoices[] = {IDS_CALENDAR_MAIL_PROGRAM_DEVICE,
                                        IDS_CALENDAR_MAIL_PROGRAM_OWN};

// What a month that stays in view needs, in pixels.
int PinnedMonthHeight() {
    constexpr int kHeight = 200;
    return ScaleY(kHeight);
}

bool IsTooLowForPinnedMonth() {
    return settingsStore.dHeightLimit.value < static_cast<uint32_t>(PinnedMonthHeight());
}

void ExplainPinnedMonth(HWND owner) {
    WideString text;
    text.Format(LanguageText(IDS_CALENDAR_MONTH_PINNED_REFUSAL).CStr(), PinnedMonthHeight());
    MessageBox(owner, text.CStr(), LanguageText(IDS_CALENDAR_MONTH_PINNED_CAPTION).CStr(), MB_OK);
}

void ShowTitleOrder(HWND page, int showCommand) {
    ShowControlRange(page, kCalendarTitleOrder, kCalendarTitleOrder + kTitleOrderIds - 1,
                     showCommand);
}

constexpr Option kTaskOptions[] = {
    {.texts = OPTION_TEXTS(TASKS_SHOW), .setting = &SettingsStore::IncldTasksInCR},
    {.texts = OPTION_TEXTS(TASKS_OVERDUE), .setting = &SettingsStore::IncldOverDueTsksInCR},
    {.texts = OPTION_TEXTS(TASKS_FUTURE), .setting = &SettingsStore::IncldFutureTsksInCR},
    {.texts = OPTION_TEXTS(TASKS_UNDATED), .setting = &SettingsStore::IncldUndatedTsksInCR},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(TASKS_COMPLETED),
     .setting = &SettingsStore::DatesToIncldCmpltdTsksOnClr,
     .choices = kCompletedChoices},
    {.texts = OPTION_TEXTS(TASKS_PAST), .setting = &SettingsStore::IncldPastCmpltdTsksInClndr},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(TASKS_LIMIT),
     .setting = &SettingsStore::FutureLimitTsksOnClr,
     .choices = kFutureLimitChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(TASKS_SORT),
     .setting = &SettingsStore::TasksSubsortOnCal,
     .choices = kSortChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(TASKS_SKIP),
     .setting = &SettingsStore::SkipActiveTsksWeekends,
     .choices = kSkipChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(TASKS_DATE),
     .setting = &SettingsStore::DueDateTsksDateFrmt,
     .fill = AddDueDates},
    {.texts = OPTION_TEXTS(TASKS_ACTIVE), .setting = &SettingsStore::ShowActiveTsksOnCal},
    {.texts = OPTION_TEXTS(TASKS_FIRST), .setting = &SettingsStore::PaintTsksBeforeAppts},
    {.texts = OPTION_TEXTS(TASKS_CONFIRM), .setting = &SettingsStore::ConfirmTaskComplete},
};

constexpr Option kDayOptions[] = {
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_DATE),
     .setting = &SettingsStore::DayTtlFrmt,
     .fill = AddDayTitleDates},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_BREAK),
     .setting = &SettingsStore::dDayBreaker,
     .choices = kBreakLineChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_TIME_LINES),
     .setting = &SettingsStore::TimeLines,
     .choices = kTimeLineChoices},
    {.texts = OPTION_TEXTS(DAYS_TOMORROW), .setting = &SettingsStore::ShowTomorrowTtl},
    {.texts = OPTION_TEXTS(DAYS_COUNTERS), .setting = &SettingsStore::CalendarIncldCounters},
    {.texts = OPTION_TEXTS(DAYS_FOLDING), .setting = &SettingsStore::UseSmartFolding},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_FOLD_START),
     .setting = &SettingsStore::FoldingType,
     .choices = kFoldingChoices},
    {.texts = OPTION_TEXTS(DAYS_FREE), .setting = &SettingsStore::FilterFreeApptsFromTL},
    {.texts = OPTION_TEXTS(DAYS_TODAY), .setting = &SettingsStore::ForceTodayTitleDsply},
    {.texts = OPTION_TEXTS(DAYS_TODAY_DATE), .setting = &SettingsStore::AppendDateToTodayTtl},
    {.texts = OPTION_TEXTS(DAYS_DISTANCE), .setting = &SettingsStore::AppendDaysCountTottl},
    {.texts = OPTION_TEXTS(DAYS_WEEK), .setting = &SettingsStore::AppendWeekNumTottl},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_LINES_START),
     .setting = &SettingsStore::TimelinesStart,
     .fill = AddStartHours},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_LINES_LENGTH),
     .setting = &SettingsStore::TimelinesLength,
     .fill = AddLengths},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_LINES_HEIGHT),
     .setting = &SettingsStore::TimelinesVertZ,
     .fill = AddFactors,
     .firstNumber = 1},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(DAYS_LINES_WIDTH),
     .setting = &SettingsStore::TimelinesHorZ,
     .fill = AddFactors,
     .firstNumber = 1},
};

constexpr Option kMonthOptions[] = {
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_TAP),
     .setting = &SettingsStore::OnPopupMonthCalClick,
     .choices = kMonthTapChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_DATE),
     .setting = &SettingsStore::MonthlyPopupCalDateFrmt,
     .fill = AddMonthDates},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_WEEK_START),
     .setting = &SettingsStore::MonthlyStartDay,
     .fill = AddWeekDays},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_WORK_START),
     .setting = &SettingsStore::FirstWorkDay,
     .fill = AddWeekDays},
    {.texts = OPTION_TEXTS(MONTH_WEEKS), .setting = &SettingsStore::MonthlyPopWithWeekNum},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_TIME_LINES),
     .setting = &SettingsStore::MonthlyPopTimelines,
     .choices = kMonthTimeLineChoices},
    {.texts = OPTION_TEXTS(MONTH_ICONS), .setting = &SettingsStore::MonthlyPopCatIcons},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MONTH_ICON_SIZE),
     .setting = &SettingsStore::MonthlyPopIconsSize,
     .fill = AddIconSizes,
     .storesData = true},
    {.kind = OptionKind::Choice,
     .texts = {IDS_CALENDAR_MONTH_DPAD, IDS_CALENDAR_MONTH_DPAD, IDS_CALENDAR_MONTH_DPAD_TIP},
     .setting = &SettingsStore::PopupClrDPadNavigation,
     .choices = kMonthDPadChoices},
    {.texts = OPTION_TEXTS(MONTH_PINNED),
     .setting = &SettingsStore::PinnedMonthlyClr,
     .tipNumber = PinnedMonthHeight,
     .refuses = IsTooLowForPinnedMonth,
     .explain = ExplainPinnedMonth},
};

constexpr Option kMailOptions[] = {
    {.texts = OPTION_TEXTS(MAIL_SHOW), .setting = &SettingsStore::IncludeMainOnCal},
    {.texts = OPTION_TEXTS(MAIL_HIDE_EMPTY), .setting = &SettingsStore::MailHideWhenZeroMsgs},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MAIL_FORMAT),
     .setting = &SettingsStore::MailTitleFormat,
     .choices = kMailFormatChoices},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MAIL_PROGRAM),
     .setting = &SettingsStore::MailSoftwareToUse,
     .choices = kMailProgramChoices},
    {.kind = OptionKind::Path,
     .texts = {IDS_CALENDAR_MAIL_PATH, 0, IDS_CALENDAR_MAIL_PATH_TIP},
     .text = &SettingsStore::MailCustomInboxStr},
    {.texts = OPTION_TEXTS(MAIL_TITLE), .setting = &SettingsStore::HideMailTtlUnderToday},
    {.texts = OPTION_TEXTS(MAIL_COUNTER), .setting = &SettingsStore::ShowMailCounterOnTtl},
};

constexpr Option kMiscellaneousOptions[] = {
    {.texts = OPTION_TEXTS(MISC_TWO_DIGITS), .setting = &SettingsStore::Force2DigitsTImeFrmt},
    {.texts = OPTION_TEXTS(MISC_SKIN), .setting = &SettingsStore::SkinTodayWhenCollpsAll},
    {.kind = OptionKind::Choice,
     .texts = OPTION_TEXTS(MISC_DAY_END),
     .setting = &SettingsStore::HumanTime,
     .fill = AddDayEnds},
    {.texts = OPTION_TEXTS(MISC_OVERDUE), .setting = &SettingsStore::HideOverDueTsksDayTtl},
    {.texts = OPTION_TEXTS(MISC_UNDATED), .setting = &SettingsStore::HideUndatedTsksDayTtl},
    {.kind = OptionKind::Text,
     .texts = {IDS_CALENDAR_MISC_PICTURE, 0, IDS_CALENDAR_MISC_PICTURE_TIP},
     .text = &SettingsStore::CustomDayttlFrmtDefault},
    {.kind = OptionKind::Custom,
     .texts = {IDS_CALENDAR_MISC_ORDER, 0, 0},
     .showCustom = ShowTitleOrder},
};

constexpr OptionList kLists[] = {
    {kCalendarTaskList, kTaskOptions},
    {kCalendarDayList, kDayOptions},
    {kCalendarMonthList, kMonthOptions},
    {kCalendarMailList, kMailOptions},
    {kCalendarMiscellaneousList, kMiscellaneousOptions},
};
} // namespace

std::span<const OptionList> CalendarOptionLists() {
    return kLists;
}
