#include "pages/calendar_options.h"

#include <algorithm>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/pages/calendar_page_fixture.h"
#include "tests/support/dialog_steps.h"

namespace {
constexpr int kDays = 1201;
constexpr int kTaskList = 1230;
constexpr int kDayList = 1231;
constexpr int kMailList = 1233;
constexpr int kMiscellaneousList = 1234;
constexpr int kTip = 1240;
constexpr int kPath = 1244;
constexpr int kPathClear = 1245;
constexpr int kPathBrowse = 1246;
constexpr int kText = 1247;
constexpr int kTextClear = 1248;
constexpr int kTitles = 1250;
constexpr int kUp = 1251;
constexpr int kDown = 1252;
constexpr int kFileName = 111; // Of the file dialog.

WideString Formatted(UINT text, int number) {
    WideString formatted;
    formatted.Format(LanguageText(text).CStr(), number);
    return formatted;
}

using CalendarOptionsTest = CalendarPageFixture;

// `shown` and `chosen` are entries, `stored` and `saved` what the registry has for them.
struct OptionCase {
    int list;
    int row;
    Number setting;
    uint32_t stored;
    uint32_t shown;
    int chosen;
    uint32_t saved;
};

std::vector<OptionCase> OptionCases() {
    using Store = SettingsStore;
    std::vector<OptionCase> cases;
    const auto box = [&](int list, int row, Number setting) {
        const uint32_t stored = 1 - (settingsStore.*setting).defaultValue;
        cases.push_back(
            {list, row, setting, stored, stored, static_cast<int>(1 - stored), 1 - stored});
    };
    const auto combo = [&](int list, int row, Number setting, uint32_t stored, uint32_t chosen) {
        cases.push_back({list, row, setting, stored, stored, static_cast<int>(chosen), chosen});
    };
    box(kTaskList, 0, &Store::IncldTasksInCR);
    box(kTaskList, 1, &Store::IncldOverDueTsksInCR);
    box(kTaskList, 2, &Store::IncldFutureTsksInCR);
    box(kTaskList, 3, &Store::IncldUndatedTsksInCR);
    combo(kTaskList, 4, &Store::DatesToIncldCmpltdTsksOnClr, 3, 1);
    box(kTaskList, 5, &Store::IncldPastCmpltdTsksInClndr);
    combo(kTaskList, 6, &Store::FutureLimitTsksOnClr, 7, 4);
    combo(kTaskList, 7, &Store::TasksSubsortOnCal, 6, 5);
    combo(kTaskList, 8, &Store::SkipActiveTsksWeekends, 3, 2);
    combo(kTaskList, 9, &Store::DueDateTsksDateFrmt, 4, 3);
    box(kTaskList, 10, &Store::ShowActiveTsksOnCal);
    box(kTaskList, 11, &Store::PaintTsksBeforeAppts);
    box(kTaskList, 12, &Store::ConfirmTaskComplete);
    combo(kDayList, 0, &Store::DayTtlFrmt, 6, 5);
    combo(kDayList, 1, &Store::dDayBreaker, 2, 1);
    combo(kDayList, 2, &Store::TimeLines, 1, 0);
    box(kDayList, 3, &Store::ShowTomorrowTtl);
    box(kDayList, 4, &Store::CalendarIncldCounters);
    box(kDayList, 5, &Store::UseSmartFolding);
    combo(kDayList, 6, &Store::FoldingType, 0, 1);
    box(kDayList, 7, &Store::FilterFreeApptsFromTL);
    box(kDayList, 8, &Store::ForceTodayTitleDsply);
    box(kDayList, 9, &Store::AppendDateToTodayTtl);
    box(kDayList, 10, &Store::AppendDaysCountTottl);
    box(kDayList, 11, &Store::AppendWeekNumTottl);
    combo(kDayList, 12, &Store::TimelinesStart, 18, 9);
    combo(kDayList, 13, &Store::TimelinesLength, 17, 2);
    cases.push_back({kDayList, 14, &Store::TimelinesVertZ, 2, 1, 0, 1});
    cases.push_back({kDayList, 15, &Store::TimelinesHorZ, 2, 1, 0, 1});
    combo(kMonthList, 0, &Store::OnPopupMonthCalClick, 3, 2);
    combo(kMonthList, 1, &Store::MonthlyPopupCalDateFrmt, 1, 0);
    combo(kMonthList, 2, &Store::MonthlyStartDay, 5, 1);
    combo(kMonthList, 3, &Store::FirstWorkDay, 4, 2);
    box(kMonthList, 4, &Store::MonthlyPopWithWeekNum);
    combo(kMonthList, 5, &Store::MonthlyPopTimelines, 0, 1);
    box(kMonthList, 6, &Store::MonthlyPopCatIcons);
    cases.push_back({kMonthList, 7, &Store::MonthlyPopIconsSize, static_cast<uint32_t>(Scale(9)), 3,
                     8, static_cast<uint32_t>(Scale(14))});
    combo(kMonthList, 8, &Store::PopupClrDPadNavigation, 1, 0);
    box(kMonthList, 9, &Store::PinnedMonthlyClr);
    box(kMailList, 0, &Store::IncludeMainOnCal);
    box(kMailList, 1, &Store::MailHideWhenZeroMsgs);
    combo(kMailList, 2, &Store::MailTitleFormat, 3, 1);
    combo(kMailList, 3, &Store::MailSoftwareToUse, 1, 0);
    box(kMailList, 5, &Store::HideMailTtlUnderToday);
    box(kMailList, 6, &Store::ShowMailCounterOnTtl);
    box(kMiscellaneousList, 0, &Store::Force2DigitsTImeFrmt);
    box(kMiscellaneousList, 1, &Store::SkinTodayWhenCollpsAll);
    combo(kMiscellaneousList, 2, &Store::HumanTime, 8, 5);
    box(kMiscellaneousList, 3, &Store::HideOverDueTsksDayTtl);
    box(kMiscellaneousList, 4, &Store::HideUndatedTsksDayTtl);
    return cases;
}

int TabOfList(int list) {
    constexpr int kTabs[] = {2, 3, 5, 6, 8};
    return kTabs[list - kTaskList];
}

TEST_F(CalendarOptionsTest, EveryOptionShowsAndStoresItsOwnSetting) {
    settingsStore.dHeightLimit.Set(2000); // Enough for the pinned month.
    const std::vector<OptionCase> cases = OptionCases();
    OpenAt(0);
    for (const OptionCase& option : cases) {
        for (const OptionCase& other : cases)
            (settingsStore.*other.setting)
                .Set(other.setting == option.setting ? option.stored : 99);
        ShowTab(TabOfList(option.list));
        Select(option.list, option.row);
        EXPECT_TRUE(IsShown(kTip)) << option.list << " " << option.row;
        EXPECT_NE(IsShown(kBox), IsShown(kCombo)) << option.list << " " << option.row;
        EXPECT_EQ(Shown(), option.shown) << option.list << " " << option.row;
        Change(option.chosen);
        ShowTab(0);
        for (const OptionCase& other : cases) {
            EXPECT_EQ((settingsStore.*other.setting).value,
                      other.setting == option.setting ? option.saved : 99U)
                << other.list << " " << other.row << " after " << option.list << " " << option.row;
        }
    }
}

TEST_F(CalendarOptionsTest, StoresAnOptionOnceWhenItLosesTheSelection) {
    settingsStore.IncldTasksInCR.Set(1);
    settingsStore.TasksSubsortOnCal.Set(2);
    OpenAt(2);
    EXPECT_FALSE(IsShown(kTip)) << "a list is entered with nothing selected";
    Select(kTaskList, 0);
    Change(0);
    EXPECT_EQ(settingsStore.IncldTasksInCR.value, 1u);
    Select(kTaskList, 7);
    EXPECT_EQ(settingsStore.IncldTasksInCR.value, 0u);
    Change(5);
    ShowTab(3);
    EXPECT_EQ(settingsStore.TasksSubsortOnCal.value, 5u);
    EXPECT_FALSE(IsShown(kTip));
    EXPECT_FALSE(IsShown(kCombo));
    // Back and away again: the panel now holds another option's value, which is none of this one's.
    Select(kDayList, 3);
    Change(1);
    ShowTab(2);
    EXPECT_EQ(SelectedRow(Control(kTaskList)), -1);
    EXPECT_EQ(FocusedRow(Control(kTaskList)), -1);
    settingsStore.TasksSubsortOnCal.Set(4);
    ShowTab(3);
    EXPECT_EQ(settingsStore.TasksSubsortOnCal.value, 4u);
    // The page may be closed with an option selected.
    Select(kDayList, 3);
    Change(0);
    Close();
    EXPECT_EQ(settingsStore.ShowTomorrowTtl.value, 0u);
}

std::wstring EntriesOfOption(HWND window, int list, int row) {
    SelectRow(GetDlgItem(window, list), row);
    return EntriesOf(GetDlgItem(window, kCombo));
}

TEST_F(CalendarOptionsTest, OffersSamplesOfDatesAndTimes) {
    OpenAt(2);
    SYSTEMTIME today;
    GetLocalTime(&today);
    const std::wstring month = std::to_wstring(today.wMonth);
    const std::wstring day = std::to_wstring(today.wDay);
    const std::wstring year = std::to_wstring(today.wYear).substr(2);
    const std::wstring dueDates = EntriesOfOption(window_, kTaskList, 9);
    EXPECT_EQ(dueDates.substr(dueDates.find(L'|')),
              L"|" + month + L"/" + day + L"/" + year + L"|" + day + L"/" + month + L"/" + year +
                  L"|" + month + L"/" + day + L"|" + day + L"/" + month);
    ShowTab(3);
    const std::wstring titles = EntriesOfOption(window_, kDayList, 0);
    EXPECT_EQ(std::count(titles.begin(), titles.end(), L'|'), 6);
    const auto twoDigits = [](const std::wstring& number) {
        return number.size() < 2 ? L"0" + number : number;
    };
    wchar_t name[32];
    GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_SABBREVDAYNAME1 + (today.wDayOfWeek + 6U) % 7, name,
                  32);
    EXPECT_EQ(titles.substr(titles.rfind(L'|') + 1).find(name + (L", " + twoDigits(day)) + L" "),
              0u);
    EXPECT_EQ(EntriesOfOption(window_, kDayList, 13),
              L"6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24");
    const std::wstring hours = EntriesOfOption(window_, kDayList, 12);
    EXPECT_EQ(std::count(hours.begin(), hours.end(), L'|'), 18);
    EXPECT_EQ(hours.find(L"12:00 AM|1:00 AM|2:00 AM|"), 0u);
    EXPECT_EQ(hours.substr(hours.rfind(L'|')), L"|6:00 PM");
    ShowTab(5);
    EXPECT_EQ(EntriesOfOption(window_, kMonthList, 1), twoDigits(month) + L"/" + twoDigits(day) +
                                                           L"|" + twoDigits(day) + L"/" +
                                                           twoDigits(month));
    EXPECT_EQ(EntriesOfOption(window_, kMonthList, 2),
              L"Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday");
}

