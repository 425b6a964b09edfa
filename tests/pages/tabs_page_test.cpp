#include "pages/tabs_page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/page_fixture.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kTabSettings[] = L"Software\\Teskel\\Orvane\\TabSettings";
constexpr int kList = 1206;
constexpr int kUp = 1207;
constexpr int kDown = 1208;
constexpr int kAdd = 1209;
constexpr int kRemove = 1210;
constexpr wchar_t kOwnTabs[] = L"Tasks|Notes|Contacts|Mail|Special events";

std::wstring ItemKey(const std::wstring& name) {
    return L"SOFTWARE\\Microsoft\\Today\\Items\\" + name;
}

void RegisterItem(const wchar_t* name, uint32_t type, uint32_t enabled) {
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(name), L"Type", type);
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(name), L"Enabled", enabled);
    SetText(HKEY_LOCAL_MACHINE, ItemKey(name), L"DLL", std::wstring(L"\\") + name + L".dll");
}

const DialogSteps::Step kOk = [](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDOK, 0); };

class TabsPageTest : public PageFixture {
  protected:
    TabsPageTest() : PageFixture(10) {}

    // With what the store holds, as when the user comes back to the page.
    void Reopen() {
        Close();
        page_.reset(CreatePage(owner_, 10));
    }

    HWND List() const { return GetDlgItem(page_->hwnd, kList); }
    std::wstring Rows() const { return RowsOf(List()); }
    void Select(const wchar_t* text) const { SelectRow(List(), std::wstring(text)); }

    // Works the add dialog, with its own class.
    void Add(std::vector<DialogSteps::Step> steps) const {
        const DialogSteps work(L"#32770", std::move(steps));
        Tap(page_->hwnd, kAdd);
        EXPECT_TRUE(IsWindowEnabled(page_->hwnd));
    }

    // The orders of the listed tabs and which of them are on, as the store has them.
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
    SetNumber(HKEY_CURRENT_USER, kTabSettings, L"ContactsTabEnabled", 0);
    HWND window = Open();
    EXPECT_EQ(Rows(), kOwnTabs) << "the calendar's is not listed";
    EXPECT_FALSE(IsRowTicked(List(), 2));
    Select(L"Notes");
    Tap(window, kUp);
    Select(L"Contacts");
    Tap(window, kDown);
    TickRow(List(), 1, false);
    const wchar_t kMoved[] =
        L"1 Calendar+|2 Notes+|3 Tasks-|4 Mail+|5 Contacts-|6 Special events+|";
    for (int opening = 0; opening < 2; ++opening) {
        Reopen();
        EXPECT_EQ(Rows(), L"Notes|Tasks|Mail|Contacts|Special events") << opening;
        EXPECT_EQ(Stored(), kMoved) << opening;
    }
    Close();
    settingsStore.Save();
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kTabSettings, L"TasksTabOrder"), 3u);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kTabSettings, L"TasksTabEnabled"), 0u);
    Open();
    EXPECT_EQ(Stored(), kMoved);
    Close();
}

TEST_F(TabsPageTest, OffersPluginsAloneAndWantsOneSelected) {
    RegisterItem(L"Date", 0, 1);
    RegisterItem(L"Orvane", 4, 1);
    Open();
    MessageBoxAnswer answer(IDOK);
    std::wstring offered = L"?";
    const DialogSteps::Step read = [&](HWND dialog) {
        offered = EntriesOf(GetDlgItem(dialog, 473));
    };
    bool stays = false;
    Add({read, kOk, [&](HWND dialog) { stays = IsWindowVisible(dialog); }});
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
    Close();
}

