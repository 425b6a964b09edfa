#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <set>
#include <string>
#include <vector>

#include "settings/font_catalogue.h"
#include "settings/setting_table.h"
#include "tests/settings/every_setting.h"
#include "tests/settings/store_fixture.h"

// What holds for every setting of every table.

namespace {

class SettingTables : public StoreFixture {};

TEST_F(SettingTables, ValueNamesAreUniqueInTheirKey) {
    std::set<std::pair<SettingGroup, std::wstring>> seen;
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        for (std::wstring name : NamesOf(row)) {
            std::ranges::transform(name, name.begin(), towlower); // As the registry compares.
            EXPECT_TRUE(seen.emplace(table.group, name).second) << name;
        }
    });
    EXPECT_GT(seen.size(), 400U);
}

TEST_F(SettingTables, AnEmptyRegistryGivesDefaultsAndASaveWritesNothing) {
    const auto store = LoadStore();
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        const std::wstring loaded = ShownIn(*store, row);
        std::visit(SetDefault{*store}, row.what);
        EXPECT_EQ(ShownIn(*store, row), loaded) << NamesOf(row)[0];
        EXPECT_NE(KeyOfGroup(table.group).path, nullptr);
    });
    const auto untouched = LoadStore();
    const RegistryTree before = GetTree(HKEY_CURRENT_USER);
    untouched->Save();
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), before);
    for (const auto& [path, value] : before)
        EXPECT_TRUE(path.ends_with(L"\\")) << path;
}

// The own tabs' settings follow the tab list, which therefore has to say the same.
void SetTabListFromSettings(SettingsStore& store) {
    const std::pair<TabType, std::pair<DwordSetting*, DwordSetting*>> tabs[] = {
        {TabType::Calendar, {&store.CalendarTabEnabled, &store.CalendarTabOrder}},
        {TabType::Tasks, {&store.TasksTabEnabled, &store.TasksTabOrder}},
        {TabType::Notes, {&store.NotesTabEnabled, &store.NotesTabOrder}},
        {TabType::Contacts, {&store.ContactsTabEnabled, &store.ContactsTabOrder}},
        {TabType::Mail, {&store.MailTabEnabled, &store.MailTabOrder}},
        {TabType::SpecialEvents, {&store.SEventsTabEnabled, &store.SEventsTabOrder}},
    };
    for (const auto& tab : store.tabs.All()) {
        const auto settings =
            std::ranges::find(tabs, tab->type, [](const auto& t) { return t.first; });
        tab->enabled = settings->second.first->value;
        tab->order = settings->second.second->value;
    }
}

TEST_F(SettingTables, EverySavedSettingComesBackAndEveryOtherIsNeverWritten) {
    const auto store = LoadStore();
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        std::visit(SetOther{*store}, row.what);
    });
    SetTabListFromSettings(*store);
    store->Save();

    const auto again = LoadStore();
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        const GroupKey key = KeyOfGroup(table.group);
        for (const std::wstring& name : NamesOf(row)) {
            EXPECT_EQ(HasValue(key.root, key.path, name), row.saveRank != 0) << name;
        }
        if (row.saveRank != 0) {
            EXPECT_EQ(ShownIn(*again, row), ShownIn(*store, row)) << NamesOf(row)[0];
        }
    });

    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        std::visit(SetDefault{*again}, row.what);
    });
    SetTabListFromSettings(*again);
    again->Save();
    for (const auto& [path, value] : GetTree(HKEY_CURRENT_USER)) {
        EXPECT_TRUE(path.ends_with(L"\\")) << path << " is left";
    }
}

// What the dashboard keeps for itself is read, and stays as it is whatever the store holds.
TEST_F(SettingTables, ReadOnlySettingsAreReadAndSurviveASave) {
    const BYTE flags[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    size_t count = 0;
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        if (row.saveRank != 0) return;
        ++count;
        const GroupKey key = KeyOfGroup(table.group);
        const std::wstring name = NamesOf(row)[0];
        if (std::holds_alternative<DwordRow>(row.what)) SetNumber(key.root, key.path, name, 4711);
        if (std::holds_alternative<TextRow>(row.what)) SetText(key.root, key.path, name, L"4711");
        if (const auto* bits = std::get_if<BitsRow>(&row.what)) {
            SetValue(key.root, key.path, name, REG_BINARY, flags, (bits->bitCount + 7) / 8);
        }
    });
    EXPECT_GT(count, 40U);
    const auto store = LoadStore();
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        if (row.saveRank != 0) return;
        if (std::holds_alternative<BitsRow>(row.what)) {
            EXPECT_EQ(ShownIn(*store, row).substr(0, 3), L"\x01\x02\x03") << NamesOf(row)[0];
        } else {
            EXPECT_EQ(ShownIn(*store, row), L"4711") << NamesOf(row)[0];
        }
        std::visit(SetOther{*store}, row.what);
    });
    const RegistryTree user = GetTree(HKEY_CURRENT_USER);
    const RegistryTree machine = GetTree(HKEY_LOCAL_MACHINE);
    store->Save();
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), user);
    EXPECT_EQ(GetTree(HKEY_LOCAL_MACHINE), machine);
}

std::vector<std::wstring> WrittenInOrder(const SettingTable& table) {
    std::vector<std::wstring> names;
    for (const uint8_t number : table.saveOrder)
        names.push_back(NamesOf(table.rows[number])[0]);
    return names;
}

