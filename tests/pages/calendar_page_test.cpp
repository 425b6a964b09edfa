#include "pages/calendar_page.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kCalendar[] = L"Software\\Teskel\\Orvane\\Calendar";
constexpr wchar_t kUtility[] = L"\\CalendarPageTest.dll";

// Control ids.
constexpr int kDays = 1201;
constexpr int kHideEmptyDays = 1206;
constexpr int kHideEmptyLine = 1207;
constexpr int kConflicts = 1215;
constexpr int kWeatherNotice = 1218;
constexpr int kWeatherLayout = 1220;
constexpr int kWeatherTap = 1222;
constexpr int kTaskList = 1230;
constexpr int kDayList = 1231;
constexpr int kMonthList = 1232;
constexpr int kMailList = 1233;
constexpr int kMiscellaneousList = 1234;
constexpr int kTip = 1240;
constexpr int kCombo = 1242;
constexpr int kBox = 1243;
constexpr int kPath = 1244;
constexpr int kPathClear = 1245;
constexpr int kText = 1247;
constexpr int kTextClear = 1248;
constexpr int kPanelEnd = 1248;
constexpr int kTitles = 1250;
constexpr int kUp = 1251;
constexpr int kDown = 1252;
constexpr int kAppointmentRightIcons = 1265;
constexpr int kDisplayFormat = 1272;

using Number = DwordSetting SettingsStore::*;

WideString Formatted(UINT text, int number) {
    WideString formatted;
    formatted.Format(LanguageText(text).CStr(), number);
    return formatted;
}

// The page over a main window of the screen's width, with the installed libraries.
class CalendarPageTest : public RegistryFixture {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        SetText(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Orvane", L"ProgramFiles",
                L"\\Program Files");
        application.displayLibrary = LoadLibrary(L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll");
        LOGFONT font{};
        font.lfHeight = Scale(12);
        lstrcpy(font.lfFaceName, L"Tahoma");
        application.normalFont = CreateFontIndirect(&font);
        owner_ = CreateWindowEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, ScaleY(26), Scale(240),
                                ScaleY(268), nullptr, nullptr, application.instance, nullptr);
        settingsStore.Load(application.languageLibrary);
    }

    void TearDown() override {
        if (page_) Close();
        DestroyWindow(owner_);
        DeleteObject(application.normalFont);
        FreeLibrary(application.displayLibrary);
        FreeLibrary(application.languageLibrary);
        application.normalFont = nullptr;
        application.displayLibrary = application.languageLibrary = nullptr;
        DeleteFile(kUtility);
        RegistryFixture::TearDown();
    }

    void Open(int tab = 0) {
        page_.reset(CreatePage(owner_, 1));
        ASSERT_TRUE(page_ && page_->hwnd);
        window_ = page_->hwnd;
        if (tab) GoTo(tab);
    }
    void Close() {
        ClosePage(*page_);
        page_.reset();
    }
    void GoTo(int tab) {
        SendMessage(page_->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    }

    HWND Control(int id) const { return GetDlgItem(window_, id); }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)); }
    LRESULT Chosen(int id) const { return SendMessage(Control(id), CB_GETCURSEL, 0, 0); }
    // What the panel shows of the selected option's number: of its box or its drop-down list.
    uint32_t Shown() const {
        return static_cast<uint32_t>(IsShown(kBox) ? IsDlgButtonChecked(window_, kBox)
                                                   : Chosen(kCombo));
    }
    // Works the panel as a tap does.
    void Change(int entry) {
        if (IsShown(kBox))
            SendMessage(Control(kBox), BM_SETCHECK, static_cast<WPARAM>(entry), 0);
        else
            Choose(window_, kCombo, entry);
    }
    void Select(int list, int row) { SelectRow(Control(list), row); }

    HWND owner_ = nullptr;
    HWND window_ = nullptr;
    std::unique_ptr<SettingsPage> page_;
};

