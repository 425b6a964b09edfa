#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"

#include <commctrl.h>

namespace {

using Commands = std::vector<int>;

HWND CreateBar(HWND parent, DWORD flags, UINT resource = 0) {
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = parent;
    info.dwFlags = flags;
    info.nToolBarId = resource;
    info.hInstRes = GetModuleHandleW(nullptr);
    EXPECT_TRUE(SHCreateMenuBar(&info));
    return info.hwndMB;
}

void TapItem(HWND bar, int index) {
    RECT place = {};
    EXPECT_TRUE(SendMessageW(bar, TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&place)));
    TapAt(bar, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void AddIcon(HWND bar, int command) {
    TBBUTTON button = {};
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    EXPECT_TRUE(SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button)));
}

void TypeKey(BYTE key) {
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
}

class MenuBarTest : public testing::Test {
  protected:
    ProgramWindow program_;
};

TEST_F(MenuBarTest, StandsAtTheBottomAndGoesWithItsOwner) {
    const HWND bar = CreateBar(program_.window, SHCMBF_EMPTYBAR);
    const RECT screen = Screen();
    EXPECT_EQ(PlaceOf(bar), (RECT{0, screen.bottom - BarHeight(), screen.right, screen.bottom}));
    EXPECT_TRUE(IsWindowVisible(bar));
    EXPECT_EQ(GetWindow(bar, GW_OWNER), program_.window);
    EXPECT_EQ(GetActiveWindow(), program_.window);
    EXPECT_EQ(SHFindMenuBar(program_.window), bar);
    DestroyWindow(program_.window);
    EXPECT_FALSE(IsWindow(bar));
}

TEST_F(MenuBarTest, MenuStandsOverTheSoftKeysAndCanBeChanged) {
    const HWND bar = CreateBar(program_.window, SHCMBF_HMENU, kSoftKeyMenu);
    EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 2);
    RECT left = {}, right = {};
    SendMessageW(bar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&left));
    SendMessageW(bar, TB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&right));
    EXPECT_EQ(left.left, 0);
    EXPECT_EQ(right.right, Screen().right);

    const auto menu = reinterpret_cast<HMENU>(SendMessageW(bar, SHCMBM_GETMENU, 0, 0));
    const HMENU popup = GetSubMenu(menu, 1);
    EXPECT_EQ(SendMessageW(bar, SHCMBM_GETSUBMENU, 0, 1), reinterpret_cast<LRESULT>(popup));
    EXPECT_TRUE(DeleteMenu(popup, 0, MF_BYPOSITION));
    program_.onMenuIdle = [](ProgramWindow& program) {
        PostMessageW(program.window, WM_KEYDOWN, VK_DOWN, 1);
        PostMessageW(program.window, WM_KEYDOWN, VK_RETURN, 1);
    };
    TapItem(bar, 1);
    EXPECT_TRUE(PumpUntil([&] { return !program_.commands.empty(); }));
    EXPECT_EQ(program_.commands, Commands{kExportCommand});
    EXPECT_LE(program_.menuPlace.bottom, PlaceOf(bar).top);
    EXPECT_LT(program_.menuPlace.top, program_.menuPlace.bottom);
}

TEST_F(MenuBarTest, ButtonsSendTheirCommandsWhileEnabled) {
    const HWND bar = CreateBar(program_.window, SHCMBF_HMENU, kSoftKeyMenu);
    AddIcon(bar, kIconCommand);
    EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 3);
    TapItem(bar, 0);
    TapItem(bar, 2);
    EXPECT_EQ(program_.commands, (Commands{kSaveCommand, kIconCommand}));
    EXPECT_EQ(GetActiveWindow(), program_.window);

    program_.commands.clear();
    EXPECT_TRUE(SendMessageW(bar, TB_ENABLEBUTTON, kIconCommand, FALSE));
    TapItem(bar, 2);
    EXPECT_TRUE(SendMessageW(bar, TB_ENABLEBUTTON, kIconCommand, TRUE));
    EnableWindow(program_.window, FALSE);
    TapItem(bar, 2);
    EXPECT_EQ(program_.commands, Commands{});
}

TEST_F(MenuBarTest, SoftKeysAreTheTextsOfTheFocusedWindowsBar) {
    const HWND bar = CreateBar(program_.window, SHCMBF_HMENU, kSoftKeyMenu);
    const HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20,
                                      program_.window, nullptr, nullptr, nullptr);
    SetFocus(edit);
    TypeKey(VK_F1);
    EXPECT_TRUE(PumpUntil([&] { return !program_.commands.empty(); }));
    EXPECT_EQ(program_.commands, Commands{kSaveCommand});

    // The menu of the right key opens with its first entry selected.
    program_.commands.clear();
    program_.onMenuIdle = [](ProgramWindow& program) {
        PostMessageW(program.window, WM_KEYDOWN, VK_RETURN, 1);
    };
    TypeKey(VK_F2);
    EXPECT_TRUE(PumpUntil([&] { return !program_.commands.empty(); }));
    EXPECT_EQ(program_.commands, Commands{kAboutCommand});

    program_.commands.clear();
    SendMessageW(bar, SHCMBM_OVERRIDEKEY, VK_F1, MAKELPARAM(SHMBOF_NODEFAULT, SHMBOF_NODEFAULT));
    TypeKey(VK_F1);
    EXPECT_TRUE(PumpUntil([] { return !GetInputState(); }));
    const ProgramWindow other;
    TypeKey(VK_F1);
    EXPECT_TRUE(PumpUntil([] { return !GetInputState(); }));
    EXPECT_EQ(program_.commands, Commands{});
}

TEST_F(MenuBarTest, OkKeyActsAsTheNavigationBarsOk) {
    CreateBar(program_.window, SHCMBF_EMPTYBAR);
    keybd_event(VK_CONTROL, 0, 0, 0);
    TypeKey(VK_RETURN);
    keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_TRUE(PumpUntil([&] { return !program_.commands.empty(); }));
    TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([] { return !GetInputState(); }));
    EXPECT_EQ(program_.commands, Commands{IDOK});
}

TEST_F(MenuBarTest, InputPanelTakesItsRoomFromTheWindow) {
    CreateBar(program_.window, SHCMBF_EMPTYBAR);
    const RECT area = DeviceWorkArea();
    const LONG lowered = area.bottom - BarHeight();
    SipShowIM(SIPF_ON);
    EXPECT_EQ(PlaceOf(program_.window), (RECT{0, area.top, area.right, lowered - Pixels(80)}));
    // A window that opens has the panel lowered; back in the first, it is raised again.
    {
        const ProgramWindow other;
        EXPECT_EQ(PlaceOf(program_.window).bottom, lowered);
    }
    EXPECT_EQ(PlaceOf(program_.window).bottom, lowered - Pixels(80));
    SipShowIM(SIPF_OFF);
    EXPECT_EQ(PlaceOf(program_.window), (RECT{0, area.top, area.right, lowered}));
}

} // namespace
