#include "pages/calendar_options.h"

#include "tests/pages/calendar_page_fixture.h"
#include "tests/support/text_words.h"

namespace {
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

using CalendarOptionsTest = CalendarPageFixture;
using Number = DwordSetting SettingsStore::*;

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
     L"687:805:806 688:807:808 1215:799:800|12:00_AM|1:00_AM|2:00_AM|3:00_AM|4:00_AM|5:00_AM|"
     L"6:00_AM|7:00_AM|8:00_AM|9:00_AM|10:00_AM|11:00_AM|12:00_PM|1:00_PM|2:00_PM|3:00_PM|4:00_PM|"
     L"5:00_PM|6:00_PM| "
     L"1216:1234:1235|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24| "
     L"1217:1189:1190|1|2| 1218:1191:1192|1|2|"},
    {5,
     kMonthList,
     {&Store::OnPopupMonthCalClick, &Store::MonthlyPopupCalDateFrmt, &Store::MonthlyStartDay,
      &Store::FirstWorkDay, &Store::MonthlyPopWithWeekNum, &Store::MonthlyPopTimelines,
      &Store::MonthlyPopCatIcons, &Store::MonthlyPopIconsSize, &Store::PopupClrDPadNavigation,
      &Store::PinnedMonthlyClr},
     L"689:809:810|811|812|813|814| 690:815:816|* "
     L"691:1193:1194|Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday| "
     L"1219:1195:1196|Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday| 692:819:820 "
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
     L"693:840:841 694:845:846 "
     L"696:849:850|0:00_AM|1:00_AM|2:00_AM|3:00_AM|4:00_AM|5:00_AM|6:00_AM|7:00_AM|8:00_AM| "
     L"697:851:852 698:853:854 699::855 1224::"},
};

// What is stored for an entry.
uint32_t ValueOf(Number setting, uint32_t entry) {
    if (setting == &Store::TimelinesVertZ || setting == &Store::TimelinesHorZ) return entry + 1;
    if (setting == &Store::MonthlyPopIconsSize)
        return static_cast<uint32_t>(Scale(6 + static_cast<int>(entry)));
    return entry;
}

// Every number but one is that of a first entry.
void SetAllBut(Number one) {
    for (const OptionList& list : kLists) {
        for (const Number setting : list.settings) {
            if (setting) (settingsStore.*setting).Set(ValueOf(setting, setting == one));
        }
    }
}

TEST_F(CalendarOptionsTest, EachHasItsTextsAndItsOwnSetting) {
    settingsStore.dHeightLimit.Set(2000); // Enough for the pinned month.
    settingsStore.twelveHourClock = true;
    OpenAt(0);
    EXPECT_EQ(RowsOf(Control(kTitles)), Expand(L"700|701|702|703|704|705"));
    for (const OptionList& list : kLists) {
        std::wstring items;
        int row = 0;
        for (const std::wstring& word : Words(list.texts)) {
            const Number setting = list.settings[static_cast<size_t>(row)];
            SetAllBut(setting);
            ShowTab(list.tab);
            Select(list.id, row);
            const size_t item = word.find(L':');
            items += (row++ ? L"|" : L"") + Expand(word.substr(0, item));
            std::wstring text = L":";
            if (IsShown(kLabel)) text += TextOf(Control(kLabel));
            if (IsShown(kBox)) text += TextOf(Control(kBox));
            text += L":" + (IsShown(kTip) ? TextOf(Control(kTip)) : L"");
            if (IsShown(kCombo)) text += L"|" + EntriesOf(Control(kCombo)) + L"|";
            const std::wstring expected = Expand(word.substr(item));
            EXPECT_EQ(text.substr(0, expected.find(L'*')), expected.substr(0, expected.find(L'*')));
            if (!setting) continue;
            EXPECT_EQ(Shown(), 1u) << list.id << " " << row;
            Change(0);
            ShowTab(0);
            EXPECT_EQ((settingsStore.*setting).value, ValueOf(setting, 0)) << list.id << " " << row;
        }
        EXPECT_EQ(RowsOf(Control(list.id)), items);
    }
}

TEST_F(CalendarOptionsTest, OfferDatesAndTimesAsTheyAre) {
    settingsStore.twelveHourClock = false;
    OpenAt(2);
    const auto entries = [this](int list, int row) {
        Select(list, row);
        return EntriesOf(Control(kCombo));
    };
    const auto today = [](const wchar_t* picture) {
        wchar_t text[64] = L"";
        GetDateFormat(LOCALE_USER_DEFAULT, 0, nullptr, picture, text, 64);
        return L"|" + std::wstring(text);
    };
    const std::wstring due = entries(kTaskList, 9);
    EXPECT_EQ(due.substr(due.find(L'|')),
              today(L"M'/'d'/'yy") + today(L"d'/'M'/'yy") + today(L"M'/'d") + today(L"d'/'M"));
    ShowTab(3);
    const std::wstring titles = L"|" + entries(kDayList, 0);
    EXPECT_EQ(titles.find(today(L"dddd',' MMM dd yyyy") + today(L"dddd',' MMM dd") +
                          today(L"ddd',' MMM dd yyyy") + today(L"ddd',' MMM dd") + L"|"),
              0u);
    EXPECT_EQ(titles.substr(titles.rfind(L'|')), today(L"ddd',' dd MMM yyyy"));
    ShowTab(5);
    EXPECT_EQ(L"|" + entries(kMonthList, 1), today(L"MM'/'dd") + today(L"dd'/'MM"));
    ShowTab(8);
    EXPECT_EQ(entries(kMiscellaneousList, 2), L"0:00|1:00|2:00|3:00|4:00|5:00|6:00|7:00|8:00");
}

