// Every text of the Calendar and Tasks pages, by the numbers that language libraries know them by.

#include <cstdint>
#include <string>
#include <vector>

#include "shell/services/resource_strings.h"
#include "tests/pages/calendar_page_fixture.h"
#include "tests/support/dialog_steps.h"
#include "ui/button_strip.h"

namespace {
constexpr int kTip = 1240;
constexpr int kLabel = 1241;

using Ids = std::vector<UINT>;

std::wstring Texts(const Ids& ids) {
    std::wstring texts;
    for (const UINT id : ids)
        texts += (texts.empty() ? L"" : L"|") + std::wstring(LanguageText(id).CStr());
    return texts;
}

// An option in its list; no choices where its entries are no texts of the library.
struct OptionRow {
    UINT item;
    UINT label;
    UINT tip;
    Ids choices = {};
};

struct OptionsTab {
    int tab;
    int list;
    std::vector<OptionRow> rows;
};

const Ids kLimits = {1077, 1078, 1079, 1080, 1081, 1082, 1083, 1084};
const Ids kBreaks = {109, 110, 111, 1233};
const Ids kFoldings = {790, 791, 792};

const OptionsTab kOptionTabs[] = {
    {2,
     1230,
     {{663, 738, 739},
      {664, 740, 741},
      {665, 742, 743},
      {666, 744, 745},
      {667, 1225, 1226, {1227, 1228, 1229, 1230}},
      {668, 748, 749},
      {1214, 1231, 1232, kLimits},
      {669, 750, 751, {752, 753, 754, 755, 756, 757, 758}},
      {670, 759, 760, {761, 762, 763, 764}},
      {671, 765, 766},
      {672, 767, 768},
      {673, 769, 770},
      {674, 771, 772}}},
    {3,
     1231,
     {{675, 773, 774},
      {676, 775, 776, kBreaks},
      {677, 777, 778, {779, 780, 781}},
      {678, 782, 783},
      {679, 784, 785},
      {680, 786, 787},
      {681, 788, 789, kFoldings},
      {682, 797, 798},
      {685, 801, 802},
      {686, 803, 804},
      {687, 805, 806},
      {688, 807, 808},
      {1215, 799, 800},
      {1216, 1234, 1235},
      {1217, 1189, 1190},
      {1218, 1191, 1192}}},
    {5,
     1232,
     {{689, 809, 810, {811, 812, 813, 814}},
      {690, 815, 816},
      {691, 1193, 1194},
      {1219, 1195, 1196},
      {692, 819, 820},
      {1220, 1197, 1198, {1207, 1208, 1209}},
      {1221, 1199, 1200},
      {1222, 1201, 1202},
      {1455, 1455, 1456, {1452, 1453, 1454}},
      {1223, 1203, 1204}}},
    {6,
     1233,
     {{706, 821, 822},
      {707, 823, 824},
      {708, 825, 826, {827, 828, 829, 830}},
      {709, 831, 832, {833, 834}},
      {710, 0, 835},
      {711, 836, 837},
      {712, 838, 839}}},
    {8,
     1234,
     {{693, 840, 841},
      {694, 845, 846},
      {696, 849, 850},
      {697, 851, 852},
      {698, 853, 854},
      {699, 0, 855},
      {1224, 0, 0}}},
};

// A control with a text of its own and, behind a label, the choices.
struct Row {
    int control;
    UINT text;
    int combo = 0;
    Ids choices = {};
};

const Row kCalendarRows[] = {
    {1200, 713},
    {1202, 658, 1203, {716, 717, 718, 719}},
    {1204, 720, 1205, {721, 722, 723}},
    {1206, 1525},
    {1207, 1526},
    {1208, 1213},
    {1209, 1451},
    {1210, 1644, 1211, {112, 114}},
    {1212, 1645, 1213, {730, 731, 732}},
    {1214, 662, 1215, {735, 736, 737}},
    {1216, 726},
    {1217, 727},
    {1218, 1537},
    {1219, 1533, 1220, {1531, 1532, 1538, 1539}},
    {1221, 1536, 1222, {1534, 1535}},
    {1245, 859},
    {1246, 856},
    {1248, 859},
    {1251, 643},
    {1252, 644},
    {1260, 645},
    {1262, 646},
    {1264, 649},
    {1266, 647},
    {1268, 648},
    {1270, 1210},
};

const Row kTaskRows[] = {
    {1200, 1066},
    {1202, 1067, 1203, kLimits},
    {1204, 1089},
    {1205, 1090},
    {1206, 1091},
    {1207, 1092},
    {1208, 1093},
    {1209, 1068, 1210, kBreaks},
    {1211, 1070, 1212, kFoldings},
    {1213, 1069},
    {1214, 1254},
    {1215, 647},
    {1217, 648},
    {1219, 1210},
    {1221, 1071},
    {1222, 1073},
    {1224, 1074},
    {1226, 1072, 1227, {1094, 1095, 1096}},
};

class CalendarTexts : public CalendarPageFixture {
  protected:
    void ExpectOption(const OptionRow& row) {
        std::wstring tip = row.tip ? LanguageText(row.tip).CStr() : L"";
        if (row.tip == 1204) {
            WideString formatted;
            formatted.Format(tip.c_str(), ScaleY(200));
            tip = formatted.CStr();
        }
        EXPECT_EQ(IsShown(kTip) ? TextOf(Control(kTip)) : L"", tip) << row.item;
        std::wstring label;
        if (IsShown(kLabel)) label = TextOf(Control(kLabel));
        if (IsShown(kBox)) label = TextOf(Control(kBox));
        EXPECT_EQ(label, Texts(row.label ? Ids{row.label} : Ids{})) << row.item;
        if (!row.choices.empty()) {
            EXPECT_EQ(EntriesOf(Control(kCombo)), Texts(row.choices)) << row.item;
        }
    }
};

template <typename Rows>
void ExpectRows(HWND page, const Rows& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(TextOf(GetDlgItem(page, row.control)), Texts({row.text})) << row.control;
        if (!row.combo) continue;
        EXPECT_EQ(EntriesOf(GetDlgItem(page, row.combo)), Texts(row.choices)) << row.combo;
    }
}