struct FormCase {
    int id;
    Number setting;
    bool isCombo;
    uint32_t stored;
    int chosen;
};
constexpr FormCase kFormCases[] = {
    {1203, &SettingsStore::FirstWeekInYear, true, 3, 2},
    {1205, &SettingsStore::ClrTextColor, true, 2, 1},
    {1206, &SettingsStore::HideEmptyGroups, false, 0, 1},
    {1207, &SettingsStore::HideEmptyGroupsItem, false, 1, 0},
    {1208, &SettingsStore::SEventsOnClr, false, 1, 0},
    {1209, &SettingsStore::ClrSortTsksWithAppts, false, 1, 0},
    {1211, &SettingsStore::dAppoPassedToday, true, 1, 0},
    {1213, &SettingsStore::LeadingRects, true, 2, 0},
    {1215, &SettingsStore::Conflicting, true, 0, 2},
    {1216, &SettingsStore::IncludeYearlyCounters, false, 0, 1},
    {1217, &SettingsStore::HideAlldayEventIcon, false, 1, 0},
    {1220, &SettingsStore::WeatehrLayout, true, 3, 2},
    {1222, &SettingsStore::WeatehrOnClick, true, 0, 1},
};

// One control at a time, so that two that were swapped show.
TEST_F(CalendarPageTest, EveryFormControlShowsAndSavesItsOwnSetting) {
    for (const FormCase& changed : kFormCases) {
        for (const FormCase& other : kFormCases)
            (settingsStore.*other.setting).Set(other.stored);
        Open();
        const auto message = static_cast<UINT>(changed.isCombo ? CB_GETCURSEL : BM_GETCHECK);
        EXPECT_EQ(SendMessage(Control(changed.id), message, 0, 0),
                  static_cast<LRESULT>(changed.stored));
        SendMessage(Control(changed.id), changed.isCombo ? CB_SETCURSEL : BM_SETCHECK,
                    static_cast<WPARAM>(changed.chosen), 0);
        Close();
        for (const FormCase& other : kFormCases) {
            EXPECT_EQ((settingsStore.*other.setting).value,
                      other.id == changed.id ? static_cast<uint32_t>(changed.chosen) : other.stored)
                << other.id << " after " << changed.id;
        }
    }
}

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

TEST_F(CalendarPageTest, EveryOptionShowsAndStoresItsOwnSetting) {
    settingsStore.dHeightLimit.Set(2000); // Enough for the pinned month.
    const std::vector<OptionCase> cases = OptionCases();
    Open();
    for (const OptionCase& option : cases) {
        for (const OptionCase& other : cases)
            (settingsStore.*other.setting)
                .Set(other.setting == option.setting ? option.stored : 99);
        GoTo(TabOfList(option.list));
        Select(option.list, option.row);
        EXPECT_TRUE(IsShown(kTip)) << option.list << " " << option.row;
        EXPECT_NE(IsShown(kBox), IsShown(kCombo)) << option.list << " " << option.row;
        EXPECT_EQ(Shown(), option.shown) << option.list << " " << option.row;
        Change(option.chosen);
        GoTo(0);
        for (const OptionCase& other : cases) {
            EXPECT_EQ((settingsStore.*other.setting).value,
                      other.setting == option.setting ? option.saved : 99U)
                << other.list << " " << other.row << " after " << option.list << " " << option.row;
        }
    }
}

// The rows stand in the order of their options, and each list is complete.
TEST_F(CalendarPageTest, ListsEveryOption) {
    Open();
    const struct {
        int list;
        int rows;
        UINT last;
    } lists[] = {{kTaskList, 13, IDS_CALENDAR_TASKS_CONFIRM},
                 {kDayList, 16, IDS_CALENDAR_DAYS_LINES_WIDTH},
                 {kMonthList, 10, IDS_CALENDAR_MONTH_PINNED},
                 {kMailList, 7, IDS_CALENDAR_MAIL_COUNTER},
                 {kMiscellaneousList, 7, IDS_CALENDAR_MISC_ORDER}};
    for (const auto& list : lists) {
        ASSERT_EQ(RowCount(Control(list.list)), list.rows);
        wchar_t text[128] = L"";
        LVITEM item{};
        item.pszText = text;
        item.cchTextMax = 128;
        SendMessage(Control(list.list), LVM_GETITEMTEXT, static_cast<WPARAM>(list.rows - 1),
                    reinterpret_cast<LPARAM>(&item));
        EXPECT_STREQ(text, LanguageText(list.last).CStr());
    }
}

