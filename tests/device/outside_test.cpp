// The installed program, worked from outside: real taps, real keys, the device's own registry.
#include "tools/drivers/program_driver.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/support/window_support.h"

namespace {
constexpr int kGeneralRow = 0;

class Outside : public testing::Test {
  protected:
    void SetUp() override { DeleteSettings(); }
};

// First, while the sample's registry is still as it was installed.
TEST(SampleDevice, ABareOkChangesNothingButTheTabNumbers) {
    const RegistryTree before = SettingsTree();
    ASSERT_GT(before.size(), 100u) << "the sample registry";
    Program program;
    ASSERT_TRUE(program.WaitForPageList());
    TapOk();
    EXPECT_EQ(program.WaitForExit(), 0u);
    RegistryTree after = SettingsTree();
    for (const auto& [name, value] : before) {
        if (name.find(L"TabOrder") != std::wstring::npos ||
            name.find(L"\\Order") != std::wstring::npos)
            continue;
        EXPECT_EQ(after[name], value) << std::string(name.begin(), name.end());
    }
}

TEST_F(Outside, ChangesByTapsAreSavedAndTold) {
    SetNumber(HKEY_CURRENT_USER, kSettingsKey, L"OnClick", 2);
    DashboardListener dashboard;
    std::optional<uint32_t> soundWhenTold;
    dashboard.onTold = [&] { soundWhenTold = StoredNumber(L"EnableSoundEffect"); };
    Program program;
    ASSERT_TRUE(program.WaitForPageList());
    HWND page = program.OpenPage(kGeneralRow);
    ASSERT_NE(page, nullptr);
    // OnClick back to its default, by keys; on the second tab sound off, by a tap.
    ASSERT_TRUE(WaitUntil([&] { return SendDlgItemMessage(page, 1201, CB_GETCURSEL, 0, 0) == 2; }));
    Press(VK_LEFT);
    Press(VK_LEFT);
    EXPECT_TRUE(WaitUntil([&] { return SendDlgItemMessage(page, 1201, CB_GETCURSEL, 0, 0) == 0; }));
    Press(VK_UP);
    Press(VK_RIGHT);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowVisible(GetDlgItem(page, 1217)) != FALSE; }));
    TapOn(GetDlgItem(page, 1217));
    EXPECT_TRUE(WaitUntil([&] { return IsDlgButtonChecked(page, 1217) == 0; }));
    TapOk();
    EXPECT_TRUE(GoesAway(page));
    EXPECT_FALSE(StoredNumber(L"EnableSoundEffect")) << "written by the page's OK";
    TapOk();
    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_TRUE(WaitUntil([&] {
        dashboard.Listen();
        return dashboard.timesTold > 0;
    }));
    Sleep(200);
    dashboard.Listen();
    EXPECT_EQ(dashboard.timesTold, 1);
    EXPECT_EQ(soundWhenTold, 0u) << "told before the values were written";
    EXPECT_FALSE(StoredNumber(L"OnClick")) << "a default is deleted";
}

// By keys alone: the right soft key's menu, the name as it is offered, Enter.
void RunBackupCommand(const Program& program, int entriesDown, const wchar_t* dialogClass) {
    Press(VK_F2);
    Sleep(200);
    for (int i = 0; i < entriesDown; ++i)
        Press(VK_DOWN);
    Press(VK_RETURN);
    HWND dialog = program.WaitForWindow(dialogClass);
    ASSERT_NE(dialog, nullptr);
    // The list of the dialog that opens files has the focus: its last row is the backup.
    if (entriesDown > 0) Press(VK_END);
    Press(VK_RETURN);
    EXPECT_TRUE(GoesAway(dialog));
    HWND message = program.WaitForMessageBox();
    ASSERT_NE(message, nullptr);
    Press(VK_RETURN);
    EXPECT_TRUE(GoesAway(message));
}

TEST_F(Outside, ABackupBringsEverythingBack) {
    SetNumber(HKEY_CURRENT_USER, kSettingsKey, L"OnClick", 2);
    SetText(HKEY_CURRENT_USER, std::wstring(kSettingsKey) + L"\\Notes\\Folders", L"0", L"\\My");
    Program program;
    ASSERT_TRUE(program.WaitForPageList());
    RunBackupCommand(program, 0, L"SaveFileWin");
    EXPECT_TRUE(program.IsRunning());
    const RegistryTree before = SettingsTree();
    DeleteSettings();
    SetNumber(HKEY_CURRENT_USER, kSettingsKey, L"GoofyMode", 1);
    DashboardListener dashboard;
    RunBackupCommand(program, 1, L"LoadFileWin");
    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_TRUE(WaitUntil([&] {
        dashboard.Listen();
        return dashboard.timesTold == 1;
    }));
    EXPECT_EQ(SettingsTree(), before);
}

TEST_F(Outside, CancelAsksFirst) {
    DashboardListener dashboard;
    Program program;
    HWND window = program.WaitForPageList();
    HWND page = program.OpenPage(kGeneralRow);
    ASSERT_NE(page, nullptr);
    TapOn(GetDlgItem(page, 1206));
    TapOk();
    ASSERT_TRUE(GoesAway(page));
    for (const int answer : {IDNO, IDYES}) {
        PostMessage(window, WM_COMMAND, IDCANCEL, 0);
        HWND question = program.WaitForMessageBox();
        ASSERT_NE(question, nullptr);
        TapOn(GetDlgItem(question, answer));
        ASSERT_TRUE(GoesAway(question));
        if (answer == IDYES) break;
        // The keys work again, and the change is still in the store.
        Press(VK_RETURN);
        page = program.WaitForWindow(L"GeneralSettingsWin");
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(IsDlgButtonChecked(page, 1206), 0u);
        TapOk();
        ASSERT_TRUE(GoesAway(page));
    }
    EXPECT_EQ(program.WaitForExit(), 0u);
    dashboard.Listen();
    EXPECT_EQ(dashboard.timesTold, 0);
    EXPECT_FALSE(StoredNumber(L"AutoHeight"));
}

TEST_F(Outside, ASecondStartBringsTheFirstForward) {
    Program first;
    HWND window = first.WaitForPageList();
    for (const bool withPage : {false, true}) {
        HWND front = withPage ? first.OpenPage(kGeneralRow) : window;
        ASSERT_NE(front, nullptr);
        HWND cover = CreateWindowEx(WS_EX_TOPMOST, L"Static", L"cover", WS_POPUP | WS_VISIBLE, 0, 0,
                                    100, 100, nullptr, nullptr, nullptr, nullptr);
        SetForegroundWindow(cover);
        PumpMessages();
        Program second;
        EXPECT_EQ(second.WaitForExit(), 0u);
        EXPECT_TRUE(WaitUntil([&] {
            PumpMessages();
            return GetForegroundWindow() == front;
        })) << withPage;
        DestroyWindow(cover);
        EXPECT_TRUE(first.IsRunning());
    }
}

TEST_F(Outside, AboutOpensForExactlyThatWord) {
    {
        Program program(L"About");
        HWND about = program.WaitForWindow(L"AboutWin");
        ASSERT_NE(about, nullptr);
        TapOn(GetDlgItem(about, IDOK));
        EXPECT_TRUE(GoesAway(about));
        EXPECT_TRUE(program.WaitForPageList());
        TapOk();
        EXPECT_EQ(program.WaitForExit(), 0u);
    }
    const Program program(L"About x");
    ASSERT_TRUE(program.WaitForPageList());
    EXPECT_EQ(FindWindow(L"AboutWin", nullptr), nullptr);
}
} // namespace