TEST_F(CalendarOptionsTest, WritesTheEndOfTheDayByTheClock) {
    for (const bool isTwelveHours : {true, false}) {
        settingsStore.twelveHourClock = isTwelveHours;
        OpenAt(8);
        EXPECT_EQ(EntriesOfOption(window_, kMiscellaneousList, 2),
                  isTwelveHours ? L"0:00 AM|1:00 AM|2:00 AM|3:00 AM|4:00 AM|5:00 AM|6:00 AM|7:00 "
                                  L"AM|8:00 AM"
                                : L"0:00|1:00|2:00|3:00|4:00|5:00|6:00|7:00|8:00");
        Close();
    }
}

TEST_F(CalendarOptionsTest, EditsPathAndText) {
    settingsStore.MailCustomInboxStr.Set(L"\\Mail.exe");
    settingsStore.CustomDayttlFrmtDefault.Set(L"ddd d");
    OpenAt(6);
    Select(kMailList, 4);
    EXPECT_TRUE(IsShown(kPath));
    EXPECT_EQ(TextOf(Control(kPath)), L"\\Mail.exe");
    Select(kMailList, 0);
    EXPECT_FALSE(IsShown(kPath));
    EXPECT_STREQ(settingsStore.MailCustomInboxStr.value.CStr(), L"\\Mail.exe");
    Select(kMailList, 4);
    std::wstring title;
    {
        const DialogSteps choose(L"LoadFileWin", {[&title](HWND dialog) {
                                     title = TextOf(GetParent(GetParent(dialog)));
                                     SetDlgItemText(dialog, kFileName, L"Own");
                                     PostMessage(dialog, WM_COMMAND, IDOK, 0);
                                 }});
        Tap(window_, kPathBrowse);
    }
    EXPECT_EQ(title, L"Custom Mail App.");
    const std::wstring chosen = TextOf(Control(kPath));
    EXPECT_EQ(chosen.substr(chosen.rfind(L'\\')), L"\\Own.exe");
    ShowTab(7);
    EXPECT_EQ(settingsStore.MailCustomInboxStr.value.CStr(), chosen);
    ShowTab(6);
    Select(kMailList, 4);
    Tap(window_, kPathClear);
    ShowTab(8);
    EXPECT_TRUE(settingsStore.MailCustomInboxStr.value.IsEmpty());
    Select(kMiscellaneousList, 5);
    EXPECT_EQ(TextOf(Control(kText)), L"ddd d");
    Tap(window_, kTextClear);
    EXPECT_EQ(TextOf(Control(kText)), L"");
    SetWindowText(Control(kText), std::wstring(300, L'd').c_str());
    Close();
    EXPECT_EQ(settingsStore.CustomDayttlFrmtDefault.value.Length(), 255u);
}

