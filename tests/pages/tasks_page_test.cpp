#include "pages/tasks_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/page_fixture.h"
#include "ui/key_navigation.h"

namespace {
constexpr wchar_t kTasks[] = L"Software\\Teskel\\Orvane\\Tasks";
constexpr int kIconsTab = 2;
// Each chooser's buttons follow its label.
constexpr int kLeft1 = 1216;
constexpr int kLeft2 = 1218;
constexpr int kRight = 1220;
constexpr int kCustomDate = 1221;

class TasksPageTest : public PageFixture {
  protected:
    TasksPageTest() : PageFixture(2) {}

    void SetUp() override {
        PageFixture::SetUp();
        LoadArt();
    }

    HWND OpenIcons(uint32_t left1, uint32_t left2, uint32_t right) {
        SetNumber(HKEY_CURRENT_USER, kTasks, L"TaskTabLeftAlignIcon1", left1);
        SetNumber(HKEY_CURRENT_USER, kTasks, L"TaskTabLeftAlignIcon2", left2);
        SetNumber(HKEY_CURRENT_USER, kTasks, L"TasksRightIcons", right);
        HWND window = Open();
        ShowTab(kIconsTab);
        PumpMessages();
        return window;
    }

    // From the menu of a left chooser; entry 0 is none.
    void ChooseLeft(int id, int entry) const {
        HWND strip = GetDlgItem(page_->hwnd, id);
        // They wait for the menu's own message loop.
        for (int i = 0; i <= entry; ++i)
            PostMessage(strip, WM_KEYDOWN, VK_DOWN, 0);
        PostMessage(strip, WM_KEYDOWN, VK_RETURN, 0);
        SendMessage(strip, BM_CLICK, 0, 0);
    }

