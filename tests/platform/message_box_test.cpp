#include <gtest/gtest.h>

#include "program_window.h"

#include <vector>

namespace {

constexpr int kTextId = 0xFFFF;
constexpr wchar_t kQuestion[] =
    L"Do you really want to leave without saving any of the settings that you changed since the "
    L"program was started?";
constexpr wchar_t kPath[] =
    L"\\Storage Card\\My Documents\\AFolderWithQuiteALongName\\"
    L"AFileOfWhichTheNameIsFarWiderThanTheScreenOfADeviceIsAndHasNoSpaceAnywhere.txt";

bool Contains(const RECT& outer, const RECT& inner) {
    RECT both;
    return IntersectRect(&both, &outer, &inner) && both == inner;
}

// The text, the icon and the buttons of a box: each within it, and none upon another.
void ExpectFits(HWND box, size_t parts) {
    EXPECT_TRUE(Contains(DeviceWorkArea(), PlaceOf(box))) << PlaceOf(box);
    RECT client;
    GetClientRect(box, &client);
    MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&client), 2);
    std::vector<RECT> places;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        // A box without an icon has the control for one all the same.
        const bool isNoIcon = (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
                              !SendMessageW(child, STM_GETICON, 0, 0);
        if (!IsWindowVisible(child) || isNoIcon) continue;
        const RECT place = PlaceOf(child);
        EXPECT_TRUE(Contains(client, place)) << place << " in " << client;
        EXPECT_GE(place.right - place.left, Pixels(21));
        for (const RECT& other : places) {
            RECT both;
            EXPECT_FALSE(IntersectRect(&both, &place, &other)) << place << " on " << other;
        }
        places.push_back(place);
    }
    EXPECT_EQ(places.size(), parts);
}

struct Asking {
    const wchar_t* text;
    UINT type;
    size_t parts;
    int answer;
};
const Asking* asking;

void CALLBACK OnTimer(HWND box, UINT, UINT_PTR timer, DWORD) {
    if (!IsWindowVisible(box)) return;
    KillTimer(box, timer);
    ExpectFits(box, asking->parts);
    SendDlgItemMessageW(box, asking->answer, BM_CLICK, 0, 0);
}

// A watch of activations, as a program may have one of its own, finds the box.
LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
    HWND box = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && GetDlgItem(box, kTextId)) SetTimer(box, 1, 1, OnTimer);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST(MessageBoxTest, FitsTheScreen) {
    constexpr Asking kCases[] = {
        {kQuestion, MB_YESNO, 3, IDNO},
        {kQuestion, MB_YESNOCANCEL | MB_ICONQUESTION, 5, IDCANCEL},
        {kPath, MB_OK | MB_ICONERROR, 3, IDOK},
    };
    for (const Asking& asked : kCases) {
        SCOPED_TRACE(testing::Message() << "type " << asked.type);
        asking = &asked;
        const HHOOK hook = SetWindowsHookExW(WH_CBT, OnHook, nullptr, GetCurrentThreadId());
        EXPECT_EQ(MessageBoxW(nullptr, asked.text, L"A caption that is somewhat long", asked.type),
                  asked.answer);
        UnhookWindowsHookEx(hook);
    }
}

} // namespace
