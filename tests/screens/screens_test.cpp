// Everything stands in its place on every kind of screen, and keeps it when the screen is turned.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <stand_in.h>

#include <algorithm>

#include "shell/services/scaling.h"
#include "tests/screens/explorer.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"

namespace {
// The screens of a device, upright, by what the test's own screen is.
struct Format {
    int density;
    int ownWidth;
    SIZE screen;
    bool doubleSize; // The program's measures, on a screen that does not say how fine it is.
};
constexpr Format kFormats[] = {
    {96, 320, {240, 320}, false},
    {128, 320, {320, 320}, false},
    {192, 640, {480, 640}, false},
    {96, 640, {480, 640}, true},
};

const Format* FormatOfDevice() {
    HDC dc = GetDC(nullptr);
    const int density = GetDeviceCaps(dc, LOGPIXELSX);
    const int width = GetDeviceCaps(dc, HORZRES);
    ReleaseDC(nullptr, dc);
    const auto* found = std::ranges::find_if(kFormats, [&](const Format& format) {
        return format.density == density && format.ownWidth == width;
    });
    return found == std::end(kFormats) ? nullptr : found;
}

bool IsEdit(HWND control) {
    return ClassOf(control) == L"Edit" && !(GetWindowLong(control, GWL_STYLE) & ES_READONLY);
}

// What the user has done to a control: its text, tick, selected row or entry, and marked text.
std::wstring StateOf(HWND control) {
    std::wstring state = TextOf(control);
    UINT message = 0;
    if (ClassOf(control) == L"Button") message = BM_GETCHECK;
    if (ClassOf(control) == L"ComboBox") message = CB_GETCURSEL;
    if (ClassOf(control) == L"Edit") message = EM_GETSEL;
    if (message) state += L"|" + std::to_wstring(SendMessage(control, message, 0, 0));
    if (IsListView(control))
        state += L"|" + std::to_wstring(SendMessage(control, LVM_GETNEXTITEM,
                                                    static_cast<WPARAM>(-1), LVNI_SELECTED));
    return state;
}

RECT PlaceOn(HWND window, HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    return place;
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
        std::vector<std::wstring> states;
        for (HWND control : ChildrenOf(window))
            states.push_back(StateOf(control));
        ExpectPlaces(window);
        // Every second sight is first seen on a screen that is turned already.
        std::swap(screen_.cx, screen_.cy);
        program_.SetScreen(screen_);
        ExpectPlaces(window);
        EXPECT_EQ(program_.Focus(), focus) << Place(window);
        for (size_t i = 0; i < states.size(); ++i)
            EXPECT_EQ(StateOf(ChildrenOf(window)[i]), states[i]) << Place(window);
    }

  private:
    void TypeSomething(HWND window) {
        for (HWND control : ChildrenOf(window)) {
            if (!IsOperable(control) || !IsEdit(control)) continue;
            FocusByKeys(window, control);
            program_.Type(L'7');
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
    const Format* format = FormatOfDevice();
    ASSERT_TRUE(format);
    if (format->doubleSize)
        SetNumber(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane", L"MyVgaMode", 1);
    StandInSetScreen(format->screen.cx, format->screen.cy);
    ProgramThread program;
    ASSERT_EQ(Scale(240), format->screen.cx);
    ScreenExplorer explorer(program, format->screen);
    explorer.VisitProgram();
    EXPECT_EQ(explorer.visited.size(), 21u); // Twelve pages and the dialogs.
}
} // namespace