constexpr Number kPlaces[] = {&SettingsStore::CalTitlesOrder0, &SettingsStore::CalTitlesOrder1,
                              &SettingsStore::CalTitlesOrder2, &SettingsStore::CalTitlesOrder3,
                              &SettingsStore::CalTitlesOrder4, &SettingsStore::CalTitlesOrder5};

std::string TitleOrder() {
    std::string order;
    for (const Number place : kPlaces)
        order += std::to_string((settingsStore.*place).value);
    return order;
}

TEST_F(CalendarOptionsTest, OrdersTheTitles) {
    const uint32_t stored[] = {5, 5, 9, 0, 1, 4}; // A repeated number stays, a wrong one goes.
    for (size_t i = 0; i < 6; ++i)
        (settingsStore.*kPlaces[i]).Set(stored[i]);
    OpenAt(8);
    EXPECT_FALSE(IsShown(kTitles));
    Select(kMiscellaneousList, 6);
    for (const int id : {kTitles, kUp, kDown})
        EXPECT_TRUE(IsShown(id)) << id;
    EXPECT_FALSE(IsShown(kTip));
    {
        MessageBoxAnswer answer(IDOK);
        Tap(window_, kUp);
        EXPECT_EQ(answer.count, 1);
        EXPECT_EQ(answer.text, LanguageText(IDS_NOTHING_SELECTED_TEXT).CStr());
        EXPECT_EQ(answer.caption, LanguageText(IDS_NOTHING_SELECTED_CAPTION).CStr());
    }
    Select(kTitles, 3);
    Tap(window_, kUp);
    Tap(window_, kUp);
    EXPECT_EQ(TitleOrder(), "559014") << "stored with the page";
    Select(kTitles, 0);
    Tap(window_, kDown);
    Select(kMiscellaneousList, 0);
    for (const int id : {kTitles, kUp, kDown})
        EXPECT_FALSE(IsShown(id)) << id;
    Close();
    EXPECT_EQ(TitleOrder(), "055214");
}

