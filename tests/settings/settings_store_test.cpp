#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "settings/setting_table.h"
#include "shell/services/scaling.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/install_folder.h"
#include "tests/support/string_library.h"

namespace {

constexpr wchar_t kPocketInformant[] = L"Software\\WebIS\\PocketInformant";
constexpr wchar_t kColours[] = L"SOFTWARE\\Microsoft\\Color";

class SettingsStoreTest : public StoreFixture {};

TEST_F(SettingsStoreTest, LoadRepairsAndTheNextSaveWritesTheRepair) {
    using Store = SettingsStore;
    using Member = DwordSetting Store::*;
    struct Case {
        Member member;
        uint32_t value;
        bool repaired;
        std::vector<std::pair<Member, uint32_t>> stored;
    };
    constexpr Member days = &Store::dNumOfDays;
    constexpr Member begin = &Store::TimelinesStart;
    constexpr Member length = &Store::TimelinesLength;
    constexpr Member title = &Store::CalTitlesOrder0;
    constexpr Member last = &Store::CalTitlesOrder5;
    constexpr Member tab = &Store::ActiveTab;
    constexpr Member atStart = &Store::DfltTabOnStartup;
    constexpr Member first = &Store::DfltTab;
    const Case cases[] = {
        {days, 7, true, {{days, 0}}},
        {days, 120, false, {{days, 120}}},
        {days, 7, true, {{days, 121}}},
        {length, 8, true, {{begin, 10}, {length, 10}}},
        {length, 8, false, {{begin, 10}, {length, 8}}},
        {length, 0xFFFFFFFE, true, {{begin, 20}}}, // Sums that wrap come out small.
        {length, 18, false, {{begin, 0xFFFFFFF0}}},
        {title, 0, true, {{last, 4}}},
        {last, 5, true, {{title, 6}}},
        {title, 5, false, {{title, 5}, {last, 0}}},
        {tab, 1, true, {{tab, 0}}},
        {tab, 1, true, {{tab, 7}}},
        {tab, 1, true, {{tab, 2}, {&Store::TasksTabEnabled, 0}}},
        // A tab's number is its place in the list, not the order stored.
        {tab, 2, false, {{tab, 2}, {&Store::TasksTabOrder, 90}, {&Store::TasksTabEnabled, 0}}},
        // The default tab at start-up, enabled or not: 2 is Notes, 3 Contacts, 5 special events.
        {tab, 3, true, {{atStart, 1}, {first, 2}}},
        {tab, 4, true, {{atStart, 1}, {first, 3}, {&Store::ContactsTabEnabled, 0}}},
        {tab, 1, true, {{atStart, 1}, {first, 5}, {&Store::SEventsTabOrder, 0}}},
        {tab, 6, false, {{atStart, 1}, {first, 6}, {tab, 6}}},
        {tab, 5, false, {{atStart, 2}, {first, 2}, {tab, 5}}},
    };
    const auto store = LoadStore();
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << &c - cases);
        RegDeleteKeyW(HKEY_CURRENT_USER, kRoot);
        for (const auto& [member, number] : c.stored) {
            const DwordSetting& setting = (*store).*member;
            SetUserNumber(KeyOfGroup(setting.group).path, setting.name.CStr(), number);
        }
        LoadInto(*store);
        const DwordSetting& setting = (*store).*c.member;
        EXPECT_EQ(setting.value, c.value);
        EXPECT_EQ(setting.changed, c.repaired);
        store->Save();
        const wchar_t* key = KeyOfGroup(setting.group).path;
        EXPECT_EQ(GetUserNumber(key, setting.name.CStr()).value_or(setting.defaultValue), c.value);
    }
    // A hosted tab is no tab to start on.
    constexpr wchar_t kHosted[] = L"Software\\Teskel\\Orvane\\TabSettings\\Hosted";
    RegDeleteKeyW(HKEY_CURRENT_USER, kRoot);
    SetUserNumber(kHosted, L"Order", 0);
    SetUserNumber(kHosted, L"Enabled", 1);
    LoadInto(*store);
    EXPECT_TRUE(store->ActiveTab.changed);
}

TEST_F(SettingsStoreTest, SaveRepairsTheHeightsAndThePinnedMonth) {
    const auto store = LoadStore();
    for (const uint32_t height : {59U, 60U, 500U, 501U, 0xFFFFFFFFU}) {
        store->dHeightLimitLandscape.Set(height);
        store->Save();
        const uint32_t saved = height == 60 || height == 500 ? height : 0;
        EXPECT_EQ(GetUserNumber(kRoot, L"dHeightLimitLandscape").value_or(0), saved) << height;
    }
    for (const int missing : {0, 1}) {
        store->dHeightLimit.Set(static_cast<uint32_t>(Scale(200) - missing));
        store->PinnedMonthlyClr.Set(1);
        store->Save();
        EXPECT_EQ(HasValue(HKEY_CURRENT_USER, kCalendar, L"PinnedMonthlyClr"), missing == 0);
    }
}

