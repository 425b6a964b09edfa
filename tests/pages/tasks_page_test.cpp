#include "pages/tasks_page.h"

#include <algorithm>

#include "tests/support/page_fixture.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kDates = 1201;
constexpr int kFoldStart = 1212;
// Each chooser's buttons follow its label.
constexpr int kLeft1 = 1216;
constexpr int kLeft2 = 1218;
constexpr int kRight = 1220;
constexpr int kCustomStart = 1223;
constexpr int kCustomDue = 1225;

class TasksPageTest : public PageFixture {
  protected:
    TasksPageTest() : PageFixture(2, L"\\Tasks") {}

    void OpenIcons(uint32_t left1, uint32_t left2, uint32_t right) {
        Store(L"TaskTabLeftAlignIcon1", left1);
        Store(L"TaskTabLeftAlignIcon2", left2);
        Store(L"TasksRightIcons", right);
        Open();
        ShowTab(2);
        PumpMessages();
    }

    // From the menu of a left chooser; entry 0 is none.
    void ChooseLeft(int id, int entry, WPARAM answer = VK_RETURN) const {
        // They wait for the menu's own message loop.
        for (int i = 0; i <= entry; ++i)
            PostMessage(Control(id), WM_KEYDOWN, VK_DOWN, 0);
        PostMessage(Control(id), WM_KEYDOWN, answer, 0);
        SendMessage(Control(id), BM_CLICK, 0, 0);
    }

    // A tap on one of the eight buttons of the right icons.
    void TapRight(int button) const {
        RECT client{};
        GetClientRect(Control(kRight), &client);
        const LPARAM place = MAKELPARAM(client.right * (2 * button + 1) / 16, client.bottom / 2);
        SendMessage(Control(kRight), WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessage(Control(kRight), WM_LBUTTONUP, 0, place);
    }

    static void ExpectIcons(uint32_t left1, uint32_t left2, uint32_t right) {
        EXPECT_EQ(settingsStore.TaskTabLeftAlignIcon1.value, left1);
        EXPECT_EQ(settingsStore.TaskTabLeftAlignIcon2.value, left2);
        EXPECT_EQ(settingsStore.TasksRightIcons.value, right);
    }
};

TEST_F(TasksPageTest, SavesTheTextsOfCustomDatesAsTyped) {
    Store(L"CustomDateFrmtStart", L"d.M.");
    Store(L"CustomDateFrmtEnd", L"ddd");
    Open();
    EXPECT_EQ(TextOf(Control(kCustomStart)), L"d.M.");
    EXPECT_EQ(TextOf(Control(kCustomDue)), L"ddd");
    SetDlgItemText(window_, kCustomStart, L"");
    SetDlgItemText(window_, kCustomDue, std::wstring(300, L'%').c_str());
    Close();
    EXPECT_STREQ(settingsStore.CustomDateFrmtStart.value.CStr(), L"");
    EXPECT_EQ(settingsStore.CustomDateFrmtEnd.value.CStr(), std::wstring(255, L'%'));
}

TEST_F(TasksPageTest, AnIndexOutOfRangeShowsAndSavesNoSelection) {
    Store(L"TsksFoldingType", 5);
    Store(L"TsksDateFrmt", 0x80000000);
    Open();
    EXPECT_EQ(Chosen(kFoldStart), CB_ERR);
    EXPECT_EQ(Chosen(kDates), CB_ERR);
    Close();
    EXPECT_EQ(settingsStore.TsksFoldingType.value, 0xFFFFFFFFu);
    EXPECT_EQ(settingsStore.TsksDateFrmt.value, 0xFFFFFFFFu);
}

// By the C library's calendar, which is not the page's own.
TEST_F(TasksPageTest, DatesSamplesFromTodayToAWeekLater) {
    const time_t now = time(nullptr);
    const tm today = *localtime(&now);
    tm later = today;
    later.tm_mday += 7;
    later.tm_hour = 12; // Clear of the hour that daylight saving adds or takes.
    mktime(&later);
    wchar_t first[64];
    swprintf(first, 64, L"%d/%d - %d/%d/%02d|", today.tm_mon + 1, today.tm_mday, later.tm_mon + 1,
             later.tm_mday, later.tm_year % 100);
    Open();
    const std::wstring samples = EntriesOf(Control(kDates));
    EXPECT_EQ(samples.find(first), 0u);
    EXPECT_TRUE(samples.ends_with(Text(IDS_TASKS_DATE_START) + L"|" + Text(IDS_TASKS_DATE_DUE) +
                                  L" " + std::to_wstring(later.tm_mday) + L"/" +
                                  std::to_wstring(later.tm_mon + 1)));
    EXPECT_EQ(std::ranges::count(samples, L'|'), 11);
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
    ChooseLeft(kLeft2, 8, VK_ESCAPE);
    ExpectIcons(0, 1, 382); // The menu was left without a choice.
    ChooseLeft(kLeft2, 8);
    TapRight(0);
    ExpectIcons(0, 256, 127);
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

TEST_F(TasksPageTest, TheIconsAreWorkedByKeys) {
    OpenIcons(2, 0, 1 | 4);
    const auto press = [this](WPARAM key) {
        const MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(TranslateNavigationKey(window_, message));
    };
    FocusFirstControl(window_);
    EXPECT_EQ(GetFocus(), Control(kLeft1));
    press(VK_RIGHT);
    EXPECT_EQ(GetFocus(), Control(kLeft2));
    press(VK_DOWN);
    press(VK_RIGHT); // Past the withdrawn one.
    press(VK_RETURN);
    ExpectIcons(2, 0, 1);
    press(VK_LEFT);
    press(VK_RETURN);
    ExpectIcons(2, 0, 0);
    press(VK_LEFT); // No further button.
    EXPECT_EQ(GetFocus(), Control(kLeft2));
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

TEST_F(TasksPageTest, AHeldButtonNamesItsIconAndPressesNothingWithoutThePen) {
    OpenIcons(0, 0, 0);
    HWND strip = Control(kRight);
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
    EXPECT_EQ(TextOf(tip), Text(IDS_ICON_NOTE));
    SendMessage(strip, WM_TIMER, 1, 0);
    EXPECT_FALSE(IsWindow(tip));
    MovePointer(note.x, note.y - ScaleY(40));
    EXPECT_FALSE(rest()) << "the pen has gone elsewhere";
    EXPECT_FALSE(KillTimer(strip, 1));

    SendMessage(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    ReleaseCapture(); // As a window does that comes up in front.
    SendMessage(strip, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    ExpectIcons(0, 0, 0);
    TapRight(0);
    ExpectIcons(0, 0, 1);
}

TEST_F(TasksPageTest, TheSampleFollowsEachChoiceAtOnce) {
    OpenIcons(0, 0, 0);
    RECT strip{};
    GetWindowRect(Control(kRight), &strip);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&strip), 2);
    const auto drawn = [&] { // Pixels that are not white.
        const RECT sample{0, strip.bottom + ScaleY(30), strip.right, strip.bottom + ScaleY(50)};
        return std::ranges::count_if(PixelsOf(window_, sample),
                                     [](COLORREF pixel) { return pixel != RGB(255, 255, 255); });
    };
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
}
} // namespace
