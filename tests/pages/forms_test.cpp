// The forms of pages: what each control edits, and the texts by the numbers that language libraries
// know them by.

#include "tests/support/page_fixture.h"
#include "tests/support/text_words.h"

namespace {
// `controls` has each box and drop-down list by its number, and the name of the value it edits.
// `texts` has a word for each control that says something, in the order of the keys: numbers stand
// for texts, "_" for a space; a drop-down list has its entries between "|". Where there is a "*",
// the rest may be anything.
struct Form {
    const char* page;
    int row;
    const wchar_t* key; // Below the program's own.
    const wchar_t* controls;
    const wchar_t* titles = L"";
    const wchar_t* texts = L"";
};

const Form kForms[] = {
    {"General", 0, L"",
     L"1201=OnClick 1203=OnDoubleClick 1217=EnableSoundEffect 1218=GoofyMode 1219=IndentItems "
     L"1221=FilterTtlAlign 1222=RemoveTabsBar 1223=RemoveSettingsButton "
     L"1224=RemoveSeparatingLine 1225=DPadEnabled 1227=DPadMode 1229=DPadCompleteAction "
     L"1231=DPadScrollingAction 1232=DPadDoubleClickTabSwitching 1233=ExclusiveDPadNavig "
     L"1234=UseDoubleClickScroll 1235=UseFullScrollings 1238=RemoveHighlight 1240=LoadingDelay"},
    {"Calendar", 1, L"\\Calendar",
     L"1203=FirstWeekInYear 1205=ClrTextColor 1206=HideEmptyGroups 1207=HideEmptyGroupsItem "
     L"1208=SEventsOnClr 1209=ClrSortTsksWithAppts 1211=dAppoPassedToday 1213=LeadingRects "
     L"1215=Conflicting 1216=IncludeYearlyCounters 1217=HideAlldayEventIcon 1220=WeatehrLayout "
     L"1222=WeatehrOnClick",
     L"635 636 637 638 639 640 641 1530 642",
     L"713 |* 658 |716|717|718|719| 720 |721|722|723| 1525 1526 1213 1451 1644 |112|114| "
     L"1645 |730|731|732| 662 |735|736|737| 726 727 645 646 649 647 648 1210 1537 "
     L"1533 |1531|1532|1538|1539| 1536 |1534|1535| 643 644"},
    {"Tasks", 2, L"\\Tasks",
     L"1201=TsksDateFrmt 1203=TsksLimitFutureDate 1204=HideCompletedTasks "
     L"1205=HidePastCompletedTasks 1206=ConfirmTaskCompleteTsks 1207=RemoveUndatedLeadingStr "
     L"1208=RemoveUndatedTsks 1210=TsksLineBreaker 1212=TsksFoldingType "
     L"1213=TsksUseSmartFolding 1214=IncludeCountersTsks 1221=UseCustomDateTsks "
     L"1227=TsksCustomDateStruct",
     L"1061 1062 1063 1065",
     L"1066 |* 1067 |1077|1078|1079|1080|1081|1082|1083|1084| 1089 1090 1091 1092 1093 "
     L"1068 |109|110|111|1233| 1070 |790|791|792| 1069 1254 647 648 1210 1071 1073 1074 "
     L"1072 |1094|1095|1096|"},
    {"Notes", 3, L"\\Notes",
     L"1201=NotesActiveSearchBar 1203=NotesPreviewNotesState 1205=NotesBreakLineStyle "
     L"1206=NotesIncldFoldBttns 1207=NotesIncldCounters",
     L"635 1062 1494 1492",
     L"1407 |* 1403 |1404|1405|1406| 1068 |109|110|111|1233| 1069 1254 1495 1496 1497 1498 1499 "
     L"1504 1493 1517 860"},
    {"Contacts", 4, L"\\Contacts",
     L"1201=ContactsLayout 1203=CntctsTitleStruct 1207=CntctsBreakLineStyle "
     L"1208=CntctsIncldCounters 1209=ContactsTxtByCategoryClr 1210=CntctsHideNoPicture "
     L"1212=CntctsActiveSearchBar 1214=CntctsDPadActionOverride "
     L"1215=CntctsOnClickActionOpenItem 1216=CntctsPrvwDlgUponOpenItem "
     L"1217=CntctsIncldFoldBttns"},
    {"Messages", 5, L"\\Messages",
     L"1201=MsgsDPadActionOverride 1202=MsgsOpenOnClick 1203=MsgsPreviewWhenOpen "
     L"1204=MsgsMrkReadOnPrev 1206=MsgsBreakLineStyle 1207=MsgsIncldCounters "
     L"1208=MsgsIncldFoldBttns",
     L"635 1062", L"1477 |1474|1475| 1478 1470 1253 1068 |109|110|111|1233| 1254 1069"},
    {"SpecialEvents", 6, L"\\SEvents",
     L"1201=SEventDays 1203=SEAlertBeforeDays 1205=SEDateFormat 1207=SEContactFormat "
     L"1211=SEFilterAlertBeforeDays 1221=BreakLineStyle 1222=IncldFoldBttns 1223=IncldCounters",
     L"1042 1043 1062",
     L"1046 |117|118|119| 1047 |1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16| 1048 |1049|* "
     L"1444 |1441|1442|1443| 1044 |* 1045 |1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16| "
     L"1038 |1421|* 1039 |1421|* 1040 |1421|* 1041 |1421|* 1068 |109|110|111|1233| 1069 1254"},
    {"Fonts", 7, L"\\Fonts", L"1204=FontGnrlUseAdvncd 1208=UseShadowColor 1209=ForceClearType"},
    {"Pim", 9, L"\\CustomPIM",
     L"1206=OverridePimCatIcons 1207=OverridePimCatColros 1208=LeaveAFRunning 1209=HideABCVals",
     L"916 917",
     L"918 |106|1646| 1540 |1542|0_1543|5_1543|10_1543|15_1543|30_1543|45_1543|1_1544|2_1545|"
     L"4_1545|8_1545|1_1546| 1541 |1542|12:00_AM|12:30_AM|1:00_AM|* 919 920 921 922"},
    {"Tabs", 10, L"\\TabSettings",
     L"1201=TabsMode 1203=TabGesturesMode 1205=TabGesturEffect 1212=DfltTabTimeOut 1214=DfltTab "
     L"1215=DfltTabOnStartup"},
};

bool IsCombo(HWND control) {
    wchar_t name[16] = L"";
    GetClassName(control, name, 16);
    return _wcsicmp(name, WC_COMBOBOX) == 0;
}

class Forms : public PageFixture, public testing::WithParamInterface<Form> {
  protected:
    Forms() : PageFixture(GetParam().row, GetParam().key) {}

