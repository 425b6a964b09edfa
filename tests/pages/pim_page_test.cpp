#include "pages/pim_page.h"

#include "tests/support/page_fixture.h"
#include "ui/controls.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kApplication = 1201;
constexpr int kAppointments = 1203;
constexpr int kTasks = 1205;

class PimPageTest : public PageFixture {
  protected:
    PimPageTest() : PageFixture(9, L"\\CustomPIM") {}

    static void InstallOthers() {
        SetText(HKEY_CURRENT_USER, L"Software\\WebIS\\PocketInformant", L"version", L"7");
        SetNumber(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor",
                  7);
        SetText(HKEY_CURRENT_USER, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath", L"\\A");
    }

    uint32_t ShownApplication() const { return SelectedData(Control(kApplication)); }

    // With what the list sends for a tap on an entry.
    void ChooseApplication(uint32_t number) const {
        ASSERT_TRUE(SelectData(Control(kApplication), number));
        SendMessage(window_, WM_COMMAND, MAKEWPARAM(kApplication, CBN_SELENDOK),
                    reinterpret_cast<LPARAM>(Control(kApplication)));
    }

    // Keys that the platform's drop-down list handles itself.
    void PressInList(std::initializer_list<WPARAM> keys) const {
        for (const WPARAM key : keys)
            SendMessage(Control(kApplication), WM_KEYDOWN, key, 0);
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
    Open();
    const std::wstring always = Text(IDS_PIM_DEVICE) + L"|" + Text(IDS_PIM_TESKEL_CALENDAR);
    EXPECT_EQ(EntriesOf(Control(kApplication)), always);
    ExpectEnabled(true, false, false);
    InstallOthers();
    Open();
    EXPECT_EQ(EntriesOf(Control(kApplication)), always + L"|" + Text(IDS_PIM_POCKET_INFORMANT) +
                                                    L"|" + Text(IDS_PIM_AGENDA_FUSION) + L"|" +
                                                    Text(IDS_PIM_AGENDA_ONE));
    for (const uint32_t number : {1U, 2U, 3U, 0U}) {
        ChooseApplication(number);
        EXPECT_EQ(settingsStore.PimSw.value, number) << "at once";
        ExpectEnabled(number == 0, number != 0, number == 2);
    }
}

TEST_F(PimPageTest, ShowsTheDeviceForWhatIsNotInstalled) {
    Store(L"PimSw", 2);
    Open();
    EXPECT_EQ(Chosen(kApplication), 0);
    ExpectEnabled(false, true, true);
    EXPECT_EQ(settingsStore.PimSw.value, 2u) << "not before the page is closed";
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 0u);
}

TEST_F(PimPageTest, RefusesTheCalendarThatIsNotInstalled) {
    InstallOthers();
    Store(L"PimSw", 2);
    Open();
    EXPECT_EQ(ShownApplication(), 2u);
    const MessageBoxAnswer answer(IDOK);
    ChooseApplication(4);
    EXPECT_EQ(answer.count, 1);
    ExpectSaid(answer, IDS_PIM_NOT_INSTALLED, IDS_PIM_NOT_INSTALLED_CAPTION);
    EXPECT_EQ(ShownApplication(), 0u);
    ExpectEnabled(true, false, false);
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 0u);

    SetText(HKEY_CURRENT_USER, L"SOFTWARE\\Teskel Calendar", L"ExecutablePath", L"\\T.exe");
    Open();
    ChooseApplication(4);
    ExpectEnabled(false, true, false);
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 4u);
    EXPECT_EQ(answer.count, 1);
}

// By every way that changes the entry: what nobody has checked is never saved.
TEST_F(PimPageTest, KeysCannotSlipTheCalendarIn) {
    InstallOthers();
    Store(L"PimSw", 1);
    const MessageBoxAnswer answer(IDOK);
    Open();
    SetFocus(Control(kApplication));
    PressInList({VK_UP}); // The list is closed, and 4 stands above 1.
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(settingsStore.PimSw.value, 0u);
    const MSG right{Control(kApplication), WM_KEYDOWN, VK_RIGHT, 0, 0, {}};
    EXPECT_TRUE(TranslateNavigationKey(window_, right));
    EXPECT_EQ(answer.count, 2);
    EXPECT_EQ(ShownApplication(), 0u);

    SendMessage(Control(kApplication), CB_SHOWDROPDOWN, TRUE, 0);
    PressInList({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(ShownApplication(), 0u) << "Escape keeps the highlighted entry";
    SendMessage(Control(kApplication), CB_SHOWDROPDOWN, TRUE, 0);
    PressInList({VK_DOWN});
    EXPECT_EQ(ShownApplication(), 4u) << "only highlighted";
    Close();
    EXPECT_EQ(settingsStore.PimSw.value, 0u);
    EXPECT_EQ(answer.count, 2);
}

TEST_F(PimPageTest, RemindersStandForTheirMinutes) {
    struct Case {
        uint32_t stored;
        int shownOfAppointment;
        int shownOfTask;
        uint32_t savedOfAppointment;
        uint32_t savedOfTask;
    };
    constexpr uint32_t kNone = 949998;
    for (const Case& reminder : {Case{0, 1, 1, 0, 0},
                                 {480, 10, 17, 480, 480},
                                 {1410, 0, 48, kNone, 1410},
                                 {1440, 11, 0, 1440, kNone}}) {
        Store(L"DefaultReminderAppts", reminder.stored);
        Store(L"DefaultReminderTasks", reminder.stored);
        Open();
        EXPECT_EQ(Chosen(kAppointments), reminder.shownOfAppointment);
        EXPECT_EQ(Chosen(kTasks), reminder.shownOfTask);
        Close();
        EXPECT_EQ(settingsStore.DefaultReminderAppts.value, reminder.savedOfAppointment);
        EXPECT_EQ(settingsStore.DefaultReminderTasks.value, reminder.savedOfTask);
    }
}
} // namespace
