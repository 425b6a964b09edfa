#include "settings/tab_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/include/stand_in.h"
#include "tests/settings/store_fixture.h"

namespace {

class TabListTest : public StoreFixture {
  protected:
    static std::wstring KeyOf(const std::wstring& tab) { return kTabs + (L"\\" + tab); }
};

// The tabs in order: the type of an own one, the name of a hosted one.
std::wstring OrderOf(const TabList& tabs) {
    std::wstring order;
    uint32_t number = 0;
    for (const auto& tab : tabs.All()) {
        EXPECT_EQ(tab->order, ++number);
        order += tab->type == TabType::Hosted ? std::wstring(tab->name.CStr())
                                              : std::to_wstring(static_cast<uint32_t>(tab->type));
        order += L' ';
    }
    return order;
}

TabDefinition Hosted(const wchar_t* name, uint32_t order) {
    TabDefinition tab;
    tab.name = name;
    tab.order = order;
    return tab;
}

TEST_F(TabListTest, AnEmptyKeyGivesTheOwnTabs) {
    const auto store = LoadStore();
    EXPECT_EQ(OrderOf(store->tabs), L"2 4 16 64 32 8 ");
    for (const auto& tab : store->tabs.All())
        EXPECT_EQ(tab->enabled, 1U);
}

TEST_F(TabListTest, EqualOrdersStandAsTheyCome) {
    SetUserNumber(kTabs, L"CalendarTabOrder", 3);
    SetUserNumber(kTabs, L"MailTabOrder", 1);
    SetUserNumber(kTabs, L"TasksTabOrder", 0xFFFFFFFF);
    for (const wchar_t* name : {L"c", L"a", L"b"})
        SetUserNumber(KeyOf(name).c_str(), L"Order", 3);
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"none"), L"Type", 1);
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"first"), L"Order", 0);
    EXPECT_EQ(OrderOf(LoadStore()->tabs), L"first 32 2 16 a b c 64 8 none 4 ");

    TabList tabs;
    for (const uint32_t order : {3U, 1U, 3U, 2U, 1U}) {
        const std::wstring name = std::to_wstring(order) + (tabs.All().size() < 2 ? L"a" : L"b");
        EXPECT_EQ(tabs.Insert(Hosted(name.c_str(), order)).name, name.c_str());
    }
    const TabDefinition* last = tabs.All().back().get();
    EXPECT_EQ(tabs.FindNumber(3)->name, L"3a");
    tabs.Remove(*tabs.FindNumber(2));
    tabs.Number();
    EXPECT_EQ(OrderOf(tabs), L"1a 1b 3a 3b ");
    EXPECT_EQ(tabs.All().back().get(), last) << "entries keep their address";
    EXPECT_EQ(tabs.FindNumber(5), nullptr);
    EXPECT_EQ(tabs.FindType(TabType::Mail), nullptr);
}

// What a hosted tab before the last own ones does to their numbers reaches the registry without
// anyone having set anything.
TEST_F(TabListTest, NumberingMovesTheTabsBehind) {
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"Weather"), L"Order", 3);
    LoadAndSave();
    EXPECT_EQ(GetUserNumber(KeyOf(L"Weather"), L"Order"), 4U);
    EXPECT_EQ(GetUserNumber(kTabs, L"ContactsTabOrder"), 5U);
    EXPECT_EQ(GetUserNumber(kTabs, L"MailTabOrder"), 6U);
    EXPECT_EQ(GetUserNumber(kTabs, L"SEventsTabOrder"), 7U);
    for (const wchar_t* name : {L"CalendarTabOrder", L"TasksTabOrder", L"NotesTabOrder"}) {
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kTabs, name)) << name;
    }
}

TEST_F(TabListTest, OwnTabsAreWrittenFromTheList) {
    const auto store = LoadStore();
    for (const auto& tab : store->tabs.All()) {
        tab->order = 10 + static_cast<uint32_t>(tab->type);
        tab->enabled = tab->type == TabType::Notes ? 0 : 1;
    }
    // What the dashboard changes meanwhile stays, where the list left the tab alone.
    SetUserNumber(kTabs, L"MailTabEnabled", 0);
    store->Save();
    const std::pair<const wchar_t*, uint32_t> orders[] = {{L"Calendar", 12}, {L"Tasks", 14},
                                                          {L"SEvents", 18},  {L"Notes", 26},
                                                          {L"Mail", 42},     {L"Contacts", 74}};
    for (const auto& [tab, order] : orders)
        EXPECT_EQ(GetUserNumber(kTabs, std::wstring(tab) + L"TabOrder"), order) << tab;
    EXPECT_EQ(GetUserNumber(kTabs, L"NotesTabEnabled"), 0U);
    EXPECT_EQ(GetUserNumber(kTabs, L"MailTabEnabled"), 0U);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kTabs, L"TasksTabEnabled"));
    EXPECT_EQ(OrderOf(LoadStore()->tabs), L"2 4 8 16 32 64 ");
}