TEST_F(SettingTables, RowsAreWrittenInLoadOrderButTheTasks) {
    for (const SettingTable* table : AllSettingTables()) {
        const auto saved = std::ranges::count_if(
            table->rows, [](const SettingRow& row) { return row.saveRank != 0; });
        EXPECT_EQ(table->saveOrder.size(), static_cast<size_t>(saved));
        EXPECT_EQ(std::ranges::is_sorted(table->saveOrder), table != &kTasksTable);
    }
    EXPECT_EQ(WrittenInOrder(kTasksTable),
              (std::vector<std::wstring>{
                  L"TsksDateFrmt", L"TsksLimitFutureDate", L"HideCompletedTasks",
                  L"HidePastCompletedTasks", L"IncludeCountersTsks", L"ConfirmTaskCompleteTsks",
                  L"RemoveUndatedLeadingStr", L"RemoveUndatedTsks", L"TsksLineBreaker",
                  L"TsksUseSmartFolding", L"TsksFoldingType", L"TaskTabLeftAlignIcon1",
                  L"TaskTabLeftAlignIcon2", L"TasksRightIcons", L"UseCustomDateTsks",
                  L"TsksCustomDateStruct", L"CustomDateFrmtStart", L"CustomDateFrmtEnd"}));
}

// How many values each key has, and how many of them are written: a row that is lost, or whose mark
// is wrong, shows nowhere else.
TEST_F(SettingTables, HoldAllValuesOfTheirKeys) {
    struct Count {
        const SettingTable& table;
        size_t rows;
        size_t written;
    };
    const Count counts[] = {
        {kTodayItemTable, 1, 0},    {kPocketInformantTable, 4, 0},
        {kAgendaFusionTable, 1, 0}, {kRootTable, 32, 32},
        {kCalendarTable, 83, 79},   {kTasksTable, 32, 18},
        {kNotesTable, 19, 7},       {kContactsTable, 25, 14},
        {kMessagesTable, 13, 7},    {kSpecialEventsTable, 17, 13},
        {kFontsTable, 39, 39},      {kColoursTable, 16, 16},
        {kPimTable, 7, 7},          {kTabModeTable, 3, 3},
        {kOwnTabTable, 12, 12},     {kDefaultTabTable, 3, 3},
        {kCategoriesTable, 1, 1},
    };
    ASSERT_EQ(std::size(counts), AllSettingTables().size());
    for (size_t at = 0; at < std::size(counts); ++at) {
        EXPECT_EQ(AllSettingTables()[at], &counts[at].table);
        EXPECT_EQ(counts[at].table.rows.size(), counts[at].rows) << at;
        EXPECT_EQ(counts[at].table.saveOrder.size(), counts[at].written) << at;
    }
}

// A key that cannot be opened costs its own settings only, and is not tried again for each.
TEST_F(SettingTables, AKeyThatCannotBeOpenedGivesDefaults) {
    const auto sample = [](const SettingTable& table) -> const SettingRow& {
        return table.rows[table.rows.size() > 1 ? 1 : 0];
    };
    // Those whose key is created; the tables of the tabs share one, of which the first speaks.
    std::vector<const SettingTable*> tables;
    for (const SettingTable* table : AllSettingTables()) {
        if (table == &kTodayItemTable || table == &kOwnTabTable || table == &kDefaultTabTable)
            continue;
        tables.push_back(table);
        const GroupKey key = KeyOfGroup(table->group);
        const SettingRow& row = sample(*table);
        if (std::holds_alternative<TextRow>(row.what)) {
            SetText(key.root, key.path, NamesOf(row)[0], L"4711");
        } else {
            SetNumber(key.root, key.path, NamesOf(row)[0], 4711);
        }
    }
    for (size_t failing = 0; failing < tables.size(); ++failing) {
        SettingsStore store;
        StandInResetCalls();
        StandInFailCall(kRegCreateKeyCalls, static_cast<ULONG>(failing) + 1, ERROR_ACCESS_DENIED);
        LoadInto(store);
        EXPECT_EQ(StandInCallCount(kRegCreateKeyCalls), tables.size());
        for (size_t at = 0; at < tables.size(); ++at) {
            const SettingRow& row = sample(*tables[at]);
            EXPECT_EQ(ShownIn(store, row) == L"4711", at != failing) << NamesOf(row)[0];
        }
        EXPECT_FALSE(store.FontSEGroupingTtls.colour.name.IsEmpty());
    }
}

TEST_F(SettingTables, TheFontCatalogueFollowsTheTable) {
    SetNumber(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Fonts", L"FontSEGroupingTtlslfHeight",
              31);
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Fonts", L"FontFaceToUse", L"Courier");
    SetNumber(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Fonts", L"ForceClearType", 2);
    LoadInto(settingsStore);
    EXPECT_EQ(static_cast<int>(FontId::Count), 33);
    EXPECT_EQ(FontOfStore(0), &settingsStore.FontGeneral);
    EXPECT_EQ(FontOfStore(static_cast<int>(FontId::FontCalPast)), &settingsStore.FontCalPast);
    EXPECT_EQ(FontOfStore(32), &settingsStore.FontSEGroupingTtls);
    EXPECT_EQ(FontOfStore(33), nullptr);
    EXPECT_EQ(FontOfStore(-1), nullptr);
    const LOGFONT font = FontCatalogueEntry(32);
    EXPECT_EQ(font.lfHeight, 31);
    EXPECT_EQ(font.lfWeight, 700);
    EXPECT_EQ(font.lfQuality, 5);
    EXPECT_STREQ(font.lfFaceName, L"Courier");
    EXPECT_EQ(FontCatalogueEntry(33).lfHeight, 0);
}

} // namespace
