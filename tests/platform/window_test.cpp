#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"

namespace {

TEST(WindowTest, FillsTheWorkAreaWithoutAFrame) {
    const RECT area = DeviceWorkArea();
    const RECT whole = {0, 0, area.right, area.bottom - area.top};
    for (const DWORD style : {0x14000800UL, DWORD{WS_OVERLAPPEDWINDOW}, DWORD{WS_POPUP}}) {
        const ProgramWindow program(style);
        RECT client = {};
        GetClientRect(program.window, &client);
        EXPECT_EQ(PlaceOf(program.window), area) << style;
        EXPECT_EQ(client, whole) << style;
        EXPECT_EQ(program.clientAtCreation, whole) << style;
    }
}

TEST(WindowTest, FocusReturnsToTheControlThatHadIt) {
    const ProgramWindow program;
    const auto child = [&] {
        return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, program.window,
                               nullptr, nullptr, nullptr);
    };
    child();
    const HWND second = child();
    SetFocus(second);
    {
        const ProgramWindow other;
        EXPECT_EQ(GetFocus(), other.window);
    }
    EXPECT_EQ(GetFocus(), second);
    // Without that control, the window itself takes the focus.
    {
        const ProgramWindow other;
        DestroyWindow(second);
    }
    EXPECT_EQ(GetFocus(), program.window);
}

struct DialogRun {
    RECT place = {};
    RECT client = {};
    BOOL panelRaised = TRUE;
};

INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT kOpened = WM_APP;
    static DialogRun* run;
    if (message == WM_INITDIALOG) {
        run = reinterpret_cast<DialogRun*>(lParam);
        SHINITDLGINFO info = {SHIDIM_FLAGS, dialog,
                              SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN};
        EXPECT_TRUE(SHInitDialog(&info));
        PostMessageW(dialog, kOpened, 0, 0);
        return TRUE;
    }
    if (message == kOpened) {
        run->place = PlaceOf(dialog);
        GetClientRect(dialog, &run->client);
        run->panelRaised = FindWindowW(L"StandInInputPanel", nullptr) != nullptr;
        const HWND bar = FindWindowW(L"StandInNavigationBar", nullptr);
        const int width = DeviceWorkArea().right;
        Tap(bar, {width - BarHeight(), 0, width, BarHeight()});
        return TRUE;
    }
    if (message == WM_COMMAND) EndDialog(dialog, LOWORD(wParam));
    return FALSE;
}

TEST(WindowTest, FullScreenDialogEndsByDone) {
    const ProgramWindow program;
    const RECT area = DeviceWorkArea();
    const LONG aboveBar = area.bottom - BarHeight();
    DialogRun done;
    SipShowIM(SIPF_ON);
    EXPECT_EQ(DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kDialog), program.window,
                              DialogProc, reinterpret_cast<LPARAM>(&done)),
              IDOK);
    EXPECT_FALSE(done.panelRaised);
    EXPECT_EQ(done.place, (RECT{0, area.top, area.right, aboveBar}));
    EXPECT_EQ(done.client, (RECT{0, 0, area.right, aboveBar - area.top}));
}

} // namespace
