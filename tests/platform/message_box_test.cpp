#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int kTextId = 0xFFFF;
constexpr wchar_t kQuestion[] =
    L"Do you really want to leave without saving any of the settings that you changed since the "
    L"program was started?";
constexpr wchar_t kPath[] =
    L"\\Storage Card\\My Documents\\AFolderWithQuiteALongName\\"
    L"AFileOfWhichTheNameIsFarWiderThanTheScreenOfADeviceIsAndHasNoSpaceAnywhere.txt";

// A message box as it stands on the screen, in pixels of the screen.
struct Shown {
    RECT box = {};
    RECT client = {};
    RECT text = {};
    RECT icon = {};
    std::vector<RECT> buttons; // From left to right.
};

Shown Measure(HWND box) {
    Shown shown;
    shown.box = PlaceOf(box);
    GetClientRect(box, &shown.client);
    MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&shown.client), 2);
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child)) continue;
        if (GetDlgCtrlID(child) == kTextId) {
            shown.text = PlaceOf(child);
        } else if (SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) {
            shown.buttons.push_back(PlaceOf(child));
        } else if (SendMessageW(child, STM_GETICON, 0, 0)) {
            shown.icon = PlaceOf(child);
        }
    }
    std::ranges::sort(shown.buttons, {}, &RECT::left);
    return shown;
}

// Asks, and answers with a button once the box waits. A watch of activations, as a program may have
// one of its own, finds the box.
class Asking {
  public:
    Asking(const wchar_t* text, UINT type, int button) : button_(button) {
        current = this;
        hook_ = SetWindowsHookExW(WH_CBT, OnHook, nullptr, GetCurrentThreadId());
        answer = MessageBoxW(nullptr, text, L"A caption that is somewhat long", type);
        UnhookWindowsHookEx(hook_);
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

    Shown shown;
    int answer = 0;

  private:
    static inline Asking* current = nullptr;

    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
        HWND box = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && GetDlgItem(box, kTextId)) SetTimer(box, 1, 1, OnTimer);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static void CALLBACK OnTimer(HWND box, UINT, UINT_PTR timer, DWORD) {
        if (!IsWindowVisible(box)) return;
        KillTimer(box, timer);
        current->shown = Measure(box);
        SendDlgItemMessageW(box, current->button_, BM_CLICK, 0, 0);
    }

    int button_;
    HHOOK hook_ = nullptr;
};

bool Contains(const RECT& outer, const RECT& inner) {
    RECT both;
    return IntersectRect(&both, &outer, &inner) && both == inner;
}

void ExpectFits(const Shown& shown) {
    const RECT area = DeviceWorkArea();
    EXPECT_TRUE(Contains(area, shown.box)) << shown.box;
    EXPECT_TRUE(Contains(shown.client, shown.text)) << shown.text << " in " << shown.client;
    ASSERT_FALSE(shown.buttons.empty());
    const RECT* previous = nullptr;
    for (const RECT& button : shown.buttons) {
        EXPECT_TRUE(Contains(shown.client, button)) << button << " in " << shown.client;
        EXPECT_GT(button.top, shown.text.bottom);
        EXPECT_GE(button.right - button.left, Pixels(21));
        if (previous) {
            EXPECT_GT(button.left, previous->right);
        }
        previous = &button;
    }
}

TEST(MessageBoxTest, FitsTheScreen) {
    struct Case {
        const wchar_t* text;
        UINT type;
        size_t buttons;
        int answer;
    };
    const Case cases[] = {
        {kQuestion, MB_YESNO, 2, IDNO},
        {kQuestion, MB_YESNOCANCEL | MB_ICONQUESTION, 3, IDCANCEL},
        {kPath, MB_OK | MB_ICONERROR, 1, IDOK},
    };
    for (const Case& asked : cases) {
        SCOPED_TRACE(testing::Message() << "type " << asked.type);
        const Asking asking(asked.text, asked.type, asked.answer);
        EXPECT_EQ(asking.answer, asked.answer);
        EXPECT_EQ(asking.shown.buttons.size(), asked.buttons);
        ExpectFits(asking.shown);
        if (!(asked.type & MB_ICONMASK)) continue;
        EXPECT_TRUE(Contains(asking.shown.client, asking.shown.icon)) << asking.shown.icon;
        EXPECT_GT(asking.shown.text.left, asking.shown.icon.right);
        EXPECT_GT(asking.shown.buttons.front().top, asking.shown.icon.bottom);
    }
}

} // namespace
