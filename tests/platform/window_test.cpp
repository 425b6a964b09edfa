#include <gtest/gtest.h>

#include "program_window.h"

namespace {

using Commands = std::vector<int>;

RECT ClientOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return client;
}

TEST(WindowTest, DefaultPlaceIsTheWorkArea) {
    RECT area = {};
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
    EXPECT_EQ(area, DeviceWorkArea());

    const ProgramWindow overlapped;
    EXPECT_EQ(PlaceOf(overlapped.window), area);
    const ProgramWindow popup({.style = WS_POPUP});
    EXPECT_EQ(PlaceOf(popup.window), area);
    const RECT small = {10, 40, 60, 60};
    const ProgramWindow placed({.style = WS_POPUP, .place = small});
    EXPECT_EQ(PlaceOf(placed.window), small);
}

TEST(WindowTest, OverlappedWindowHasNoFrameAndKeepsItsStyles) {
    const ProgramWindow plain({.style = 0x14000800});
    const RECT whole = {0, 0, Screen().right, Screen().bottom - BarHeight()};
    EXPECT_EQ(ClientOf(plain.window), whole);
    EXPECT_EQ(plain.clientAtCreation, whole);
    EXPECT_EQ(GetWindowLongW(plain.window, GWL_STYLE), 0x14000800);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(plain.window, GWL_EXSTYLE)), WS_EX_CAPTIONOKBTN);

    const ProgramWindow framed({.style = WS_OVERLAPPEDWINDOW, .exStyle = 0});
    EXPECT_EQ(ClientOf(framed.window), whole);
    EXPECT_TRUE(GetWindowLongW(framed.window, GWL_STYLE) & WS_NONAVDONEBUTTON);
}

TEST(WindowTest, ChangeOfSizeAloneIsToldAsAMove) {
    ProgramWindow program;
    const int before = program.moves;
    const RECT place = PlaceOf(program.window);
    MoveWindow(program.window, place.left, place.top, place.right, BarHeight(), FALSE);
    EXPECT_GT(program.moves, before);
}

TEST(WindowTest, OkIsSentOnceToTheWindowShown) {
    ProgramWindow program;
    const HWND bar = NavigationBarWindow();
    TapAt(bar, NavigationButton());
    EXPECT_EQ(program.commands, Commands{IDOK});

    ProgramWindow popup({.style = WS_POPUP | WS_VISIBLE, .owner = program.window});
    TapAt(bar, NavigationButton());
    EXPECT_EQ(popup.commands, Commands{IDOK});
    EXPECT_EQ(program.commands, Commands{IDOK});
    EXPECT_EQ(GetActiveWindow(), popup.window);
}

TEST(WindowTest, XPutsTheProgramAwayUntilItIsCalledForward) {
    ProgramWindow program({.exStyle = 0});
    const HWND bar = NavigationBarWindow();
    TapAt(bar, NavigationButton());
    EXPECT_EQ(program.commands, Commands{});
    EXPECT_TRUE(IsWindow(program.window));
    EXPECT_TRUE(IsIconic(program.window));
    EXPECT_FALSE(IsWindowVisible(bar));

    const auto handle = reinterpret_cast<UINT_PTR>(program.window);
    EXPECT_TRUE(SetForegroundWindow(reinterpret_cast<HWND>(handle | 1)));
    EXPECT_EQ(PlaceOf(program.window), DeviceWorkArea());
    EXPECT_EQ(GetForegroundWindow(), program.window);
    EXPECT_TRUE(IsWindowVisible(bar));
}

TEST(WindowTest, ForegroundRequestWithTheLowBitReachesThePopup) {
    ProgramWindow program;
    const ProgramWindow dialog({.style = WS_POPUP | WS_VISIBLE, .owner = program.window});
    EnableWindow(program.window, FALSE);
    const ProgramWindow other;
    ASSERT_EQ(GetForegroundWindow(), other.window);
    const auto handle = reinterpret_cast<UINT_PTR>(program.window);
    EXPECT_TRUE(SetForegroundWindow(reinterpret_cast<HWND>(handle | 1)));
    EXPECT_EQ(GetForegroundWindow(), dialog.window);
}

} // namespace
