#include <gtest/gtest.h>

#include "program_window.h"

namespace {

using Commands = std::vector<int>;

RECT ClientOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return client;
}

// What the navigation bar shows as its title, as a picture: the bar without the clock and button.
std::vector<COLORREF> ShownTitle() {
    const int width = Pixels(120), height = BarHeight();
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, Screen().right, height);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    SendMessageW(NavigationBarWindow(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), 0);
    std::vector<COLORREF> picture;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.push_back(GetPixel(memory, x, y));
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return picture;
}

// A click of the real pointer. Each event carries its place: what the screen says of its pointer
// meanwhile cannot come between.
void ClickScreenAt(POINT point) {
    const auto x = static_cast<DWORD>(MulDiv(point.x, 65536, Screen().right) + 1);
    const auto y = static_cast<DWORD>(MulDiv(point.y, 65536, Screen().bottom) + 1);
    for (const DWORD event : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP})
        mouse_event(MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | event, x, y, 0, 0);
}

TEST(WindowTest, DefaultPlaceIsTheWorkArea) {
    RECT area = {};
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
    EXPECT_EQ(area, DeviceWorkArea());
    EXPECT_FALSE(SystemParametersInfoW(SPI_GETWORKAREA, 0, nullptr, 0));

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

TEST(WindowTest, NavigationBarShowsTheActiveWindowsTitle) {
    ProgramWindow first({.title = L"First"});
    EXPECT_EQ(PlaceOf(NavigationBarWindow()), (RECT{0, 0, Screen().right, BarHeight()}));
    const auto firstTitle = ShownTitle();
    {
        const ProgramWindow second({.title = L"Second"});
        EXPECT_NE(ShownTitle(), firstTitle);
        SetWindowTextW(second.window, L"First");
        EXPECT_EQ(ShownTitle(), firstTitle);
        SetWindowTextW(second.window, L"Second");
    }
    EXPECT_EQ(ShownTitle(), firstTitle);

    // A pop-up without a caption is a part of its owner.
    const ProgramWindow popup(
        {.title = L"PopupClass", .style = WS_POPUP | WS_VISIBLE, .owner = first.window});
    EXPECT_EQ(GetActiveWindow(), popup.window);
    EXPECT_EQ(ShownTitle(), firstTitle);
    UpdateWindow(NavigationBarWindow());
    SetWindowTextW(first.window, L"Renamed");
    EXPECT_TRUE(GetUpdateRect(NavigationBarWindow(), nullptr, FALSE));
    EXPECT_NE(ShownTitle(), firstTitle);
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

TEST(WindowTest, PointerOnTheNavigationBarLeavesTheWindowActive) {
    ProgramWindow program;
    const int before = program.activations;
    ClickScreenAt(NavigationButton());
    EXPECT_TRUE(PumpUntil([&] { return !program.commands.empty(); }));
    EXPECT_EQ(program.commands, Commands{IDOK});
    EXPECT_EQ(program.activations, before);
    EXPECT_EQ(GetFocus(), program.window);
}

TEST(WindowTest, OkIsNotSentWhenTheTapMissesOrTheWindowIsDisabled) {
    ProgramWindow program;
    const HWND bar = NavigationBarWindow();
    TapAt(bar, {BarHeight(), BarHeight() / 2});
    const POINT button = NavigationButton();
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(button.x, button.y));
    SendMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(0, button.y));
    SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(0, button.y));
    EnableWindow(program.window, FALSE);
    TapAt(bar, button);
    EXPECT_EQ(program.commands, Commands{});
    EXPECT_EQ(GetCapture(), nullptr);
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

TEST(WindowTest, WindowWithoutButtonHasNone) {
    ProgramWindow program({.style = WS_VISIBLE | WS_NONAVDONEBUTTON, .exStyle = 0});
    TapAt(NavigationBarWindow(), NavigationButton());
    EXPECT_EQ(program.commands, Commands{});
    EXPECT_FALSE(IsIconic(program.window));
}

TEST(WindowTest, NavigationBarGoesWithTheLastWindow) {
    {
        const ProgramWindow first;
        const ProgramWindow second;
        EXPECT_TRUE(IsWindowVisible(NavigationBarWindow()));
    }
    EXPECT_EQ(NavigationBarWindow(), nullptr);
}

TEST(WindowTest, SmallPopupsLeaveTheNavigationBarAlone) {
    ProgramWindow program;
    ProgramWindow small({.style = WS_POPUP | WS_VISIBLE,
                         .exStyle = 0,
                         .place = {10, 40, 60, 60},
                         .owner = program.window});
    EXPECT_EQ(GetActiveWindow(), small.window);
    TapAt(NavigationBarWindow(), NavigationButton());
    EXPECT_EQ(program.commands, Commands{IDOK});
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
    EXPECT_TRUE(SetForegroundWindow(other.window));
    EXPECT_EQ(GetForegroundWindow(), other.window);
    EXPECT_FALSE(SetForegroundWindow(reinterpret_cast<HWND>(UINT_PTR{1})));
}

} // namespace