TEST_F(CalendarPageTest, StoresAnOptionOnceWhenItLosesTheSelection) {
    settingsStore.IncldTasksInCR.Set(1);
    settingsStore.TasksSubsortOnCal.Set(2);
    Open(2);
    EXPECT_FALSE(IsShown(kTip)) << "a list is entered with nothing selected";
    Select(kTaskList, 0);
    Change(0);
    EXPECT_EQ(settingsStore.IncldTasksInCR.value, 1u);
    Select(kTaskList, 7);
    EXPECT_EQ(settingsStore.IncldTasksInCR.value, 0u);
    Change(5);
    GoTo(3);
    EXPECT_EQ(settingsStore.TasksSubsortOnCal.value, 5u);
    EXPECT_FALSE(IsShown(kTip));
    EXPECT_FALSE(IsShown(kCombo));
    // Back and away again: the panel now holds another option's value, which is none of this one's.
    Select(kDayList, 3);
    Change(1);
    GoTo(2);
    EXPECT_EQ(SelectedRow(Control(kTaskList)), -1);
    EXPECT_EQ(FocusedRow(Control(kTaskList)), -1);
    settingsStore.TasksSubsortOnCal.Set(4);
    GoTo(3);
    EXPECT_EQ(settingsStore.TasksSubsortOnCal.value, 4u);
    // The page may be closed with an option selected.
    Select(kDayList, 3);
    Change(0);
    Close();
    EXPECT_EQ(settingsStore.ShowTomorrowTtl.value, 0u);
}

TEST_F(CalendarPageTest, ShowsNumbersThatItDoesNotOffer) {
    settingsStore.dNumOfDays.Set(45);
    settingsStore.Conflicting.Set(5);
    settingsStore.MonthlyPopIconsSize.Set(static_cast<uint32_t>(Scale(14) + 1));
    Open();
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 31);
    EXPECT_EQ(TextOf(Control(kDays)), L"45");
    EXPECT_EQ(Chosen(kConflicts), -1);
    GoTo(5);
    Select(kMonthList, 7);
    EXPECT_EQ(Chosen(kCombo), 0);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 45u);
    EXPECT_EQ(settingsStore.Conflicting.value, 0xFFFFFFFFu);
    EXPECT_EQ(settingsStore.MonthlyPopIconsSize.value, static_cast<uint32_t>(Scale(6)));

    Open();
    Choose(window_, kDays, 29);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 30u) << "the number, not the entry";
    Open();
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 30);
    SendMessage(Control(kDays), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 0xFFFFFFFFu);
}

TEST_F(CalendarPageTest, HidesTheEmptyLineOnlyWhereDaysAreShown) {
    settingsStore.HideEmptyGroups.Set(1);
    Open();
    EXPECT_FALSE(IsWindowEnabled(Control(kHideEmptyLine)));
    Tap(window_, kHideEmptyDays);
    EXPECT_TRUE(IsWindowEnabled(Control(kHideEmptyLine)));
    Tap(window_, kHideEmptyDays);
    EXPECT_FALSE(IsWindowEnabled(Control(kHideEmptyLine)));
}

std::wstring EntriesOfOption(HWND window, int list, int row) {
    SelectRow(GetDlgItem(window, list), row);
    return EntriesOf(GetDlgItem(window, kCombo));
}