TEST_F(CalendarOptionsTest, RefusesAPinnedMonthThatHasNoRoom) {
    const int needed = ScaleY(200);
    settingsStore.dHeightLimit.Set(static_cast<uint32_t>(needed - 1));
    enum class Way { Row, Tab, Closing, RowAndClosing };
    for (const Way way : {Way::Row, Way::Tab, Way::Closing, Way::RowAndClosing}) {
        settingsStore.PinnedMonthlyClr.Set(1);
        OpenAt(5);
        Select(kMonthList, 9);
        EXPECT_EQ(TextOf(Control(kTip)), Formatted(IDS_CALENDAR_MONTH_PINNED_TIP, needed).CStr());
        EXPECT_EQ(Shown(), 1u);
        MessageBoxAnswer answer(IDOK);
        if (way == Way::Row || way == Way::RowAndClosing) Select(kMonthList, 0);
        if (way == Way::Tab) ShowTab(6);
        if (way == Way::Closing || way == Way::RowAndClosing) Close();
        EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
        PumpMessages();
        EXPECT_EQ(answer.count, 1);
        EXPECT_EQ(answer.text, Formatted(IDS_CALENDAR_MONTH_PINNED_REFUSAL, needed).CStr());
        EXPECT_EQ(answer.caption, LanguageText(IDS_CALENDAR_MONTH_PINNED_CAPTION).CStr());
        if (page_) Close();
        EXPECT_EQ(answer.count, 1) << "told once";
    }
    settingsStore.dHeightLimit.Set(static_cast<uint32_t>(needed));
    OpenAt(5);
    Select(kMonthList, 9);
    Change(1);
    ShowTab(6);
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 1u);
}

