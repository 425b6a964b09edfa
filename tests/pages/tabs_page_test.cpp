#include "pages/tabs_page.h"

#include "tests/support/page_fixture.h"
#include "ui/list_items.h"

namespace {
constexpr int kList = 1206;
constexpr int kUp = 1207;
constexpr int kDown = 1208;
constexpr int kAdd = 1209;
constexpr int kRemove = 1210;
constexpr int kPlugins = 473; // The list of the dialog that adds one.
const std::wstring kOwnTabs = L"Tasks|Notes|Contacts|Mail|Special events";

std::wstring ItemKey(const std::wstring& name) {
    return L"SOFTWARE\\Microsoft\\Today\\Items\\" + name;
}

void RegisterItem(const wchar_t* name, uint32_t type, uint32_t enabled) {
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(name), L"Type", type);
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(name), L"Enabled", enabled);
    SetText(HKEY_LOCAL_MACHINE, ItemKey(name), L"DLL", std::wstring(L"\\") + name + L".dll");
}

std::optional<uint32_t> EnabledItem(const wchar_t* name) {
    return GetNumber(HKEY_LOCAL_MACHINE, ItemKey(name), L"Enabled");
}

class TabsPageTest : public PageFixture {
  protected:
    TabsPageTest() : PageFixture(10, L"\\TabSettings") {}

    HWND List() const { return Control(kList); }
    std::wstring Rows() const { return RowsOf(List()); }
    void Select(const wchar_t* text) const { SelectRow(List(), std::wstring(text)); }

    // Works the dialog that adds a tab.
    void Add(std::vector<DialogSteps::Step> steps = {Answer(IDOK)}) const {
        TapAndWork(kAdd, kTemplateDialog, std::move(steps));
        EXPECT_TRUE(IsWindowEnabled(window_));
    }

    // The orders of the tabs and which of them are on, as the store has them.
    static std::wstring Stored() {
        std::wstring stored;
        for (const auto& tab : settingsStore.tabs.All()) {
            stored += std::to_wstring(tab->order) + L" " + tab->name.CStr() +
                      (tab->enabled ? L"+" : L"-") + L"|";
        }
        return stored;
    }
};

TEST_F(TabsPageTest, MovesAndTicksTabsAndNumbersThemFromTwo) {
    Store(L"ContactsTabEnabled", 0);
    Open();
    EXPECT_EQ(Rows(), kOwnTabs) << "the calendar's is not listed";
    EXPECT_FALSE(IsRowTicked(List(), 2));
    Select(L"Notes");
    Tap(window_, kUp);
    Select(L"Contacts");
    Tap(window_, kDown);
    TickRow(List(), 1, false);
    for (int opening = 0; opening < 2; ++opening) {
        Reopen();
        EXPECT_EQ(Rows(), L"Notes|Tasks|Mail|Contacts|Special events") << opening;
        EXPECT_EQ(Stored(), L"1 Calendar+|2 Notes+|3 Tasks-|4 Mail+|5 Contacts-|6 Special events+|")
            << opening;
    }
}

TEST_F(TabsPageTest, OffersPluginsAloneAndWantsOneSelected) {
    RegisterItem(L"Date", 0, 1);
    RegisterItem(L"Orvane", 4, 1);
    Open();
    const MessageBoxAnswer answer(IDOK);
    std::wstring offered = L"?";
    const auto read = [&](HWND dialog) { offered = EntriesOf(GetDlgItem(dialog, kPlugins)); };
    bool stays = false;
    Add({read, Answer(IDOK), [&](HWND dialog) { stays = IsWindowVisible(dialog); }});
    EXPECT_TRUE(stays);
    EXPECT_EQ(offered, L"");
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(answer.caption, L"Selection Missing");
    EXPECT_EQ(answer.text.find(L"No Today screen plugin is selecetd. Please"), 0u);

    RegisterItem(L"Tides", 4, 0);
    RegisterItem(L"Mail", 2, 0);
    RegisterItem(L"Alarm", 4, 1);
    Add({read});
    EXPECT_EQ(offered, L"Alarm|Tides");
    EXPECT_EQ(Rows(), kOwnTabs) << "cancelled";
}

TEST_F(TabsPageTest, TakesAPluginOffTheTodayScreenWhenAllowed) {
    RegisterItem(L"Alarm", 4, 1);
    Open();
    for (const int button : {IDNO, IDYES}) {
        const MessageBoxAnswer answer(button);
        Add();
        EXPECT_EQ(answer.text, Text(IDS_TABS_DISABLE_QUESTION));
        const bool agreed = button == IDYES;
        EXPECT_EQ(Rows(), kOwnTabs + (agreed ? L"|Alarm" : L""));
        EXPECT_EQ(EnabledItem(L"Alarm"), agreed ? 0u : 1u);
    }
    EXPECT_TRUE(IsRowTicked(List(), 5));
    Close();
    settingsStore.Save();
    const std::wstring key = key_ + L"\\Alarm";
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, key, L"InstallPath"), L"\\Alarm.dll");
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, key, L"Enabled"), 1u);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, key, L"Order"), 7u);
}

TEST_F(TabsPageTest, RefusesASecondTabOfAPluginAndRemovesHostedTabsAlone) {
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Mail"), L"Type", 4); // As a tab of the dashboard's own,
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Mail"), L"Enabled", 0); // and without a file.
    SetNumber(HKEY_CURRENT_USER, key_ + L"\\mail", L"Order", 3);
    Open();
    const MessageBoxAnswer answer(IDOK);
    EXPECT_EQ(Rows(), L"Tasks|Notes|mail|Contacts|Mail|Special events");
    Add();
    EXPECT_EQ(answer.count, 0) << "neither an own tab nor another case of letters";
    Add();
    EXPECT_EQ(answer.text, Text(IDS_TABS_EXISTS));
    EXPECT_EQ(Rows(), L"Tasks|Notes|mail|Contacts|Mail|Special events|Mail");
    EXPECT_STREQ(settingsStore.tabs.All().back()->installPath.CStr(), L"");

    EXPECT_FALSE(IsEnabled(kRemove));
    SelectRow(List(), 4);
    EXPECT_FALSE(IsEnabled(kRemove));
    SelectRow(List(), 6);
    EXPECT_TRUE(IsEnabled(kRemove));
    Tap(window_, kUp);
    EXPECT_TRUE(IsEnabled(kRemove)) << "goes with the tab";
    ShowTab(1);
    SetFocus(Control(kRemove));
    Tap(window_, kRemove);
    EXPECT_FALSE(IsEnabled(kRemove));
    EXPECT_EQ(GetFocus(), List()) << "not on the disabled button";
    SelectRow(List(), 2);
    Tap(window_, kRemove);
    EXPECT_EQ(Rows(), kOwnTabs);
    Close();
    EXPECT_EQ(Stored(), L"1 Calendar+|2 Tasks+|3 Notes+|4 Contacts+|5 Mail+|6 Special events+|");
    EXPECT_EQ(EnabledItem(L"Mail"), 0u);
}
} // namespace