// A button of the icons at the right, which the focus is on, is named by its caption and adds its
// flag.
struct IconButton {
    uint32_t flag;
    UINT caption;
};

template <typename Buttons>
void ExpectIconButtons(HWND strip, const DwordSetting& setting, const Buttons& buttons) {
    SetFocus(strip);
    for (const IconButton& button : buttons) {
        SendMessage(strip, WM_TIMER, 1, 0);
        EXPECT_EQ(TextOf(FindWindow(L"ToolTipWindow", nullptr)), Texts({button.caption}));
        const uint32_t before = setting.value;
        SendMessage(strip, BM_CLICK, 0, 0);
        EXPECT_EQ(setting.value - before, button.flag) << button.caption;
        SendMessage(strip, kMessageStepButton, TRUE, 0);
    }
}

constexpr IconButton kAppointmentIcons[] = {{1, 650},  {2, 651},  {4, 652},    {8, 653},
                                            {16, 654}, {64, 655}, {128, 1211}, {256, 1212}};
constexpr IconButton kTaskIcons[] = {{1, 650},  {2, 651},  {4, 652},  {8, 653},
                                     {16, 654}, {32, 656}, {64, 655}, {256, 1212}};

TEST_F(CalendarTexts, AreThoseOfTheirNumbers) {
    OpenAt(4);
    constexpr UINT kTitles[] = {635, 636, 637, 638, 639, 640, 641, 1530, 642};
    for (int tab = 0; tab < 9; ++tab)
        EXPECT_EQ(page_->GetTabTitleId(tab), kTitles[tab]);
    ExpectRows(window_, kCalendarRows);
    EXPECT_EQ(RowsOf(Control(1250)), Texts({700, 701, 702, 703, 704, 705}));
    for (const OptionsTab& options : kOptionTabs) {
        ShowTab(options.tab);
        Ids items;
        for (size_t row = 0; row < options.rows.size(); ++row) {
            items.push_back(options.rows[row].item);
            Select(options.list, static_cast<int>(row));
            ExpectOption(options.rows[row]);
        }
        EXPECT_EQ(RowsOf(Control(options.list)), Texts(items));
    }
}

TEST_F(CalendarTexts, NameTheIconsOfTheirFlags) {
    for (DwordSetting* setting :
         {&settingsStore.ClrApptRightIcons, &settingsStore.ClrTaskRightIcons,
          &settingsStore.ApptLeftAlignIcon1, &settingsStore.ApptLeftAlignIcon2,
          &settingsStore.TaskLeftAlignIcon1, &settingsStore.TaskLeftAlignIcon2})
        setting->Set(0);
    OpenAt(4);
    ExpectIconButtons(Control(1265), settingsStore.ClrApptRightIcons, kAppointmentIcons);
    ExpectIconButtons(Control(1271), settingsStore.ClrTaskRightIcons, kTaskIcons);
}

class TaskTexts : public PageFixture {
  protected:
    TaskTexts() : PageFixture(2) {}
};

TEST_F(TaskTexts, AreThoseOfTheirNumbers) {
    HWND window = Open();
    constexpr UINT kTitles[] = {1061, 1062, 1063, 1065};
    for (int tab = 0; tab < 4; ++tab)
        EXPECT_EQ(page_->GetTabTitleId(tab), kTitles[tab]);
    ExpectRows(window, kTaskRows);
    Close();
}
} // namespace