    // A tap on one of the eight buttons of the right icons.
    void TapRight(int button) const {
        HWND strip = GetDlgItem(page_->hwnd, kRight);
        RECT client{};
        GetClientRect(strip, &client);
        const LPARAM place = MAKELPARAM(client.right * (2 * button + 1) / 16, client.bottom / 2);
        SendMessage(strip, WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessage(strip, WM_LBUTTONUP, 0, place);
    }

    void ExpectIcons(uint32_t left1, uint32_t left2, uint32_t right) const {
        EXPECT_EQ(settingsStore.TaskTabLeftAlignIcon1.value, left1);
        EXPECT_EQ(settingsStore.TaskTabLeftAlignIcon2.value, left2);
        EXPECT_EQ(settingsStore.TasksRightIcons.value, right);
    }
};

TEST_F(TasksPageTest, SavesTheTextsOfCustomDatesAsTyped) {
    SetText(HKEY_CURRENT_USER, kTasks, L"CustomDateFrmtStart", L"d.M.");
    SetText(HKEY_CURRENT_USER, kTasks, L"CustomDateFrmtEnd", L"ddd");
    HWND window = Open();
    EXPECT_EQ(TextOf(GetDlgItem(window, 1223)), L"d.M.");
    EXPECT_EQ(TextOf(GetDlgItem(window, 1225)), L"ddd");
    SetDlgItemText(window, 1223, L"");
    SetDlgItemText(window, 1225, std::wstring(300, L'%').c_str());
    Close();
    EXPECT_EQ(settingsStore.CustomDateFrmtStart.value.CStr(), std::wstring());
    EXPECT_EQ(settingsStore.CustomDateFrmtEnd.value.CStr(), std::wstring(255, L'%'));
}

TEST_F(TasksPageTest, EnablesCustomDatesByTheirBox) {
    HWND window = Open();
    for (const bool isOn : {false, true, false}) {
        for (int id = kCustomDate + 1; id <= kCustomDate + 6; ++id)
            EXPECT_EQ(IsEnabled(id), isOn) << id;
        Tap(window, kCustomDate);
    }
    Close();
}

TEST_F(TasksPageTest, AnIndexOutOfRangeShowsAndSavesNoSelection) {
    SetNumber(HKEY_CURRENT_USER, kTasks, L"TsksFoldingType", 5);
    SetNumber(HKEY_CURRENT_USER, kTasks, L"TsksDateFrmt", 0x80000000);
    HWND window = Open();
    EXPECT_EQ(SendDlgItemMessage(window, 1212, CB_GETCURSEL, 0, 0), CB_ERR);
    EXPECT_EQ(SendDlgItemMessage(window, 1201, CB_GETCURSEL, 0, 0), CB_ERR);
    Close();
    EXPECT_EQ(settingsStore.TsksFoldingType.value, 0xFFFFFFFFu);
    EXPECT_EQ(settingsStore.TsksDateFrmt.value, 0xFFFFFFFFu);
}

// From the clock, told apart from the page's own arithmetic by the C library's.
TEST_F(TasksPageTest, DatesSamplesFromTodayToAWeekLater) {
    const std::wstring samples = EntriesOf(GetDlgItem(Open(), 1201));
    Close();
    const time_t now = time(nullptr);
    tm today = *localtime(&now);
    tm later = today;
    later.tm_mday += 7;
    later.tm_hour = 12; // Clear of the hour that daylight saving adds or takes.
    mktime(&later);
    const auto date = [](const tm& day, bool dayFirst, bool withYear) {
        const int month = day.tm_mon + 1;
        std::wstring text = std::to_wstring(dayFirst ? day.tm_mday : month) + L"/" +
                            std::to_wstring(dayFirst ? month : day.tm_mday);
        const std::wstring year = std::to_wstring(day.tm_year % 100 + 100).substr(1);
        return withYear ? text + L"/" + year : text;
    };
    const std::wstring start = L" " + std::wstring(LanguageText(IDS_TASKS_DATE_START).CStr());
    const std::wstring due = std::wstring(LanguageText(IDS_TASKS_DATE_DUE).CStr()) + L" ";
    std::wstring expected;
    for (const bool dayFirst : {false, true}) {
        const std::wstring from = date(today, dayFirst, false);
        const std::wstring to = date(later, dayFirst, false);
        const std::wstring fromYear = date(today, dayFirst, true);
        const std::wstring toYear = date(later, dayFirst, true);
        for (const std::wstring& sample : {from + L" - " + toYear, from + L" - " + to,
                                           fromYear + start, due + toYear, from + start, due + to})
            expected += (expected.empty() ? L"" : L"|") + sample;
    }
    EXPECT_EQ(samples, expected);
}

TEST_F(TasksPageTest, AnIconChosenAtTheLeftLeavesTheRight) {
    OpenIcons(0, 0, 383);
    ChooseLeft(kLeft1, 5);
    ExpectIcons(16, 0, 367);
    TapRight(4);
    ExpectIcons(16, 0, 367); // Withdrawn.
    ChooseLeft(kLeft1, 1);
    TapRight(4);
    ExpectIcons(1, 0, 382); // What the left gave back can be chosen again.
    ChooseLeft(kLeft2, 1);
    ChooseLeft(kLeft1, 0);
    TapRight(0);
    ExpectIcons(0, 1, 382); // The other left icon still has it.
    ChooseLeft(kLeft2, 8);
    TapRight(0);
    ExpectIcons(0, 256, 127);
    Close();
}

TEST_F(TasksPageTest, WhatStandsAtTheLeftIsWithdrawnFromTheStart) {
    OpenIcons(16, 3, 383 | 0x80000080);
    TapRight(4);
    ExpectIcons(16, 3, 383 | 0x80000080);
    TapRight(0);
    ExpectIcons(16, 3, 383 - 16 - 1); // Only what the chooser shows counts.
    Close();
    EXPECT_EQ(settingsStore.TaskTabLeftAlignIcon2.value, 3u) << "an unknown icon stays";
    EXPECT_FALSE(settingsStore.TaskTabLeftAlignIcon2.changed);
}

TEST_F(TasksPageTest, AMenuLeftWithoutAChoiceChangesNothing) {
    OpenIcons(1, 0, 8);
    HWND strip = GetDlgItem(page_->hwnd, kLeft1);
    PostMessage(strip, WM_KEYDOWN, VK_DOWN, 0);
    PostMessage(strip, WM_KEYDOWN, VK_ESCAPE, 0);
    SendMessage(strip, BM_CLICK, 0, 0);
    ExpectIcons(1, 0, 8);
    EXPECT_FALSE(settingsStore.TaskTabLeftAlignIcon1.changed);
    Close();
}

TEST_F(TasksPageTest, TheIconsAreWorkedByKeys) {
    HWND window = OpenIcons(2, 0, 1 | 4);
    const auto press = [window](WPARAM key) {
        const MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(TranslateNavigationKey(window, message));
    };
    FocusFirstControl(window);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kLeft1);
    press(VK_RIGHT);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kLeft2);
    press(VK_DOWN);
    press(VK_RIGHT); // Past the withdrawn one.
    press(VK_RETURN);
    ExpectIcons(2, 0, 1);
    press(VK_LEFT);
    press(VK_RETURN);
    ExpectIcons(2, 0, 0);
    press(VK_LEFT); // No further button.
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kLeft2);
    Close();
}

