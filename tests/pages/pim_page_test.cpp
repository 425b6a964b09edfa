#include "pages/pim_page.h"

#include <gtest/gtest.h>

#include <string>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/page_fixture.h"
#include "ui/controls.h"
#include "ui/key_navigation.h"

namespace {
constexpr wchar_t kPim[] = L"Software\\Teskel\\Orvane\\CustomPIM";
constexpr int kApplication = 1201;

class PimPageTest : public PageFixture {
  protected:
    PimPageTest() : PageFixture(9) {}

    static void InstallOthers() {
        SetText(HKEY_CURRENT_USER, L"Software\\WebIS\\PocketInformant", L"version", L"7");
        SetNumber(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor",
                  7);
        SetText(HKEY_CURRENT_USER, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath", L"\\A");
    }

    HWND Application() const { return GetDlgItem(page_->hwnd, kApplication); }

    // With what the list sends for a tap on an entry.
    void ChooseApplication(uint32_t number) const {
        HWND page = page_->hwnd;
        HWND combo = Application();
        ASSERT_TRUE(SelectData(combo, number));
        SendMessage(page, WM_COMMAND, MAKEWPARAM(kApplication, CBN_SELENDOK),
                    reinterpret_cast<LPARAM>(combo));
    }

    // Keys that the platform's drop-down list handles itself.
    void PressInList(std::initializer_list<WPARAM> keys) const {
        for (const WPARAM key : keys)
            SendMessage(Application(), WM_KEYDOWN, key, 0);
    }

    void ExpectEnabled(bool reminders, bool categories, bool leaveRunning) const {
        for (int id = 1202; id <= 1205; ++id)
            EXPECT_EQ(IsEnabled(id), reminders) << id;
        for (const int id : {1206, 1207, 1209})
            EXPECT_EQ(IsEnabled(id), categories) << id;
        EXPECT_EQ(IsEnabled(1208), leaveRunning);
    }
};

TEST_F(PimPageTest, OffersWhatIsInstalled) {
    const auto text = [](UINT id) { return std::wstring(LanguageText(id).CStr()); };
    Open();
    const std::wstring always = text(IDS_PIM_DEVICE) + L"|" + text(IDS_PIM_TESKEL_CALENDAR);
    EXPECT_EQ(EntriesOf(Application()), always);
    ExpectEnabled(true, false, false);
    Close();
    InstallOthers();
    Open();
    EXPECT_EQ(EntriesOf(Application()), always + L"|" + text(IDS_PIM_POCKET_INFORMANT) + L"|" +
                                            text(IDS_PIM_AGENDA_FUSION) + L"|" +
                                            text(IDS_PIM_AGENDA_ONE));
    for (const uint32_t number : {1U, 2U, 3U, 0U}) {
        ChooseApplication(number);
        EXPECT_EQ(settingsStore.PimSw.value, number) << "at once";
        ExpectEnabled(number == 0, number != 0, number == 2);
    }
    Close();
}

TEST_F(PimPageTest, ShowsTheDeviceForWhatIsNotInstalled) {
    for (const uint32_t stored : {2U, 77U}) {
        SetNumber(HKEY_CURRENT_USER, kPim, L"PimSw", stored);
        EXPECT_EQ(SelectedIndex(Open(), kApplication), 0) << stored;
        ExpectEnabled(false, true, stored == 2);
        EXPECT_EQ(settingsStore.PimSw.value, stored) << "not before the page is closed";
        Close();
        EXPECT_EQ(settingsStore.PimSw.value, 0u) << stored;
    }
}

TEST_F(PimPageTest, RefusesTheCalendarThatIsNotInstalled) {
    InstallOthers();
    SetNumber(HKEY_CURRENT_USER, kPim, L"PimSw", 2);
    Open();
    EXPECT_EQ(SelectedData(Application()), 2u);
    {
        const MessageBoxAnswer answer(IDOK);
        ChooseApplication(4);
        EXPECT_EQ(answer.count, 1);
        EXPECT_EQ(answer.text, LanguageText(IDS_PIM_NOT_INSTALLED).CStr());
        EXPECT_EQ(answer.caption, LanguageText(IDS_PIM_NOT_INSTALLED_CAPTION).CStr());
    }
    EXPECT_EQ(SelectedData(Application()), 0u);
    ExpectEnabled(true, false, false);
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 0u);