TEST_F(CalendarPageTest, OffersSamplesOfDatesAndTimes) {
    Open(2);
    SYSTEMTIME today;
    GetLocalTime(&today);
    const std::wstring month = std::to_wstring(today.wMonth);
    const std::wstring day = std::to_wstring(today.wDay);
    const std::wstring year = std::to_wstring(today.wYear).substr(2);
    const std::wstring dueDates = EntriesOfOption(window_, kTaskList, 9);
    EXPECT_EQ(dueDates.substr(dueDates.find(L'|')),
              L"|" + month + L"/" + day + L"/" + year + L"|" + day + L"/" + month + L"/" + year +
                  L"|" + month + L"/" + day + L"|" + day + L"/" + month);
    GoTo(3);
    const std::wstring titles = EntriesOfOption(window_, kDayList, 0);
    EXPECT_EQ(std::count(titles.begin(), titles.end(), L'|'), 6);
    const auto twoDigits = [](const std::wstring& number) {
        return number.size() < 2 ? L"0" + number : number;
    };
    wchar_t name[32];
    GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_SABBREVDAYNAME1 + (today.wDayOfWeek + 6U) % 7, name,
                  32);
    EXPECT_EQ(titles.substr(titles.rfind(L'|') + 1).find(name + (L", " + twoDigits(day)) + L" "),
              0u)
        << Formatted(0, 0).CStr();
    EXPECT_EQ(EntriesOfOption(window_, kDayList, 13),
              L"6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24");
    EXPECT_EQ(EntriesOfOption(window_, kDayList, 12).find(L"|"),
              EntriesOfOption(window_, kDayList, 12).find_first_of(L"|"));
    GoTo(5);
    EXPECT_EQ(EntriesOfOption(window_, kMonthList, 1), twoDigits(month) + L"/" + twoDigits(day) +
                                                           L"|" + twoDigits(day) + L"/" +
                                                           twoDigits(month));
    EXPECT_EQ(EntriesOfOption(window_, kMonthList, 2),
              L"Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday");
}

TEST_F(CalendarPageTest, WritesTheEndOfTheDayByTheClock) {
    for (const bool isTwelveHours : {true, false}) {
        settingsStore.twelveHourClock = isTwelveHours;
        Open(8);
        EXPECT_EQ(EntriesOfOption(window_, kMiscellaneousList, 2),
                  isTwelveHours ? L"0:00 AM|1:00 AM|2:00 AM|3:00 AM|4:00 AM|5:00 AM|6:00 AM|7:00 "
                                  L"AM|8:00 AM"
                                : L"0:00|1:00|2:00|3:00|4:00|5:00|6:00|7:00|8:00");
        Close();
    }
}

TEST_F(CalendarPageTest, EditsPathAndText) {
    settingsStore.MailCustomInboxStr.Set(L"\\Mail.exe");
    settingsStore.CustomDayttlFrmtDefault.Set(L"ddd d");
    Open(6);
    Select(kMailList, 4);
    EXPECT_TRUE(IsShown(kPath));
    EXPECT_EQ(TextOf(Control(kPath)), L"\\Mail.exe");
    Select(kMailList, 0);
    EXPECT_FALSE(IsShown(kPath));
    EXPECT_STREQ(settingsStore.MailCustomInboxStr.value.CStr(), L"\\Mail.exe");
    Select(kMailList, 4);
    Tap(window_, kPathClear);
    GoTo(8);
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

TEST_F(CalendarPageTest, OrdersTheTitles) {
    const uint32_t stored[] = {5, 5, 9, 0, 1, 4}; // A repeated number stays, a wrong one goes.
    for (size_t i = 0; i < 6; ++i)
        (settingsStore.*kPlaces[i]).Set(stored[i]);
    Open(8);
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

TEST_F(CalendarPageTest, RefusesAPinnedMonthThatHasNoRoom) {
    const int needed = ScaleY(200);
    settingsStore.dHeightLimit.Set(static_cast<uint32_t>(needed - 1));
    Open(5);
    for (const bool byClosing : {false, true}) {
        settingsStore.PinnedMonthlyClr.Set(1);
        Select(kMonthList, 9);
        EXPECT_EQ(TextOf(Control(kTip)), Formatted(IDS_CALENDAR_MONTH_PINNED_TIP, needed).CStr());
        EXPECT_EQ(Shown(), 1u);
        MessageBoxAnswer answer(IDOK);
        if (byClosing)
            Close();
        else
            Select(kMonthList, 0);
        EXPECT_EQ(answer.count, 1);
        EXPECT_EQ(answer.text, Formatted(IDS_CALENDAR_MONTH_PINNED_REFUSAL, needed).CStr());
        EXPECT_EQ(answer.caption, LanguageText(IDS_CALENDAR_MONTH_PINNED_CAPTION).CStr());
        EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
    }
    settingsStore.dHeightLimit.Set(static_cast<uint32_t>(needed));
    Open(5);
    Select(kMonthList, 9);
    Change(1);
    GoTo(6);
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 1u);
}

// Another program may close the main window while a page that is being closed has the box up.
TEST_F(CalendarPageTest, SurvivesTheEndOfTheMainWindowBehindTheRefusal) {
    settingsStore.dHeightLimit.Set(0);
    settingsStore.dNumOfDays.Set(12);
    Open(5);
    Select(kMonthList, 9);
    Change(1);
    static HWND mainWindow;
    mainWindow = owner_;
    SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
        if (!FindWindow(L"#32770", nullptr)) return;
        EXPECT_FALSE(IsWindowEnabled(mainWindow));
        KillTimer(nullptr, timer);
        DestroyWindow(mainWindow);
    });
    Close();
    EXPECT_FALSE(IsWindow(owner_));
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
    EXPECT_EQ(settingsStore.dNumOfDays.value, 12u);
    EXPECT_EQ(TitleOrder(), "012345");
}

