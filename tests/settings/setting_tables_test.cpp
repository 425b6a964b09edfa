#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <set>
#include <string>

#include "settings/font_catalogue.h"
#include "settings/setting_table.h"
#include "tests/settings/every_setting.h"
#include "tests/settings/store_fixture.h"

// What holds for every setting of every table.

namespace {

class SettingTables : public StoreFixture {};

TEST_F(SettingTables, AnEmptyRegistryGivesDefaultsAndASaveWritesNothing) {
    const auto store = LoadStore();
    const auto defaults = LoadStore();
    SetAllToDefaults(*defaults);
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        EXPECT_EQ(ShownIn(*store, row), ShownIn(*defaults, row)) << NamesOf(row)[0];
    });
    const RegistryTree before = GetTree(HKEY_CURRENT_USER);
    store->Save();
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), before);
    for (const auto& [path, value] : before)
        EXPECT_TRUE(path.ends_with(L"\\")) << path;
}

TEST_F(SettingTables, EverySavedSettingComesBackAndEveryOtherIsNeverWritten) {
    const auto store = LoadStore();
    SetAllToOthers(*store);
    store->Save();

    const auto again = LoadStore();
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        if (&table == &kOwnTabTable) return; // The tab list says what is written of it.
        const GroupKey key = KeyOfGroup(table.group);
        for (const std::wstring& name : NamesOf(row))
            EXPECT_EQ(HasValue(key.root, key.path, name), row.saveRank != 0) << name;
        if (row.saveRank != 0) {
            EXPECT_EQ(ShownIn(*again, row), ShownIn(*store, row)) << NamesOf(row)[0];
        }
    });

    SetAllToDefaults(*again);
    again->Save();
    for (const auto& [path, value] : GetTree(HKEY_CURRENT_USER))
        EXPECT_TRUE(path.ends_with(L"\\")) << path << " is left";
}

TEST_F(SettingTables, RowsAreWrittenInLoadOrderButTheTasks) {
    for (const SettingTable* table : AllSettingTables())
        EXPECT_EQ(std::ranges::is_sorted(table->saveOrder), table != &kTasksTable);
    // Of the tasks two come earlier than they are loaded.
    const std::span<const uint8_t> order = kTasksTable.saveOrder;
    EXPECT_EQ(NamesOf(kTasksTable.rows[order[4]])[0], L"IncludeCountersTsks");
    EXPECT_EQ(NamesOf(kTasksTable.rows[order[9]])[0], L"TsksUseSmartFolding");
}

// How many values each key has, and how many of them are written: a row that is lost, or whose mark
// is wrong, shows nowhere else.
TEST_F(SettingTables, HoldAllValuesOfTheirKeysOnce) {
    // The other programs' and the Today item's keys, the root, then the keys below it.
    const std::pair<size_t, size_t> counts[] = {
        {1, 0},   {4, 0},   {1, 0},   {32, 32}, {83, 79}, {32, 18}, {19, 7}, {25, 14}, {13, 7},
        {17, 13}, {39, 39}, {16, 16}, {7, 7},   {3, 3},   {12, 12}, {3, 3},  {1, 1},
    };
    ASSERT_EQ(std::size(counts), AllSettingTables().size());
    for (size_t at = 0; at < std::size(counts); ++at) {
        const SettingTable& table = *AllSettingTables()[at];
        EXPECT_EQ(std::pair(table.rows.size(), table.saveOrder.size()), counts[at]) << at;
    }
    std::set<std::pair<SettingGroup, std::wstring>> seen;
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        for (std::wstring name : NamesOf(row)) {
            std::ranges::transform(name, name.begin(), towlower); // As the registry compares.
            EXPECT_TRUE(seen.emplace(table.group, name).second) << name;
        }
    });
}

TEST_F(SettingTables, TheFontCatalogueFollowsTheTable) {
    constexpr wchar_t kFonts[] = L"Software\\Teskel\\Orvane\\Fonts";
    SetUserNumber(kFonts, L"FontSEGroupingTtlslfHeight", 31);
    SetText(HKEY_CURRENT_USER, kFonts, L"FontFaceToUse", L"Courier");
    SetUserNumber(kFonts, L"ForceClearType", 2);
    LoadInto(settingsStore);
    EXPECT_EQ(FontOfStore(static_cast<int>(FontId::FontCalPast)), &settingsStore.FontCalPast);
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