    SetText(HKEY_CURRENT_USER, L"SOFTWARE\\Teskel Calendar", L"ExecutablePath", L"\\T.exe");
    Open();
    const MessageBoxAnswer answer(IDOK);
    ChooseApplication(4);
    EXPECT_EQ(answer.count, 0);
    ExpectEnabled(false, true, false);
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 4u);
}

// By every way that changes the entry: what nobody has checked is never saved.
TEST_F(PimPageTest, KeysCannotSlipTheCalendarIn) {
    InstallOthers();
    SetNumber(HKEY_CURRENT_USER, kPim, L"PimSw", 1);
    const MessageBoxAnswer answer(IDOK);
    HWND window = Open();
    SetFocus(Application());
    PressInList({VK_UP}); // The list is closed, and 4 stands above 1.
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(settingsStore.PimSw.value, 0u);
    const MSG right{Application(), WM_KEYDOWN, VK_RIGHT, 0, 0, {}};
    EXPECT_TRUE(TranslateNavigationKey(window, right));
    EXPECT_EQ(answer.count, 2);
    EXPECT_EQ(SelectedData(Application()), 0u);

    SendMessage(Application(), CB_SHOWDROPDOWN, TRUE, 0);
    PressInList({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(SelectedData(Application()), 0u) << "Escape keeps the highlighted entry";
    SendMessage(Application(), CB_SHOWDROPDOWN, TRUE, 0);
    PressInList({VK_DOWN});
    EXPECT_EQ(SelectedData(Application()), 4u) << "only highlighted";
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 0u);
    EXPECT_EQ(answer.count, 2);
}

TEST_F(PimPageTest, RemindersStandForTheirMinutes) {
    struct Case {
        int id;
        const wchar_t* name;
        uint32_t stored;
        int shown;
        uint32_t saved;
    };
    for (const Case& reminder : {Case{1203, L"DefaultReminderAppts", 0, 1, 0},
                                 {1203, L"DefaultReminderAppts", 480, 10, 480},
                                 {1203, L"DefaultReminderAppts", 1440, 11, 1440},
                                 {1203, L"DefaultReminderAppts", 7, 0, 949998},
                                 {1205, L"DefaultReminderTasks", 480, 17, 480},
                                 {1205, L"DefaultReminderTasks", 1410, 48, 1410},
                                 {1205, L"DefaultReminderTasks", 481, 0, 949998}}) {
        SetNumber(HKEY_CURRENT_USER, kPim, reminder.name, reminder.stored);
        HWND window = Open();
        EXPECT_EQ(SelectedIndex(window, static_cast<UINT>(reminder.id)), reminder.shown);
        Close();
        settingsStore.Save();
        const uint32_t isDefault = reminder.id == 1203 ? 15 : 480;
        EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kPim, reminder.name).value_or(isDefault),
                  reminder.saved);
    }
    SetNumber(HKEY_CURRENT_USER, kPim, L"DefaultReminderTasks", 480);
    SYSTEMTIME eight{};
    eight.wYear = 2026;
    eight.wMonth = eight.wDay = 1;
    eight.wHour = 8;
    wchar_t text[32] = L"";
    GetTimeFormat(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &eight, nullptr, text, 32);
    EXPECT_EQ(TextOf(GetDlgItem(Open(), 1205)), text);
    EXPECT_EQ(SendDlgItemMessage(page_->hwnd, 1203, CB_GETCOUNT, 0, 0), 12);
    EXPECT_EQ(SendDlgItemMessage(page_->hwnd, 1205, CB_GETCOUNT, 0, 0), 49);
    Close();
}

TEST_F(PimPageTest, BoxesAreSavedWhateverTheChoice) {
    SetNumber(HKEY_CURRENT_USER, kPim, L"LeaveAFRunning", 1);
    SetNumber(HKEY_CURRENT_USER, kPim, L"OverridePimCatIcons", 1);
    HWND window = Open();
    EXPECT_EQ(IsDlgButtonChecked(window, 1208), 1u);
    for (int id = 1206; id <= 1209; ++id) // Disabled, all of them.
        CheckDlgButton(window, id, !IsDlgButtonChecked(window, id));
    Close();
    EXPECT_EQ(settingsStore.OverridePimCatIcons.value, 0u);
    EXPECT_EQ(settingsStore.OverridePimCatColros.value, 1u);
    EXPECT_EQ(settingsStore.LeaveAFRunning.value, 0u);
    EXPECT_EQ(settingsStore.HideABCVals.value, 0u);
}
} // namespace
