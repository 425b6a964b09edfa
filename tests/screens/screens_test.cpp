// Everything stands in its place on every kind of screen, and keeps it when the screen is turned.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <stand_in.h>

#include "shell/services/scaling.h"
#include "tests/screens/explorer.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"
#include "ui/list_items.h"

namespace {
bool IsEdit(HWND control) {
    return ClassOf(control) == L"Edit" && !(GetWindowLong(control, GWL_STYLE) & ES_READONLY);
}

// What the user has done to a control: its text, tick, selected entry, marked text and row.
std::wstring StateOf(HWND control) {
    std::wstring state = TextOf(control);
    for (const UINT message : {BM_GETCHECK, CB_GETCURSEL, EM_GETSEL})
        state += L"|" + std::to_wstring(SendMessage(control, message, 0, 0));
    if (IsListView(control)) state += L"|" + std::to_wstring(SelectedRow(control));
    return state;
}

RECT PlaceOn(HWND window, HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool HasIcons(HWND control) {
    return IsListView(control) && (GetWindowLong(control, GWL_STYLE) & LVS_TYPEMASK) == LVS_ICON;
}

std::string Text(const RECT& rect) {
    char text[64];
    std::snprintf(text, sizeof(text), " (%ld,%ld to %ld,%ld)", rect.left, rect.top, rect.right,
                  rect.bottom);
    return text;
}

class ScreenExplorer final : public Explorer {
  public:
    ScreenExplorer(ProgramThread& program, SIZE screen)
        : Explorer(program, false), screen_(screen) {}

  protected:
    void OnSight(HWND window) override {
        TypeSomething(window);
        HWND focus = program_.Focus();
        std::vector<std::pair<HWND, std::wstring>> states;
        for (HWND control : ChildrenOf(window)) {
            if (IsShown(control)) states.emplace_back(control, StateOf(control));
        }
        ExpectPlaces(window);
        // Every second sight is first seen on a screen that is turned already.
        std::swap(screen_.cx, screen_.cy);
        StandInSetScreen(screen_.cx, screen_.cy);
        program_.Settle();
        ExpectPlaces(window);
        EXPECT_EQ(program_.Focus(), focus) << Place(window);
        for (const auto& [control, state] : states)
            EXPECT_EQ(StateOf(control), state) << Place(window);
    }

  private:
    void TypeSomething(HWND window) {
        for (HWND control : ChildrenOf(window)) {
            if (!IsOperable(control) || !IsEdit(control)) continue;
            FocusByKeys(window, control);
            program_.Post(control, WM_CHAR, L'7');
            return;
        }
    }

    void ExpectPlaces(HWND window) const {
        const std::string where =
            Place(window) + " on " + std::to_string(screen_.cx) + "x" + std::to_string(screen_.cy);
        RECT all{};
        SystemParametersInfo(SPI_GETWORKAREA, 0, &all, 0);
        EXPECT_EQ(all.right, screen_.cx);
        ExpectInside(PlaceOn(nullptr, window), all, where);
        RECT client{};
        GetClientRect(window, &client);
        std::vector<std::pair<HWND, RECT>> placed;
        for (HWND control : ChildrenOf(window)) {
            if (!IsShown(control)) continue;
            const std::string name = std::to_string(GetDlgCtrlID(control)) + " of " + where;
            RECT place = PlaceOn(window, control);
            if (control == StripOf(window)) place.left = 0; // It hides its frame beyond the edge.
            ExpectInside(place, client, name);
            ExpectUsable(control, place, name);
            if (HasIcons(control)) {
                // The pages in their list are to show all at once.
                RECT last{};
                ListView_GetItemRect(control, RowCount(control) - 1, &last, LVIR_BOUNDS);
                ExpectInside(last, place, "icons of " + name);
            }
            for (const auto& [other, otherPlace] : placed) {
                RECT common{};
                EXPECT_FALSE(IntersectRect(&common, &place, &otherPlace))
                    << name << Text(place) << " lies on " << GetDlgCtrlID(other)
                    << Text(otherPlace);
            }
            placed.emplace_back(control, place);
        }
    }

    static void ExpectInside(const RECT& inner, const RECT& outer, const std::string& name) {
        RECT common{};
        IntersectRect(&common, &inner, &outer);
        EXPECT_TRUE(EqualRect(&common, &inner)) << name << Text(inner) << Text(outer);
    }

    // Large enough for a line of text, and for a row of a list.
    static void ExpectUsable(HWND control, const RECT& place, const std::string& name) {
        if (!IsOperable(control)) return;
        EXPECT_GE(place.bottom - place.top, ScaleY(16)) << name << Text(place);
        EXPECT_GE(place.right - place.left, Scale(20)) << name << Text(place);
    }

    SIZE screen_;
};

TEST(Screens, HoldEverythingInItsPlaceAlsoTurned) {
    HDC dc = GetDC(nullptr);
    const int density = GetDeviceCaps(dc, LOGPIXELSX);
    const int unit = GetDeviceCaps(dc, HORZRES) / 320; // 2 for a screen of twice as many pixels.
    ReleaseDC(nullptr, dc);
    const SIZE screen = density == 128 ? SIZE{320, 320} : SIZE{240 * unit, 320 * unit};
    // The program's measures, on a screen that does not say how fine it is.
    if (density == 96 && unit == 2)
        SetNumber(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane", L"MyVgaMode", 1);
    StandInSetScreen(screen.cx, screen.cy);
    ProgramThread program;
    ASSERT_EQ(Scale(240), screen.cx);
    ScreenExplorer explorer(program, screen);
    explorer.VisitProgram();
    EXPECT_EQ(explorer.visited.size(), 21u); // Twelve pages and the dialogs.
}
} // namespace
