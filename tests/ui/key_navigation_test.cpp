#include "ui/key_navigation.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/owner_window.h"
#include "tests/support/window_support.h"
#include "ui/controls.h"
#include "ui/list_items.h"
#include "ui/tab_strip.h"

namespace {
constexpr UINT kFirstBox = 1;
constexpr UINT kDisabledBox = 2;
constexpr UINT kHiddenBox = 3;
constexpr UINT kCombo = 4;
constexpr UINT kEditCombo = 5;
constexpr UINT kList = 6;
constexpr UINT kButton = 7;
constexpr UINT kStrip = 100;

std::string told;
HWND hiddenByTab; // A control that a switch of tabs hides.

LRESULT CALLBACK RootProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
        told += "click" + std::to_string(LOWORD(wParam)) + " ";
    if (message == WM_COMMAND && HIWORD(wParam) == CBN_SELCHANGE && LOWORD(wParam) == kCombo)
        told += "choice ";
    if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == TCN_SELCHANGE) {
        told += "tab ";
        if (hiddenByTab) ShowWindow(hiddenByTab, SW_HIDE);
    }
    return DefWindowProc(window, message, wParam, lParam);
}

// A window with one control of each kind, in a ring that begins with the tab strip.
class KeyNavigation : public testing::Test {
  protected:
    void SetUp() override {
        root_ = CreateOwner();
        SetWindowLongPtr(root_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RootProc));
        strip_ = Add(WC_TABCONTROL, 0, kStrip, 280);
        for (int i = 0; i < 3; ++i)
            InsertTab(strip_, i, L"Tab");
        Add(L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, kFirstBox, 0);
        EnableWindow(Add(L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, kDisabledBox, 20), FALSE);
        ShowWindow(Add(L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, kHiddenBox, 40), SW_HIDE);
        for (HWND combo : {Add(L"COMBOBOX", WS_TABSTOP | CBS_DROPDOWNLIST, kCombo, 60),
                           Add(L"COMBOBOX", WS_TABSTOP | CBS_DROPDOWN, kEditCombo, 80)}) {
            AddEntry(combo, L"one");
            AddEntry(combo, L"two");
        }
        HWND list = Add(WC_LISTVIEW, WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL, kList, 100);
        AddColumn(list);
        AddRow(list, L"one");
        Add(L"BUTTON", WS_TABSTOP, kButton, 240);
        FocusFirstControl(root_);
        told.clear();
    }
    void TearDown() override { DestroyWindow(root_); }

    HWND Add(const wchar_t* className, DWORD style, UINT id, int y) {
        return CreateControl(root_, className, L"", style, id, {0, y, 100, id == kList ? 120 : 18},
                             nullptr);
    }

    // Presses a key where the focus is, through the message loop's two steps.
    void Press(WPARAM key) {
        const MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        if (!TranslateNavigationKey(root_, message)) SendMessage(message.hwnd, WM_KEYDOWN, key, 0);
        PumpMessages();
    }

    // The id of the control of the root that has the focus.
    UINT Focused() {
        HWND window = GetFocus();
        while (window && GetParent(window) != root_)
            window = GetParent(window);
        return static_cast<UINT>(GetDlgCtrlID(window));
    }

    HWND root_ = nullptr;
    HWND strip_ = nullptr;
};

TEST_F(KeyNavigation, TabGoesRoundPastHiddenAndDisabledControls) {
    for (UINT expected : {kCombo, kEditCombo, kList, kButton, kStrip, kFirstBox}) {
        Press(VK_TAB);
        EXPECT_EQ(Focused(), expected);
    }
}

TEST_F(KeyNavigation, LeftAndRightChooseOnAClosedListAndTellThePage) {
    SetFocus(GetDlgItem(root_, kCombo));
    Press(VK_RIGHT);
    EXPECT_EQ(SelectedIndex(root_, kCombo), 0);
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    EXPECT_EQ(SelectedIndex(root_, kCombo), 1) << "stops at the last entry";
    Press(VK_LEFT);
    Press(VK_LEFT);
    EXPECT_EQ(SelectedIndex(root_, kCombo), 0);
    EXPECT_EQ(told, "choice choice choice ");
}

TEST_F(KeyNavigation, AnOpenListHasTheKeysUntilEnter) {
    HWND combo = GetDlgItem(root_, kCombo);
    SetFocus(combo);
    Press(VK_RETURN);
    ASSERT_TRUE(SendMessage(combo, CB_GETDROPPEDSTATE, 0, 0));
    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_EQ(Focused(), kCombo);
    Press(VK_RETURN);
    EXPECT_FALSE(SendMessage(combo, CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(SelectedIndex(root_, kCombo), 1);
}

TEST_F(KeyNavigation, EnterPressesAndNeverCloses) {
    SetFocus(GetDlgItem(root_, kFirstBox));
    Press(VK_RETURN);
    EXPECT_TRUE(IsBoxChecked(root_, kFirstBox));
    SetFocus(GetDlgItem(root_, kButton));
    Press(VK_RETURN);
    EXPECT_EQ(told, "click1 click7 ");
}

TEST_F(KeyNavigation, ArrowsOnTheStripSwitchTabsWithNotice) {
    SetFocus(strip_);
    Press(VK_RIGHT);
    Press(VK_LEFT);
    Press(VK_LEFT);
    EXPECT_EQ(SendMessage(strip_, TCM_GETCURSEL, 0, 0), 2) << "the strip is a ring";
    EXPECT_EQ(told, "tab tab tab ");
}

TEST_F(KeyNavigation, AKeyToTheWindowItselfFindsTheFirstControl) {
    for (const WPARAM key : {VK_TAB, VK_DOWN, VK_UP, VK_RETURN}) {
        SetFocus(root_);
        Press(key);
        EXPECT_EQ(Focused(), kFirstBox) << key;
    }
}

TEST_F(KeyNavigation, CtrlTabSwitchesFromAnywhereAndKeepsAFocus) {
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    hiddenByTab = GetDlgItem(root_, kFirstBox);
    Press(VK_TAB);
    hiddenByTab = nullptr;
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
    EXPECT_EQ(SendMessage(strip_, TCM_GETCURSEL, 0, 0), 1);
    EXPECT_EQ(Focused(), kCombo) << "the focused box was on the tab that is hidden now";
}

TEST_F(KeyNavigation, LeavesOtherWindowsAlone) {
    const MSG message{GetDesktopWindow(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_FALSE(TranslateNavigationKey(root_, message));
}
} // namespace
