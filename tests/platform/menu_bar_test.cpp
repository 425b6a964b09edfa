#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"
#include "tests/support/window_support.h"

#include <commctrl.h>

namespace {

using Commands = std::vector<int>;

void TapItem(HWND bar, int index) {
    RECT place = {};
    EXPECT_TRUE(SendMessageW(bar, TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&place)));
    Tap(bar, place);
    PumpMessages();
}

void TypeKey(BYTE key) {
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    PumpMessages();
}

class MenuBarTest : public testing::Test {
  protected:
    MenuBarTest() {
        SHMENUBARINFO info = {};
        info.cbSize = sizeof(info);
        info.hwndParent = program_.window;
        info.dwFlags = SHCMBF_HMENU;
        info.nToolBarId = kSoftKeyMenu;
        info.hInstRes = GetModuleHandleW(nullptr);
        EXPECT_TRUE(SHCreateMenuBar(&info));
        bar_ = info.hwndMB;
    }

    ProgramWindow program_;
    HWND bar_;
};

TEST_F(MenuBarTest, StandsAtTheBottomAndGoesWithItsOwner) {
    const RECT area = DeviceWorkArea();
    EXPECT_EQ(PlaceOf(bar_), (RECT{0, area.bottom - BarHeight(), area.right, area.bottom}));
    EXPECT_TRUE(IsWindowVisible(bar_));
    EXPECT_EQ(GetActiveWindow(), program_.window);
    EXPECT_EQ(SHFindMenuBar(program_.window), bar_);
    DestroyWindow(program_.window);
    EXPECT_FALSE(IsWindow(bar_));
}

TEST_F(MenuBarTest, ButtonsAndMenuSendTheirCommands) {
    constexpr int kIconCommand = 46;
    TBBUTTON icon = {};
    icon.idCommand = kIconCommand;
    icon.fsState = TBSTATE_ENABLED;
    EXPECT_TRUE(SendMessageW(bar_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&icon)));
    for (const int item : {0, 1, 2})
        TapItem(bar_, item);
    const Commands all = {kSaveCommand, kExportCommand, kIconCommand};
    EXPECT_EQ(program_.commands, all);
    EXPECT_LE(program_.menuPlace.bottom, PlaceOf(bar_).top);
    EXPECT_LT(program_.menuPlace.top, program_.menuPlace.bottom);
    EXPECT_EQ(GetActiveWindow(), program_.window);

    EnableWindow(program_.window, FALSE);
    TapItem(bar_, 0);
    EXPECT_EQ(program_.commands, all);
}

TEST_F(MenuBarTest, SoftKeysAndTheOkKeyAreTheFocusedWindows) {
    SetFocus(CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, program_.window,
                             nullptr, nullptr, nullptr));
    TypeKey(VK_F1);
    TypeKey(VK_F2);
    TypeKey(VK_RETURN);
    keybd_event(VK_CONTROL, 0, 0, 0);
    TypeKey(VK_RETURN);
    const Commands all = {kSaveCommand, kExportCommand, IDOK};
    EXPECT_EQ(program_.commands, all);
    ProgramWindow other;
    TypeKey(VK_RETURN);
    keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    TypeKey(VK_F1);
    EXPECT_EQ(other.commands, Commands{IDOK});
    EXPECT_EQ(program_.commands, all);
}

TEST_F(MenuBarTest, InputPanelTakesItsRoomFromTheWindow) {
    const RECT area = DeviceWorkArea();
    const RECT lowered = {0, area.top, area.right, area.bottom - BarHeight()};
    RECT raised = lowered;
    raised.bottom -= Pixels(80);
    SipShowIM(SIPF_ON);
    EXPECT_EQ(PlaceOf(program_.window), raised);
    // A window that opens has the panel lowered; back in the first, it is raised again.
    {
        const ProgramWindow other;
        EXPECT_EQ(PlaceOf(program_.window), lowered);
    }
    EXPECT_EQ(PlaceOf(program_.window), raised);
    SipShowIM(SIPF_OFF);
    EXPECT_EQ(PlaceOf(program_.window), lowered);
}

} // namespace