TEST_F(SettingsStoreTest, DefaultsFollowTheDeviceAndOtherSettings) {
    auto store = LoadStore();
    EXPECT_STREQ(store->installFolder.CStr(), L"\\Program Files\\Teskel\\Orvane");
    EXPECT_STREQ(store->PIVOL.value.CStr(), L"My Documents\\WebIS\\PocketInformant.vol");
    EXPECT_EQ(store->dHeightLimit.value, static_cast<uint32_t>(ScaleY(160)));
    EXPECT_EQ(store->MonthlyPopIconsSize.value, static_cast<uint32_t>(Scale(6)));
    EXPECT_EQ(store->FontGnrlSize.value, static_cast<uint32_t>(Scale(12)));
    EXPECT_EQ(store->FontTskNoDue.logFont.lfHeight, Scale(12));

    SetText(HKEY_LOCAL_MACHINE, kTodayItem, L"ProgramFiles", L"\\Card");
    SetText(HKEY_CURRENT_USER, kPocketInformant, L"WebIS_Folder", L"\\PI");
    LoadInto(*store);
    EXPECT_STREQ(store->OVFiltersFileFolder.value.CStr(), L"\\Card\\Teskel\\Orvane");
    EXPECT_STREQ(store->OVIconsFolder.value.CStr(), L"\\Card\\Teskel\\Orvane\\CategoryIcons");
    EXPECT_STREQ(store->PIVOL.value.CStr(), L"\\PI\\WebIS\\PocketInformant.vol");
    EXPECT_STREQ(store->SelectedLangResFile.value.CStr(),
                 L"\\Program Files\\Teskel\\Orvane\\LangRes\\OVEngRc.dll");
}

TEST_F(SettingsStoreTest, ClockAndWeekFollowTheLocale) {
    // A PC takes the kind of clock from the picture of a time.
    constexpr LCTYPE kFields[] = {LOCALE_STIMEFORMAT, LOCALE_IFIRSTDAYOFWEEK};
    wchar_t before[2][80] = {};
    for (int field = 0; field < 2; ++field)
        GetLocaleInfoW(LOCALE_USER_DEFAULT, kFields[field], before[field], 80);
    for (const bool twelveHours : {true, false}) {
        SetLocaleInfoW(LOCALE_USER_DEFAULT, kFields[0], twelveHours ? L"h:mm:ss tt" : L"HH:mm:ss");
        SetLocaleInfoW(LOCALE_USER_DEFAULT, kFields[1], twelveHours ? L"6" : L"2");
        const auto store = LoadStore();
        EXPECT_EQ(store->twelveHourClock, twelveHours);
        EXPECT_EQ(store->MonthlyStartDay.value, twelveHours ? 6U : 2U);
        EXPECT_EQ(store->FirstWorkDay.defaultValue, twelveHours ? 6U : 2U);
    }
    for (int field = 0; field < 2; ++field)
        SetLocaleInfoW(LOCALE_USER_DEFAULT, kFields[field], before[field]);
}

TEST_F(SettingsStoreTest, SystemColoursComeFromTheirOwnValueThenTheScheme) {
    const COLORREF fallbacks[] = {0x000000, 0xEF8E73, 0x9C4D2C, 0xFFFFFF, 0x9C4D2C, 0xFFFFFF};
    const auto store = LoadStore();
    EXPECT_TRUE(std::ranges::equal(store->systemColours, fallbacks));
    EXPECT_FALSE(HasKey(HKEY_LOCAL_MACHINE, kColours)) << "asking created the key";

    BYTE scheme[36 * 4]; // The last entry, colour 35, is not used.
    for (size_t at = 0; at < sizeof scheme; ++at)
        scheme[at] = static_cast<BYTE>(at);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"SHColor", REG_BINARY, scheme, sizeof scheme);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"6", REG_BINARY, "\xAA\xBB\xCC\xDD\xEE", 5);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"8", REG_BINARY, "\xAA", 1);
    for (const DWORD minor : {20U, 21U}) {
        StandInSetOsVersion(4, minor);
        LoadInto(*store);
        const COLORREF colour34 = minor == 20 ? fallbacks[4] : 0x8A8988;
        const COLORREF expected[] = {0x121110, 0xCCBBAA, 0x0000AA,
                                     0x262524, colour34, fallbacks[5]};
        EXPECT_TRUE(std::ranges::equal(store->systemColours, expected)) << "4." << minor;
    }
}