    uint32_t Shown(int id) const {
        return static_cast<uint32_t>(IsCombo(Control(id)) ? Chosen(id) : IsTicked(id));
    }
    // Ticked boxes and last entries are what is stored, until one of them is changed.
    uint32_t Stored(int id) const {
        if (!IsCombo(Control(id))) return 1;
        return static_cast<uint32_t>(SendMessage(Control(id), CB_GETCOUNT, 0, 0)) - 1;
    }
};

// Changes each control alone, by way of the registry: two that were swapped would show.
TEST_P(Forms, EveryControlShowsAndSavesItsOwnSetting) {
    struct Edited {
        int id;
        std::wstring name;
        uint32_t stored;
    };
    std::vector<Edited> controls;
    Open();
    for (const std::wstring& word : Words(GetParam().controls)) {
        const int id = std::stoi(word);
        controls.push_back({id, word.substr(word.find(L'=') + 1), Stored(id)});
    }
    Close();
    for (const Edited& changed : controls) {
        for (const Edited& control : controls)
            Store(control.name.c_str(), control.stored);
        Open();
        if (IsCombo(Control(changed.id)))
            Choose(window_, changed.id, 0);
        else
            SendMessage(Control(changed.id), BM_SETCHECK, BST_UNCHECKED, 0);
        Close();
        settingsStore.Save();
        Open();
        for (const Edited& control : controls)
            EXPECT_EQ(Shown(control.id), control.id == changed.id ? 0 : control.stored)
                << control.id << " after " << changed.id;
        Close();
    }
}

TEST_P(Forms, TextsAreThoseOfTheirNumbers) {
    HWND window = Open();
    const std::vector<std::wstring> titles = Words(GetParam().titles);
    for (size_t tab = 0; tab < titles.size(); ++tab)
        EXPECT_EQ(std::to_wstring(page_->GetTabTitleId(static_cast<int>(tab))), titles[tab]);
    const std::vector<std::wstring> words = Words(GetParam().texts);
    size_t next = 0;
    for (HWND control = GetWindow(window, GW_CHILD); control && !words.empty();
         control = GetWindow(control, GW_HWNDNEXT)) {
        const std::wstring text =
            IsCombo(control) ? L"|" + EntriesOf(control) + L"|" : TextOf(control);
        if (text.empty()) continue;
        ASSERT_LT(next, words.size()) << GetDlgCtrlID(control);
        const std::wstring expected = Expand(words[next++]);
        const size_t known = expected.find(L'*');
        EXPECT_EQ(text.substr(0, known), expected.substr(0, known)) << GetDlgCtrlID(control);
    }
    EXPECT_EQ(next, words.size());
}

INSTANTIATE_TEST_SUITE_P(Pages, Forms, testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param.page); });

// Steps on a page just opened with its defaults: "@" taps a box or chooses an entry, "+" and "-"
// tell a control or a range of them that is enabled or disabled then.
struct Rules {
    int row;
    const wchar_t* steps;
};
const Rules kRules[] = {
    {0, L"-1207-1210 @1206 +1207-1210 +1226-1229 -1230-1231 +1232-1233 "
        L"@1227=1 +1226-1227 -1228-1229 +1230-1231 -1232 +1233 @1225 -1226-1233"},
    {1, L"-1207 @1206 +1207 @1206 -1207"},
    {2, L"-1222-1227 @1221 +1222-1227"},
    {7, L"+1200-1203 @1204 -1200-1203 +1205-1206 @1204 +1200-1203"},
    {10, L"@1203=0 -1204-1205 @1203=2 +1204-1205"},
};

class FormRules : public PageFixture, public testing::WithParamInterface<Rules> {
  protected:
    FormRules() : PageFixture(GetParam().row) {}
};

TEST_P(FormRules, EnableWhatCounts) {
    Open();
    for (const std::wstring& step : Words(GetParam().steps)) {
        const int id = std::stoi(step.substr(1));
        const size_t entry = step.find(L'=');
        if (entry != std::wstring::npos) {
            Choose(window_, id, std::stoi(step.substr(entry + 1)));
        } else if (step[0] == L'@') {
            Tap(window_, id);
        } else {
            const int last = std::stoi(step.substr(step.size() - 4));
            for (int control = id; control <= last; ++control)
                EXPECT_EQ(IsEnabled(control), step[0] == L'+') << control << " of " << id;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, FormRules, testing::ValuesIn(kRules));
} // namespace
