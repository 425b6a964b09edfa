#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"

namespace {

// What a dialog looks like once it is open.
struct DialogRun {
    BOOL initialised = FALSE;
    RECT place = {};
    RECT client = {};
    BOOL panelRaised = FALSE;
};

constexpr UINT kOpened = WM_APP;

INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    static DialogRun* run;
    switch (message) {
    case WM_INITDIALOG: {
        run = reinterpret_cast<DialogRun*>(lParam);
        SHINITDLGINFO info = {SHIDIM_FLAGS, dialog,
                              SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN};
        run->initialised = SHInitDialog(&info);
        PostMessageW(dialog, kOpened, 0, 0);
        return TRUE;
    }
    case kOpened:
        GetClientRect(dialog, &run->client);
        run->place = PlaceOf(dialog);
        run->panelRaised = FindWindowW(L"StandInInputPanel", nullptr) != nullptr;
        TapAt(NavigationBarWindow(), NavigationButton());
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

TEST(DialogTest, FullScreenDialogEndsByDone) {
    ProgramWindow program;
    const RECT area = DeviceWorkArea();
    const LONG aboveBar = area.bottom - BarHeight();

    DialogRun done;
    SipShowIM(SIPF_ON);
    EXPECT_EQ(DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kDialog), program.window,
                              DialogProc, reinterpret_cast<LPARAM>(&done)),
              IDOK);
    EXPECT_TRUE(done.initialised);
    EXPECT_FALSE(done.panelRaised);
    EXPECT_EQ(done.place, (RECT{0, area.top, area.right, aboveBar}));
    EXPECT_EQ(done.client, (RECT{0, 0, area.right, aboveBar - area.top}));
}

TEST(DialogTest, FocusReturnsToTheControlThatHadIt) {
    ProgramWindow program;
    const auto child = [&] {
        return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, program.window,
                               nullptr, nullptr, nullptr);
    };
    const HWND first = child();
    const HWND second = child();
    for (const HWND control : {first, second}) {
        SetFocus(control);
        const ProgramWindow other;
        EXPECT_EQ(GetFocus(), other.window);
        EXPECT_FALSE(program.activation.fActive);
        SetForegroundWindow(program.window);
        EXPECT_EQ(GetFocus(), control);
        EXPECT_TRUE(program.activation.fActive);
    }
    // Without that control, the window itself takes the focus.
    {
        const ProgramWindow other;
        DestroyWindow(second);
    }
    EXPECT_EQ(GetFocus(), program.window);
}

} // namespace