TEST_F(CalendarOptionsTest, AreStoredOnceWhenTheyLoseTheSelection) {
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
    EXPECT_FALSE(IsShown(kTip) || IsShown(kCombo));
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

TEST_F(CalendarOptionsTest, MayBePathsAndTexts) {
    const StringSetting& mailProgram = settingsStore.MailCustomInboxStr;
    settingsStore.MailCustomInboxStr.Set(L"\\Mail.exe");
    settingsStore.CustomDayttlFrmtDefault.Set(L"ddd d");
    OpenAt(6);
    Select(kMailList, 4);
    EXPECT_EQ(TextOf(Control(kPath)), L"\\Mail.exe");
    Select(kMailList, 0);
    EXPECT_FALSE(IsShown(kPath));
    EXPECT_STREQ(mailProgram.value.CStr(), L"\\Mail.exe");
    Select(kMailList, 4);
    std::wstring title;
    TapAndWork(kPathBrowse, L"LoadFileWin", {[&title](HWND dialog) {
                   title = TextOf(GetParent(GetParent(dialog)));
                   Write(kFileName, L"Own")(dialog);
               }});
    EXPECT_EQ(title, L"Custom Mail App.");
    const std::wstring chosen = TextOf(Control(kPath));
    EXPECT_TRUE(chosen.ends_with(L"\\Own.exe"));
    ShowTab(7);
    EXPECT_EQ(mailProgram.value.CStr(), chosen);
    ShowTab(6);
    Select(kMailList, 4);
    Tap(window_, kPathClear);
    ShowTab(8);
    EXPECT_TRUE(mailProgram.value.IsEmpty());
    Select(kMiscellaneousList, 5);
    EXPECT_EQ(TextOf(Control(kText)), L"ddd d");
    Tap(window_, kTextClear);
    EXPECT_EQ(TextOf(Control(kText)), L"");
    SetDlgItemText(window_, kText, std::wstring(300, L'd').c_str());
    Close();
    EXPECT_EQ(settingsStore.CustomDayttlFrmtDefault.value.Length(), 255u);
}

constexpr Number kPlaces[] = {&Store::CalTitlesOrder0, &Store::CalTitlesOrder1,
                              &Store::CalTitlesOrder2, &Store::CalTitlesOrder3,
                              &Store::CalTitlesOrder4, &Store::CalTitlesOrder5};

std::string TitleOrder() {
    std::string order;
    for (const Number place : kPlaces)
        order += std::to_string((settingsStore.*place).value);
    return order;
}

TEST_F(CalendarOptionsTest, OrderTheTitles) {
    const uint32_t stored[] = {5, 5, 9, 0, 1, 4}; // A repeated number stays, a wrong one goes.
    for (size_t i = 0; i < 6; ++i)
        (settingsStore.*kPlaces[i]).Set(stored[i]);
    OpenAt(8);
    for (const bool isSelected : {false, true}) {
        if (isSelected) Select(kMiscellaneousList, 6);
        for (const int id : {kTitles, kUp, kDown})
            EXPECT_EQ(IsShown(id), isSelected) << id;
    }
    const MessageBoxAnswer answer(IDOK);
    Tap(window_, kUp);
    ExpectSaid(answer, IDS_NOTHING_SELECTED_TEXT, IDS_NOTHING_SELECTED_CAPTION);
    Select(kTitles, 3);
    Tap(window_, kUp);
    Tap(window_, kUp);
    EXPECT_EQ(TitleOrder(), "559014") << "stored with the page";
    Select(kTitles, 0);
    Tap(window_, kDown);
    Select(kMiscellaneousList, 0);
    EXPECT_FALSE(IsShown(kTitles) || IsShown(kUp) || IsShown(kDown));
    Close();
    EXPECT_EQ(TitleOrder(), "055214");
}

TEST_F(CalendarOptionsTest, RefuseAPinnedMonthThatHasNoRoom) {
    const int needed = ScaleY(200);
    const auto formatted = [needed](UINT id) {
        WideString text;
        text.Format(LanguageText(id).CStr(), needed);
        return std::wstring(text.CStr());
    };
    settingsStore.dHeightLimit.Set(static_cast<uint32_t>(needed - 1));
    enum class Way { Row, Tab, Closing, RowAndClosing };
    for (const Way way : {Way::Row, Way::Tab, Way::Closing, Way::RowAndClosing}) {
        settingsStore.PinnedMonthlyClr.Set(1);
        OpenAt(5);
        Select(kMonthList, 9);
        EXPECT_EQ(TextOf(Control(kTip)), formatted(IDS_CALENDAR_MONTH_PINNED_TIP));
        const MessageBoxAnswer answer(IDOK);
        if (way == Way::Row || way == Way::RowAndClosing) Select(kMonthList, 0);
        if (way == Way::Tab) ShowTab(6);
        if (way == Way::Closing || way == Way::RowAndClosing) Close();
        EXPECT_EQ(settingsStore.PinnedMonthlyClr.value, 0u);
        PumpMessages();
        EXPECT_EQ(answer.text, formatted(IDS_CALENDAR_MONTH_PINNED_REFUSAL));
        EXPECT_EQ(answer.caption, Text(IDS_CALENDAR_MONTH_PINNED_CAPTION));
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
