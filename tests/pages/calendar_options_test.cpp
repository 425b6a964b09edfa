#include "pages/calendar_options.h"

#include <algorithm>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/pages/calendar_page_fixture.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/text_words.h"

namespace {
constexpr int kDays = 1201;
constexpr int kTaskList = 1230;
constexpr int kDayList = 1231;
constexpr int kMailList = 1233;
constexpr int kMiscellaneousList = 1234;
constexpr int kTip = 1240;
constexpr int kLabel = 1241;
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

// Each option by the setting that it edits, if any, and a word with its texts: item, label and tip,
// then the entries of its list. Where there is a "*", the rest may be anything.
struct OptionList {
    int tab;
    int id;
    std::vector<Number> settings;
    const wchar_t* texts;
};

using Store = SettingsStore;
const OptionList kLists[] = {
    {2,
     kTaskList,
     {&Store::IncldTasksInCR, &Store::IncldOverDueTsksInCR, &Store::IncldFutureTsksInCR,
      &Store::IncldUndatedTsksInCR, &Store::DatesToIncldCmpltdTsksOnClr,
      &Store::IncldPastCmpltdTsksInClndr, &Store::FutureLimitTsksOnClr, &Store::TasksSubsortOnCal,
      &Store::SkipActiveTsksWeekends, &Store::DueDateTsksDateFrmt, &Store::ShowActiveTsksOnCal,
      &Store::PaintTsksBeforeAppts, &Store::ConfirmTaskComplete},
     L"663:738:739 664:740:741 665:742:743 666:744:745 667:1225:1226|1227|1228|1229|1230| "
     L"668:748:749 1214:1231:1232|1077|1078|1079|1080|1081|1082|1083|1084| "
     L"669:750:751|752|753|754|755|756|757|758| 670:759:760|761|762|763|764| 671:765:766|* "
     L"672:767:768 673:769:770 674:771:772"},
    {3,
     kDayList,
     {&Store::DayTtlFrmt, &Store::dDayBreaker, &Store::TimeLines, &Store::ShowTomorrowTtl,
      &Store::CalendarIncldCounters, &Store::UseSmartFolding, &Store::FoldingType,
      &Store::FilterFreeApptsFromTL, &Store::ForceTodayTitleDsply, &Store::AppendDateToTodayTtl,
      &Store::AppendDaysCountTottl, &Store::AppendWeekNumTottl, &Store::TimelinesStart,
      &Store::TimelinesLength, &Store::TimelinesVertZ, &Store::TimelinesHorZ},
     L"675:773:774|* 676:775:776|109|110|111|1233| 677:777:778|779|780|781| 678:782:783 "
     L"679:784:785 680:786:787 681:788:789|790|791|792| 682:797:798 685:801:802 686:803:804 "
     L"687:805:806 688:807:808 1215:799:800|* 1216:1234:1235|* 1217:1189:1190|* 1218:1191:1192|*"},
    {5,
     kMonthList,
     {&Store::OnPopupMonthCalClick, &Store::MonthlyPopupCalDateFrmt, &Store::MonthlyStartDay,
      &Store::FirstWorkDay, &Store::MonthlyPopWithWeekNum, &Store::MonthlyPopTimelines,
      &Store::MonthlyPopCatIcons, &Store::MonthlyPopIconsSize, &Store::PopupClrDPadNavigation,
      &Store::PinnedMonthlyClr},
     L"689:809:810|811|812|813|814| 690:815:816|* 691:1193:1194|* 1219:1195:1196|* 692:819:820 "
     L"1220:1197:1198|1207|1208|1209| 1221:1199:1200 1222:1201:1202|* "
     L"1455:1455:1456|1452|1453|1454| 1223:1203:*"},
    {6,
     kMailList,
     {&Store::IncludeMainOnCal, &Store::MailHideWhenZeroMsgs, &Store::MailTitleFormat,
      &Store::MailSoftwareToUse, nullptr, &Store::HideMailTtlUnderToday,
      &Store::ShowMailCounterOnTtl},
     L"706:821:822 707:823:824 708:825:826|827|828|829|830| 709:831:832|833|834| 710::835 "
     L"711:836:837 712:838:839"},
    {8,
     kMiscellaneousList,
     {&Store::Force2DigitsTImeFrmt, &Store::SkinTodayWhenCollpsAll, &Store::HumanTime,
      &Store::HideOverDueTsksDayTtl, &Store::HideUndatedTsksDayTtl, nullptr, nullptr},
     L"693:840:841 694:845:846 696:849:850|* 697:851:852 698:853:854 699::855 1224::"},
};

// What is stored for an entry.
uint32_t ValueOf(Number setting, uint32_t entry) {
    if (setting == &Store::TimelinesVertZ || setting == &Store::TimelinesHorZ) return entry + 1;
    if (setting == &Store::MonthlyPopIconsSize)
        return static_cast<uint32_t>(Scale(6 + static_cast<int>(entry)));
    return entry;
}

void SetAll(uint32_t value) {
    for (const OptionList& list : kLists) {
        for (const Number setting : list.settings) {
            if (setting) (settingsStore.*setting).Set(value);
        }
    }
}

TEST_F(CalendarOptionsTest, EveryOptionShowsAndStoresItsOwnSetting) {
    constexpr uint32_t kUntouched = 99;
    settingsStore.dHeightLimit.Set(2000); // Enough for the pinned month.
    OpenAt(0);
    for (const OptionList& list : kLists) {
        for (size_t row = 0; row < list.settings.size(); ++row) {
            const Number setting = list.settings[row];
            if (!setting) continue;
            const auto select = [&] {
                ShowTab(list.tab);
                Select(list.id, static_cast<int>(row));
            };
            select();
            const auto last =
                IsShown(kBox) ? 1 : SendMessage(Control(kCombo), CB_GETCOUNT, 0, 0) - 1;
            ShowTab(0);
            SetAll(kUntouched);
            (settingsStore.*setting).Set(ValueOf(setting, static_cast<uint32_t>(last)));
            select();
            EXPECT_TRUE(IsShown(kTip)) << list.id << " " << row;
            EXPECT_NE(IsShown(kBox), IsShown(kCombo)) << list.id << " " << row;
            EXPECT_EQ(Shown(), static_cast<uint32_t>(last)) << list.id << " " << row;
            Change(0);
            ShowTab(0);
            EXPECT_EQ((settingsStore.*setting).value, ValueOf(setting, 0)) << list.id << " " << row;
            (settingsStore.*setting).Set(kUntouched);
            for (const OptionList& other : kLists) {
                for (const Number otherSetting : other.settings)
                    EXPECT_TRUE(!otherSetting || (settingsStore.*otherSetting).value == kUntouched)
                        << "touched by " << list.id << " " << row;
            }
        }
    }
}

TEST_F(CalendarOptionsTest, TextsAreThoseOfTheirNumbers) {
    OpenAt(0);
    EXPECT_EQ(RowsOf(Control(kTitles)), Expand(L"700|701|702|703|704|705"));
    for (const OptionList& list : kLists) {
        ShowTab(list.tab);
        std::wstring items;
        int row = 0;
        for (const std::wstring& word : Words(list.texts)) {
            const size_t item = word.find(L':');
            items += (row ? L"|" : L"") + Expand(word.substr(0, item));
            Select(list.id, row++);
            std::wstring text = L":";
            if (IsShown(kLabel)) text += TextOf(Control(kLabel));
            if (IsShown(kBox)) text += TextOf(Control(kBox));
            text += L":" + (IsShown(kTip) ? TextOf(Control(kTip)) : L"");
            if (IsShown(kCombo)) text += L"|" + EntriesOf(Control(kCombo)) + L"|";
            const std::wstring expected = Expand(word.substr(item));
            EXPECT_EQ(text.substr(0, expected.find(L'*')), expected.substr(0, expected.find(L'*')));
        }
        EXPECT_EQ(RowsOf(Control(list.id)), items);
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
    TapAndWork(kPathBrowse, L"LoadFileWin", {[&title](HWND dialog) {
                   title = TextOf(GetParent(GetParent(dialog)));
                   SetDlgItemText(dialog, kFileName, L"Own");
                   PostMessage(dialog, WM_COMMAND, IDOK, 0);
               }});
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

// Another program may close the main window, and the page with it, while the refusal is up.
enum class Refused { ByRow, ByTab, ByClosing };
class RefusalTest : public CalendarOptionsTest, public testing::WithParamInterface<Refused> {};

TEST_P(RefusalTest, SurvivesTheEndOfAllWindowsBehindIt) {
    settingsStore.dHeightLimit.Set(0);
    OpenAt(0);
    Choose(window_, kDays, 11);
    ShowTab(5);
    Select(kMonthList, 9);
    Change(1);
    int boxes = 0;
    const auto end = [&](HWND) {
        ++boxes;
        if (GetParam() == Refused::ByClosing) {
            EXPECT_FALSE(IsWindowEnabled(owner_));
            EXPECT_EQ(settingsStore.dNumOfDays.value, 12u) << "stored before the user is told";
        } else {
            Close();
        }
        DestroyWindow(owner_);
    };
    const DialogSteps steps(L"#32770", {end, end});
    if (GetParam() == Refused::ByRow) Select(kMonthList, 0);
    if (GetParam() == Refused::ByTab) ShowTab(6);
    if (GetParam() == Refused::ByClosing) Close();
    PumpMessages();
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(page_ || IsWindow(owner_));
    EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
    EXPECT_EQ(settingsStore.dNumOfDays.value, 12u);
}

INSTANTIATE_TEST_SUITE_P(Ways, RefusalTest,
                         testing::Values(Refused::ByRow, Refused::ByTab, Refused::ByClosing));
} // namespace