TEST_F(TabListTest, HostedTabsKeepEverythingUnderAnyName) {
    const std::vector<std::wstring> names = {L"%s%n%d", L"\"q\"=\"", L"\u4E00 \u00FC", L"a/b.c:*",
                                             std::wstring(255, L'n')};
    for (const std::wstring& name : names) {
        SetNumber(HKEY_CURRENT_USER, KeyOf(name), L"Enabled", 1);
        SetText(HKEY_CURRENT_USER, KeyOf(name), L"DLL", name + L".dll");
        SetText(HKEY_CURRENT_USER, KeyOf(name), L"InstallPath", L"\\" + name);
        SetText(HKEY_CURRENT_USER, KeyOf(name), L"CustomIconName", L"icon %s");
        SetText(HKEY_CURRENT_USER, KeyOf(name), L"Foreign", L"goes");
        SetText(HKEY_CURRENT_USER, KeyOf(name) + L"\\below", L"Foreign", L"goes too");
    }
    LoadAndSave();
    const auto store = LoadStore();
    ASSERT_EQ(store->tabs.All().size(), 6 + names.size());
    for (const std::wstring& name : names) {
        EXPECT_EQ(GetUserNumber(KeyOf(name), L"Enabled"), 1U);
        EXPECT_EQ(GetUserNumber(KeyOf(name), L"Type"), 1U);
        EXPECT_EQ(GetText(HKEY_CURRENT_USER, KeyOf(name), L"DLL"), name + L".dll");
        EXPECT_EQ(GetText(HKEY_CURRENT_USER, KeyOf(name), L"InstallPath"), L"\\" + name);
        EXPECT_EQ(GetText(HKEY_CURRENT_USER, KeyOf(name), L"CustomIconName"), L"icon %s");
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, KeyOf(name), L"Foreign"));
        EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, KeyOf(name) + L"\\below"));
    }
}

TEST_F(TabListTest, DefaultsOfAHostedTabAreDeletedAndRemovedTabsGo) {
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"bare"), L"Type", 7);
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"removed"), L"Enabled", 1);
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"Contacts"), L"Order", 1);
    SetText(HKEY_CURRENT_USER, KeyOf(L"Contacts\\below"), L"text", L"kept");
    const auto store = LoadStore();
    ASSERT_EQ(OrderOf(store->tabs), L"2 4 16 64 32 8 bare removed ");
    EXPECT_EQ(store->tabs.FindNumber(7)->enabled, 0U);
    store->tabs.Remove(*store->tabs.FindNumber(8));
    store->tabs.All().back()->order = 9;
    store->Save();
    EXPECT_EQ(GetUserNumber(KeyOf(L"bare"), L"Type"), 1U);
    for (const wchar_t* name : {L"Order", L"Enabled", L"DLL", L"InstallPath", L"CustomIconName"}) {
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, KeyOf(L"bare"), name)) << name;
    }
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, KeyOf(L"removed")));
    EXPECT_EQ(GetUserNumber(KeyOf(L"Contacts"), L"Order"), 1U);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, KeyOf(L"Contacts\\below"), L"text"), L"kept");
}

TEST_F(TabListTest, AKeyThatCannotBeOpenedHoldsNoTabs) {
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"hosted"), L"Order", 1);
    SetUserNumber(kTabs, L"MailTabOrder", 1);
    auto store = std::make_unique<SettingsStore>();
    constexpr ULONG kTabKey = 13; // The thirteenth key that a load creates where it is missing.
    StandInFailCall(kRegCreateKeyCalls, kTabKey, ERROR_ACCESS_DENIED);
    LoadInto(*store);
    EXPECT_EQ(OrderOf(store->tabs), L"2 4 16 64 32 8 ");
    // A save does not delete what was never read.
    StandInResetCalls();
    store->Save();
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, KeyOf(L"hosted"), L"Order"), 1U);
    SetUserNumber(kTabs, L"MailTabOrder", 1);

    // The subkey alone: the tab is there, with its defaults.
    StandInFailCall(kRegOpenKeyCalls, 9, ERROR_ACCESS_DENIED);
    LoadInto(*store);
    EXPECT_EQ(OrderOf(store->tabs), L"2 32 4 16 64 8 hosted ");
    StandInResetCalls();
    SetText(HKEY_CURRENT_USER, KeyOf(L"hosted"), L"DLL", L"hosted.dll");
    store->Save();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, KeyOf(L"hosted"), L"DLL"), L"hosted.dll");

    // A save without the key changes nothing of the tabs.
    const RegistryTree before = GetTree(HKEY_CURRENT_USER);
    StandInFailCall(kRegCreateKeyCalls, 11, ERROR_ACCESS_DENIED);
    store->Save();
    StandInResetCalls();
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), before);
}

} // namespace
