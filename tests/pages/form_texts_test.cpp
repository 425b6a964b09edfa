// The texts of the Notes, Messages, Special events and PIM pages, by the numbers that language
// libraries know them by.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/services/resource_strings.h"
#include "tests/support/page_fixture.h"

namespace {
constexpr int kNotesRow = 3;
constexpr int kMessagesRow = 5;
constexpr int kEventsRow = 6;
constexpr int kPimRow = 9;

// A text behind what is put before it.
struct Piece {
    UINT text;
    const wchar_t* before = L"";
};

struct ControlText {
    int control;
    UINT text; // Of the control itself: a label or a box.
    int combo = 0;
    std::vector<Piece> entries = {}; // All of them, or those before the ones with other texts.
};

const std::vector<Piece> kBreakLines = {{109}, {110}, {111}, {1233}};

struct PageTexts {
    int page;
    std::vector<UINT> titles;
    std::vector<ControlText> controls;
};

const PageTexts kPages[] = {
    {kNotesRow,
     {635, 1062, 1494, 1492},
     {{1200, 1407},
      {1202, 1403, 1203, {{1404}, {1405}, {1406}}},
      {1204, 1068, 1205, kBreakLines},
      {1206, 1069},
      {1207, 1254},
      {1208, 1495},
      {1209, 1496},
      {1210, 1497},
      {1211, 1498},
      {1212, 1499},
      {1213, 1504},
      {1214, 1493},
      {1216, 1517},
      {1217, 860}}},
    {kMessagesRow,
     {635, 1062},
     {{1200, 1477, 1201, {{1474}, {1475}}},
      {1202, 1478},
      {1203, 1470},
      {1204, 1253},
      {1205, 1068, 1206, kBreakLines},
      {1207, 1254},
      {1208, 1069}}},
    {kEventsRow,
     {1042, 1043, 1062},
     {{1200, 1046, 1201, {{117}, {118}, {119}}},
      {1202, 1047},
      {1204, 1048, 1205, {{1049}}},
      {1206, 1444, 1207, {{1441}, {1442}, {1443}}},
      {1208, 1044},
      {1210, 1045},
      {1212, 1038, 1213, {{1421}}},
      {1214, 1039, 1215, {{1421}}},
      {1216, 1040, 1217, {{1421}}},
      {1218, 1041, 1219, {{1421}}},
      {1220, 1068, 1221, kBreakLines},
      {1222, 1069},
      {1223, 1254}}},
    {kPimRow,
     {916, 917},
     {{1200, 918, 1201, {{106}, {1646}}},
      {1202,
       1540,
       1203,
       {{1542},
        {1543, L"0 "},
        {1543, L"5 "},
        {1543, L"10 "},
        {1543, L"15 "},
        {1543, L"30 "},
        {1543, L"45 "},
        {1544, L"1 "},
        {1545, L"2 "},
        {1545, L"4 "},
        {1545, L"8 "},
        {1546, L"1 "}}},
      {1204, 1541, 1205, {{1542}}},
      {1206, 919},
      {1207, 920},
      {1208, 921},
      {1209, 922}}},
};

class FormTexts : public PageFixture, public testing::WithParamInterface<PageTexts> {
  protected:
    FormTexts() : PageFixture(GetParam().page) {}
};

std::wstring Text(UINT id) {
    return LanguageText(id).CStr();
}

void ExpectEntries(HWND combo, const ControlText& control) {
    std::wstring expected;
    for (const Piece& entry : control.entries)
        expected += entry.before + Text(entry.text) + L"|";
    const std::wstring entries = EntriesOf(combo) + L"|";
    const bool hasOthers = control.entries.size() == 1;
    EXPECT_EQ(hasOthers ? entries.substr(0, expected.size()) : entries, expected) << control.combo;
}

TEST_P(FormTexts, AreThoseOfTheirNumbers) {
    HWND window = Open();
    const std::vector<UINT>& titles = GetParam().titles;
    ASSERT_EQ(page_->GetTabCount(), static_cast<int>(titles.size()));
    for (size_t tab = 0; tab < titles.size(); ++tab)
        EXPECT_EQ(page_->GetTabTitleId(static_cast<int>(tab)), titles[tab]);
    for (const ControlText& control : GetParam().controls) {
        ASSERT_FALSE(Text(control.text).empty()) << control.text;
        EXPECT_EQ(TextOf(GetDlgItem(window, control.control)), Text(control.text))
            << control.control;
        if (control.combo) ExpectEntries(GetDlgItem(window, control.combo), control);
    }
    Close();
}

INSTANTIATE_TEST_SUITE_P(Pages, FormTexts, testing::ValuesIn(kPages));
} // namespace