// Another program may close the main window while a page that is being closed has the box up.
TEST_F(CalendarOptionsTest, SurvivesTheEndOfTheMainWindowBehindTheRefusal) {
    settingsStore.dHeightLimit.Set(0);
    OpenAt(8);
    Choose(window_, kDays, 11);
    Select(kMiscellaneousList, 6);
    Select(kTitles, 0);
    Tap(window_, kDown);
    ShowTab(5);
    Select(kMonthList, 9);
    Change(1);
    static HWND mainWindow;
    mainWindow = owner_;
    SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
        if (!FindWindow(L"#32770", nullptr)) return;
        EXPECT_FALSE(IsWindowEnabled(mainWindow));
        EXPECT_EQ(settingsStore.dNumOfDays.value, 12u) << "stored before the user is told";
        EXPECT_EQ(TitleOrder(), "102345");
        KillTimer(nullptr, timer);
        DestroyWindow(mainWindow);
    });
    Close();
    EXPECT_FALSE(IsWindow(owner_));
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
    EXPECT_EQ(settingsStore.dNumOfDays.value, 12u);
    EXPECT_EQ(TitleOrder(), "102345");
}

// The same while the page itself has it up: the page and its lists go as well.
class RefusalTest : public CalendarOptionsTest, public testing::WithParamInterface<bool> {
  protected:
    static inline RefusalTest* current_;
    static inline int boxes_;

  public:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (!FindWindow(L"#32770", nullptr)) return;
        ++boxes_;
        if (!current_->page_) return;
        current_->Close();
        DestroyWindow(current_->owner_);
    }
};

TEST_P(RefusalTest, SurvivesTheEndOfThePageBehindIt) {
    settingsStore.dHeightLimit.Set(0);
    OpenAt(5);
    Select(kMonthList, 9);
    Change(1);
    current_ = this;
    boxes_ = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, OnTimer);
    if (GetParam())
        ShowTab(6);
    else
        Select(kMonthList, 0);
    PumpMessages();
    KillTimer(nullptr, timer);
    EXPECT_EQ(boxes_, 1);
    EXPECT_FALSE(page_ || IsWindow(owner_));
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
}

INSTANTIATE_TEST_SUITE_P(ByRowOrTab, RefusalTest, testing::Bool());
} // namespace