TEST_F(TabsPageTest, TakesAPluginOffTheTodayScreenWhenAllowed) {
    RegisterItem(L"Alarm", 4, 1);
    Open();
    for (const int button : {IDNO, IDYES}) {
        MessageBoxAnswer answer(button);
        Add({kOk});
        EXPECT_EQ(answer.text, LanguageText(IDS_TABS_DISABLE_QUESTION).CStr());
        const bool agreed = button == IDYES;
        EXPECT_EQ(Rows(), kOwnTabs + std::wstring(agreed ? L"|Alarm" : L""));
        EXPECT_EQ(GetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Alarm"), L"Enabled"), agreed ? 0u : 1u);
    }
    EXPECT_TRUE(IsRowTicked(List(), 5));
    Reopen();
    EXPECT_EQ(Rows(), kOwnTabs + std::wstring(L"|Alarm"));
    Close();
    settingsStore.Save();
    const std::wstring key = std::wstring(kTabSettings) + L"\\Alarm";
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, key, L"InstallPath"), L"\\Alarm.dll");
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, key, L"DLL"));
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, key, L"Enabled"), 1u);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, key, L"Order"), 7u);
}

TEST_F(TabsPageTest, AddsAPluginWithoutAFile) {
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Bare"), L"Type", 4);
    SetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Bare"), L"Enabled", 0);
    Open();
    Add({kOk});
    EXPECT_EQ(Rows(), kOwnTabs + std::wstring(L"|Bare"));
    const TabDefinition* tab = settingsStore.tabs.FindType(TabType::Hosted);
    ASSERT_TRUE(tab);
    EXPECT_STREQ(tab->name.CStr(), L"Bare");
    EXPECT_STREQ(tab->installPath.CStr(), L"");
    Close();
}

TEST_F(TabsPageTest, RefusesASecondTabOfAPluginAndRemovesHostedTabsAlone) {
    RegisterItem(L"Mail", 4, 0); // Named as a tab of the dashboard's own.
    SetNumber(HKEY_CURRENT_USER, std::wstring(kTabSettings) + L"\\mail", L"Order", 3);
    HWND window = Open();
    MessageBoxAnswer answer(IDOK);
    EXPECT_EQ(Rows(), L"Tasks|Notes|mail|Contacts|Mail|Special events");
    Add({kOk});
    EXPECT_EQ(answer.count, 0) << "neither an own tab nor another case of letters";
    Add({kOk});
    EXPECT_EQ(answer.text, LanguageText(IDS_TABS_EXISTS).CStr());
    EXPECT_EQ(Rows(), L"Tasks|Notes|mail|Contacts|Mail|Special events|Mail");

    EXPECT_FALSE(IsEnabled(kRemove));
    SelectRow(List(), 4);
    EXPECT_FALSE(IsEnabled(kRemove));
    SelectRow(List(), 6);
    EXPECT_TRUE(IsEnabled(kRemove));
    Tap(window, kUp);
    EXPECT_TRUE(IsEnabled(kRemove)) << "goes with the tab";
    Tap(window, kRemove);
    EXPECT_FALSE(IsEnabled(kRemove));
    SelectRow(List(), 2);
    Tap(window, kRemove);
    EXPECT_EQ(Rows(), kOwnTabs);
    Close();
    EXPECT_EQ(Stored(), L"1 Calendar+|2 Tasks+|3 Notes+|4 Contacts+|5 Mail+|6 Special events+|");
    settingsStore.Save();
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, std::wstring(kTabSettings) + L"\\mail"));
    EXPECT_EQ(GetNumber(HKEY_LOCAL_MACHINE, ItemKey(L"Mail"), L"Enabled"), 0u);
}

TEST_F(TabsPageTest, LeavesTheFocusOnTheListWhenATabIsRemoved) {
    SetNumber(HKEY_CURRENT_USER, std::wstring(kTabSettings) + L"\\Alarm", L"Order", 2);
    HWND window = Open();
    ShowTab(1);
    Select(L"Alarm");
    SetFocus(GetDlgItem(window, kRemove));
    Tap(window, kRemove);
    EXPECT_EQ(Rows(), kOwnTabs);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kList) << "not on the disabled button";
    Close();
}

// A gesture's effect needs gestures.
TEST_F(TabsPageTest, EnablesTheEffectOfGestures) {
    HWND window = Open();
    for (const int gestures : {0, 2, 0}) {
        Choose(window, 1203, gestures);
        EXPECT_EQ(IsEnabled(1205), gestures != 0);
    }
    Close();
}
} // namespace