TEST_F(SettingsStoreTest, LanguageLibraryIsTheChosenOneOrTheEnglish) {
    const InstallFolder folder;
    folder.Write(L"LangRes\\Text.dll", "no library");
    const std::wstring english = folder.PathOf(L"LangRes\\OVEngRc.dll");
    const std::wstring chosen = folder.PathOf(L"LangRes\\Chosen.dll");
    ASSERT_TRUE(MakeStringLibrary(english, 1436, L"Calendar"));
    ASSERT_TRUE(MakeStringLibrary(chosen, 1436, L"Kalender"));
    const auto caption = [this](const std::wstring& selected) {
        SetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile", selected);
        return std::wstring(LoadStore()->tabs.FindNumber(1)->name.CStr());
    };
    EXPECT_EQ(caption(chosen), L"Kalender");
    for (const wchar_t* bad : {L"LangRes\\Text.dll", L"LangRes\\None.dll"}) {
        EXPECT_EQ(caption(folder.PathOf(bad)), L"Calendar") << bad;
        EXPECT_EQ(GetModuleHandleW(chosen.c_str()), nullptr) << "the old library stayed loaded";
    }
    SetText(HKEY_LOCAL_MACHINE, kTodayItem, L"ProgramFiles", L"\\nowhere");
    EXPECT_EQ(caption(L"x.dll"), L"");
    EXPECT_FALSE(languageLibrary_);
}

TEST_F(SettingsStoreTest, ProbesAskForAValueAndCreateNothing) {
    EXPECT_FALSE(SettingsStore::IsPocketInformantInstalled());
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, kPocketInformant));
    SetText(HKEY_CURRENT_USER, kPocketInformant, L"other", L"");
    EXPECT_FALSE(SettingsStore::IsPocketInformantInstalled());
    SetValue(HKEY_CURRENT_USER, kPocketInformant, L"version", REG_NONE, nullptr, 0);
    EXPECT_TRUE(SettingsStore::IsPocketInformantInstalled());
    LoadAndSave();
    EXPECT_FALSE(HasKey(HKEY_LOCAL_MACHINE, kTodayItem)) << "nor does a load";
}

// One query for a number, two for a text that is there; each key is opened once.
TEST_F(SettingsStoreTest, LoadAndSaveAskTheRegistryNoMoreThanNeeded) {
    ULONG queries = 0;
    for (const SettingTable* table : AllSettingTables()) {
        const GroupKey key = KeyOfGroup(table->group);
        for (const SettingRow& row : table->rows) {
            const auto* text = std::get_if<TextRow>(&row.what);
            if (text) SetText(key.root, key.path, text->name, L"x");
            queries += text ? 2 : std::holds_alternative<FontRow>(row.what) ? 6 : 1;
        }
    }
    StandInSetOsVersion(4, 20); // Four system colours, of which none is there.
    StandInResetCalls();
    const auto store = LoadStore();
    EXPECT_EQ(StandInCallCount(kRegQueryValueCalls), queries);
    EXPECT_EQ(StandInCallCount(kRegCreateKeyCalls), 14U);
    EXPECT_EQ(StandInCallCount(kRegOpenKeyCalls), 1U + 1U + 4U) << "the alphabets have a key below";
    EXPECT_EQ(StandInCallCount(kRegSetValueCalls | kRegDeleteValueCalls | kRegDeleteKeyCalls), 0U);

    store->GoofyMode.Set(1);
    store->FontCalPast.Set(nullptr, 0xFF);
    StandInResetCalls();
    store->Save();
    EXPECT_EQ(StandInCallCount(kRegCreateKeyCalls), 12U);
    EXPECT_EQ(StandInCallCount(kRegSetValueCalls), 2U);
    EXPECT_EQ(StandInCallCount(kRegDeleteValueCalls), 1U) << "the landscape height's repair";
    EXPECT_EQ(StandInCallCount(kRegQueryValueCalls | kRegOpenKeyCalls), 0U);
}

TEST_F(SettingsStoreTest, LoadingAgainForgetsWhatWasSet) {
    SetUserNumber(L"Software\\Teskel\\Orvane\\TabSettings\\Hosted", L"Order", 2);
    SettingsStore store;
    LoadInto(store);
    store.OnClick.Set(2);
    store.FontGeneral.Set(nullptr, 1);
    store.tabs.Remove(*store.tabs.FindType(TabType::Mail));
    LoadInto(store);
    EXPECT_EQ(store.tabs.All().size(), 7U);
    EXPECT_EQ(store.OnClick.value, 0U);
    store.Save();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"OnClick"));
    EXPECT_FALSE(
        HasValue(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Fonts", L"FontGenerallfColor"));
}

} // namespace