TEST_F(CalendarPageTest, OffersTheWeatherWhereItsProductIs) {
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Nimbrel", L"NWUtilsPath", kUtility);
    settingsStore.WeatehrLayout.Set(2);
    Open();
    for (const bool isThere : {false, true, false}) {
        if (isThere)
            CloseHandle(CreateFile(kUtility, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        else
            DeleteFile(kUtility);
        GoTo(7);
        EXPECT_EQ(IsShown(kWeatherNotice), !isThere);
        for (int id = kWeatherNotice + 1; id <= kWeatherTap; ++id)
            EXPECT_EQ(IsShown(id), isThere) << id;
        GoTo(6);
        for (int id = kWeatherNotice; id <= kWeatherTap; ++id)
            EXPECT_FALSE(IsShown(id)) << id;
    }
    EXPECT_EQ(Chosen(kWeatherLayout), 2);
    Close();
    EXPECT_EQ(settingsStore.WeatehrLayout.value, 2u) << "kept where it cannot be seen";
}

TEST_F(CalendarPageTest, AnIconShowsOnOneSideOnly) {
    settingsStore.ClrApptRightIcons.Set(4 + 16);
    settingsStore.ApptLeftAlignIcon2.Set(8);
    Open(4);
    const auto choose = [this](int code, uint32_t flag) {
        SendMessage(window_, kMessageToolbarMenuSelect, flag, code);
    };
    const auto tapRight = [this](int button) {
        RECT strip{};
        GetClientRect(Control(kAppointmentRightIcons), &strip);
        const LPARAM place = MAKELPARAM(strip.right * (2 * button + 1) / 16, strip.bottom / 2);
        SendMessage(Control(kAppointmentRightIcons), WM_LBUTTONDOWN, 0, place);
        SendMessage(Control(kAppointmentRightIcons), WM_LBUTTONUP, 0, place);
        return settingsStore.ClrApptRightIcons.value;
    };
    choose(1, 4);
    EXPECT_EQ(settingsStore.ApptLeftAlignIcon1.value, 4u);
    EXPECT_EQ(settingsStore.ClrApptRightIcons.value, 16u);
    EXPECT_EQ(tapRight(2), 16u) << "4 is at the left";
    EXPECT_EQ(tapRight(3), 16u) << "8 has been there from the start";
    EXPECT_EQ(tapRight(0), 17u);
    choose(1, 8);
    EXPECT_EQ(tapRight(2), 21u) << "4 is offered again";
    choose(1, 0);
    EXPECT_EQ(tapRight(3), 21u) << "8 is still the other one's";
    choose(2, 0);
    EXPECT_EQ(tapRight(3), 29u);
    EXPECT_EQ(settingsStore.ClrTaskRightIcons.value, 383u) << "tasks have icons of their own";
    choose(3, 32);
    EXPECT_EQ(settingsStore.TaskLeftAlignIcon1.value, 32u);
    EXPECT_EQ(settingsStore.ClrTaskRightIcons.value, 383u - 32);
    choose(4, 256);
    EXPECT_EQ(settingsStore.TaskLeftAlignIcon2.value, 256u);
}

TEST_F(CalendarPageTest, StepsThroughTheDisplayFormats) {
    settingsStore.ApptDisplayFormat.Set(1);
    Open(4);
    RECT text{};
    GetWindowRect(Control(kDisplayFormat), &text);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&text), 2);
    const int top = text.top;
    const auto tap = [&](int x, int y) {
        SendMessage(window_, WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
        return settingsStore.ApptDisplayFormat.value;
    };
    for (uint32_t format = 2; format <= 12; ++format)
        EXPECT_EQ(tap(Scale(16), top + 1), format);
    EXPECT_EQ(tap(Scale(26) - 1, top + ScaleY(12) - 1), 1u);
    EXPECT_EQ(tap(Scale(16) - 1, top + 1), 12u);
    EXPECT_EQ(tap(Scale(6), top + 1), 11u);
    for (const POINT& beside : {POINT{Scale(6) - 1, top + 1}, POINT{Scale(26), top + 1},
                                POINT{Scale(10), top}, POINT{Scale(10), top + ScaleY(12)}})
        EXPECT_EQ(tap(beside.x, beside.y), 11u);
    SendMessage(Control(kDisplayFormat), WM_KEYDOWN, VK_RIGHT, 0);
    SendMessage(Control(kDisplayFormat), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(settingsStore.ApptDisplayFormat.value, 1u);
    SendMessage(Control(kDisplayFormat), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_EQ(settingsStore.ApptDisplayFormat.value, 12u);
    settingsStore.ApptDisplayFormat.Set(0xFFFFFFFF);
    EXPECT_EQ(tap(Scale(20), top + 1), 1u);
    GoTo(0);
    EXPECT_EQ(tap(Scale(20), top + 1), 1u) << "on this section only";
}

// On every section and screen, what is shown lies on the page, off the tab strip and off each
// other; also after the screen was turned.
TEST_F(CalendarPageTest, FitsEveryScreen) {
    Open();
    const SIZE sizes[] = {{240, 268}, {320, 188}, {240, 240}, {240, 268}};
    for (const SIZE& size : sizes) {
        MoveWindow(window_, 0, 0, Scale(size.cx), ScaleY(size.cy), TRUE);
        for (int tab = 0; tab < 9; ++tab) {
            GoTo(tab);
            RECT page{};
            GetClientRect(window_, &page);
            page.bottom -= ScaleY(22) - 1;
            std::vector<RECT> places;
            for (HWND child = GetWindow(window_, GW_CHILD); child;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                if (!IsWindowVisible(child) || child == page_->tabStrip) continue;
                RECT place{};
                RECT common{};
                GetWindowRect(child, &place);
                MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
                IntersectRect(&common, &place, &page);
                EXPECT_TRUE(EqualRect(&common, &place))
                    << GetDlgCtrlID(child) << " on " << size.cx << "x" << size.cy;
                for (const RECT& other : places)
                    EXPECT_FALSE(IntersectRect(&common, &place, &other))
                        << GetDlgCtrlID(child) << " on " << size.cx << "x" << size.cy;
                places.push_back(place);
            }
            EXPECT_FALSE(places.empty());
            if (tab != 4) continue;
            // The sample hangs below the last control: a line of text, a gap and its own height.
            EXPECT_LE(places.back().top + ScaleY(12 + 4 + 42), page.bottom) << size.cx;
        }
    }
}
} // namespace
