#include "settings/tab_list.h"

#include <gtest/gtest.h>

#include <string>

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
    for (const wchar_t* name : {L"3a", L"1a", L"3b", L"2a", L"1b"}) {
        TabDefinition tab;
        tab.name = name;
        tab.order = static_cast<uint32_t>(name[0] - L'0');
        EXPECT_EQ(tabs.Insert(std::move(tab)).name, name);
    }
    const TabDefinition* last = tabs.All().back().get();
    tabs.Remove(*tabs.FindNumber(2));
    tabs.Number();
    EXPECT_EQ(OrderOf(tabs), L"1a 1b 3a 3b ");
    EXPECT_EQ(tabs.FindNumber(4), last) << "entries keep their address";
    EXPECT_EQ(tabs.FindType(TabType::Mail), nullptr);
}

// What a hosted tab before the last own ones does to their numbers reaches the registry without
// anyone having set anything.
TEST_F(TabListTest, NumberingMovesTheTabsBehind) {
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"Weather"), L"Order", 3);
    LoadAndSave();
    EXPECT_EQ(GetUserNumber(KeyOf(L"Weather"), L"Order"), 4U);
    EXPECT_EQ(GetUserNumber(kTabs, L"ContactsTabOrder"), 5U);
    EXPECT_EQ(GetUserNumber(kTabs, L"SEventsTabOrder"), 7U);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kTabs, L"NotesTabOrder")) << "it stands before";
}

TEST_F(TabListTest, OwnTabsAreWrittenFromTheList) {
    const auto store = LoadStore();
    EXPECT_EQ(OrderOf(store->tabs), L"2 4 16 64 32 8 ");
    for (const auto& tab : store->tabs.All()) {
        EXPECT_EQ(tab->enabled, 1U);
        tab->order = 10 + static_cast<uint32_t>(tab->type);
        if (tab->type != TabType::Mail) tab->enabled = 100 + tab->order;
    }
    // What the dashboard changes meanwhile stays, where the list left the tab alone.
    SetUserNumber(kTabs, L"MailTabEnabled", 0);
    store->Save();
    const std::pair<const wchar_t*, uint32_t> orders[] = {{L"Calendar", 12}, {L"Tasks", 14},
                                                          {L"SEvents", 18},  {L"Notes", 26},
                                                          {L"Mail", 42},     {L"Contacts", 74}};
    for (const auto& [tab, order] : orders) {
        const std::wstring name(tab);
        EXPECT_EQ(GetUserNumber(kTabs, name + L"TabOrder"), order) << tab;
        EXPECT_EQ(GetUserNumber(kTabs, name + L"TabEnabled"), order == 42 ? 0 : 100 + order) << tab;
    }
    EXPECT_EQ(OrderOf(LoadStore()->tabs), L"2 4 8 16 32 64 ");
}

TEST_F(TabListTest, HostedTabsKeepWhatIsTheirsUnderAnyName) {
    LoadAndSave(); // Makes the keys.
    SetText(HKEY_CURRENT_USER, KeyOf(L"Contacts\\below"), L"text", L"no tab's");
    const std::wstring names[] = {L"%s%n%d \u4E00", std::wstring(255, L'n')};
    for (const std::wstring& name : names) {
        SetNumber(HKEY_CURRENT_USER, KeyOf(name), L"Enabled", 1);
        SetNumber(HKEY_CURRENT_USER, KeyOf(name), L"Type", 1);
        SetNumber(HKEY_CURRENT_USER, KeyOf(name), L"Order", name == names[0] ? 7 : 8);
        for (const wchar_t* text : {L"DLL", L"InstallPath", L"CustomIconName"})
            SetText(HKEY_CURRENT_USER, KeyOf(name), text, text + name);
    }
    const RegistryTree whole = GetTree(HKEY_CURRENT_USER);
    SetText(HKEY_CURRENT_USER, KeyOf(names[0]), L"Foreign", L"goes");
    SetText(HKEY_CURRENT_USER, KeyOf(names[0]) + L"\\below", L"Foreign", L"goes too");
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"removed"), L"Enabled", 1);
    const auto store = LoadStore();
    store->tabs.Remove(*store->tabs.FindNumber(9));
    store->Save();
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), whole);
}

TEST_F(TabListTest, DefaultsOfAHostedTabAreDeleted) {
    SetNumber(HKEY_CURRENT_USER, KeyOf(L"bare"), L"Type", 7);
    const auto store = LoadStore();
    store->tabs.All().back()->order = 9;
    store->Save();
    EXPECT_EQ(GetUserNumber(KeyOf(L"bare"), L"Type"), 1U);
    for (const wchar_t* name : {L"Order", L"Enabled", L"DLL", L"InstallPath", L"CustomIconName"})
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, KeyOf(L"bare"), name)) << name;
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
}

} // namespace