// The screen's pointer follows in its own time.
void MovePointer(int x, int y) {
    constexpr int kMostTurns = 100;
    SetCursorPos(x, y);
    POINT now{-1, -1};
    for (int turn = 0; turn < kMostTurns && (now.x != x || now.y != y); ++turn) {
        Sleep(10);
        PumpMessages();
        GetCursorPos(&now);
    }
}

TEST_F(TasksPageTest, AHeldButtonNamesItsIcon) {
    OpenIcons(0, 0, 0);
    HWND strip = GetDlgItem(page_->hwnd, kRight);
    POINT note{2, 2};
    MapWindowPoints(strip, nullptr, &note, 1);
    const auto rest = [strip] {
        SendMessage(strip, WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
        SendMessage(strip, WM_TIMER, 1, 0);
        return FindWindow(L"ToolTipWindow", nullptr);
    };
    MovePointer(note.x, note.y);
    HWND tip = rest();
    ASSERT_TRUE(tip);
    EXPECT_EQ(TextOf(tip), LanguageText(IDS_ICON_NOTE).CStr());
    SendMessage(strip, WM_TIMER, 1, 0);
    EXPECT_FALSE(IsWindow(tip));
    MovePointer(note.x, note.y - ScaleY(40));
    EXPECT_FALSE(rest()) << "the pen has gone elsewhere";
    EXPECT_FALSE(KillTimer(strip, 1));
    Close();
}

TEST_F(TasksPageTest, ATapThatLosesThePenPressesNothing) {
    OpenIcons(0, 0, 0);
    HWND strip = GetDlgItem(page_->hwnd, kRight);
    SendMessage(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    ReleaseCapture(); // As a window does that comes up in front.
    SendMessage(strip, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    ExpectIcons(0, 0, 0);
    TapRight(0);
    ExpectIcons(0, 0, 1);
    Close();
}

TEST_F(TasksPageTest, TheSampleFollowsEachChoiceAtOnce) {
    HWND window = OpenIcons(0, 0, 0);
    RECT strip{};
    GetWindowRect(GetDlgItem(window, kRight), &strip);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&strip), 2);
    const LONG bottom = strip.bottom + ScaleY(8 + 42);
    const auto drawn = [&] { // Pixels that are not white.
        const RECT sample{0, bottom - ScaleY(20), strip.right, bottom};
        return std::ranges::count_if(PixelsOf(window, sample),
                                     [](COLORREF pixel) { return pixel != RGB(255, 255, 255); });
    };
    UpdateWindow(window);
    const auto plain = drawn();
    EXPECT_GT(plain, 0);
    TapRight(0);
    const auto oneIcon = drawn();
    EXPECT_GT(oneIcon, plain);
    ChooseLeft(kLeft1, 2);
    EXPECT_GT(drawn(), oneIcon);
    ShowTab(3);
    PumpMessages();
    EXPECT_EQ(drawn(), 0) << "the sample stands on its own tab alone";
    Close();
}
} // namespace
