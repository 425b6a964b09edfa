#include "pages/calendar_page.h"

#include <set>
#include <vector>

#include "tests/pages/calendar_page_fixture.h"
#include "ui/button_strip.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kDays = 1201;
constexpr int kHideEmptyDays = 1206;
constexpr int kHideEmptyLine = 1207;
constexpr int kConflicts = 1215;
constexpr int kWeatherNotice = 1218;
constexpr int kWeatherLayout = 1220;
constexpr int kWeatherTap = 1222;
constexpr int kAppointmentRightIcons = 1265;
constexpr int kDisplayFormat = 1272;

using CalendarPageTest = CalendarPageFixture;

TEST_F(CalendarPageTest, ShowsNumbersThatItDoesNotOffer) {
    settingsStore.dNumOfDays.Set(45);
    settingsStore.Conflicting.Set(5);
    settingsStore.MonthlyPopIconsSize.Set(static_cast<uint32_t>(Scale(14) + 1));
    OpenAt(0);
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 31);
    EXPECT_EQ(TextOf(Control(kDays)), L"45");
    EXPECT_EQ(Chosen(kConflicts), -1);
    ShowTab(5);
    Select(kMonthList, 7);
    EXPECT_EQ(Chosen(kCombo), 0);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 45u);
    EXPECT_EQ(settingsStore.Conflicting.value, 0xFFFFFFFFu);
    EXPECT_EQ(settingsStore.MonthlyPopIconsSize.value, static_cast<uint32_t>(Scale(6)));

    OpenAt(0);
    Choose(window_, kDays, 29);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 30u) << "the number, not the entry";
    OpenAt(0);
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 30);
    SendMessage(Control(kDays), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 0xFFFFFFFFu);
}

TEST_F(CalendarPageTest, HidesTheEmptyLineOnlyWhereDaysAreShown) {
    settingsStore.HideEmptyGroups.Set(1);
    OpenAt(0);
    EXPECT_FALSE(IsWindowEnabled(Control(kHideEmptyLine)));
    Tap(window_, kHideEmptyDays);
    EXPECT_TRUE(IsWindowEnabled(Control(kHideEmptyLine)));
    Tap(window_, kHideEmptyDays);
    EXPECT_FALSE(IsWindowEnabled(Control(kHideEmptyLine)));
}

TEST_F(CalendarPageTest, OffersTheWeatherWhereItsProductIs) {
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Nimbrel", L"NWUtilsPath", kUtility);
    settingsStore.WeatehrLayout.Set(2);
    OpenAt(0);
    for (const bool isThere : {false, true, false}) {
        if (isThere)
            CloseHandle(CreateFile(kUtility, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        else
            DeleteFile(kUtility);
        ShowTab(7);
        EXPECT_EQ(IsShown(kWeatherNotice), !isThere);
        for (int id = kWeatherNotice + 1; id <= kWeatherTap; ++id)
            EXPECT_EQ(IsShown(id), isThere) << id;
        ShowTab(6);
        for (int id = kWeatherNotice; id <= kWeatherTap; ++id)
            EXPECT_FALSE(IsShown(id)) << id;
    }
    EXPECT_EQ(Chosen(kWeatherLayout), 2);
    Close();
    EXPECT_EQ(settingsStore.WeatehrLayout.value, 2u) << "kept where it cannot be seen";
}

TEST_F(CalendarPageTest, AnIconShowsOnOneSideOnly) {
    struct Side {
        int code;
        DwordSetting& left;
        DwordSetting& right;
    };
    const Side sides[] = {{1, settingsStore.ApptLeftAlignIcon1, settingsStore.ClrApptRightIcons},
                          {2, settingsStore.ApptLeftAlignIcon2, settingsStore.ClrApptRightIcons},
                          {3, settingsStore.TaskLeftAlignIcon1, settingsStore.ClrTaskRightIcons},
                          {4, settingsStore.TaskLeftAlignIcon2, settingsStore.ClrTaskRightIcons}};
    for (const Side& chosen : sides) {
        for (const Side& side : sides) {
            side.left.Set(0);
            side.right.Set(4 + 16);
        }
        OpenAt(4);
        SendMessage(window_, kMessageToolbarMenuSelect, 4, chosen.code);
        for (const Side& side : sides) {
            EXPECT_EQ(side.left.value, side.code == chosen.code ? 4u : 0u) << chosen.code;
            EXPECT_EQ(side.right.value, &side.right == &chosen.right ? 16u : 20u) << chosen.code;
        }
        Close();
    }
}

// A button of the icons at the right, which the focus is on, is named by its text and adds its
// flag.
TEST_F(CalendarPageTest, TheIconsAreNamedByTheirFlags) {
    using Buttons = std::vector<std::pair<uint32_t, UINT>>; // Flag and text.
    const struct {
        int id;
        DwordSetting& setting;
        Buttons buttons;
    } strips[] = {
        {kAppointmentRightIcons,
         settingsStore.ClrApptRightIcons,
         {{1, 650}, {2, 651}, {4, 652}, {8, 653}, {16, 654}, {64, 655}, {128, 1211}, {256, 1212}}},
        {1271,
         settingsStore.ClrTaskRightIcons,
         {{1, 650}, {2, 651}, {4, 652}, {8, 653}, {16, 654}, {32, 656}, {64, 655}, {256, 1212}}}};
    for (DwordSetting* left :
         {&settingsStore.ApptLeftAlignIcon1, &settingsStore.ApptLeftAlignIcon2,
          &settingsStore.TaskLeftAlignIcon1, &settingsStore.TaskLeftAlignIcon2})
        left->Set(0);
    for (const auto& strip : strips)
        strip.setting.Set(0);
    OpenAt(4);
    for (const auto& strip : strips) {
        SetFocus(Control(strip.id));
        for (const auto& [flag, text] : strip.buttons) {
            SendMessage(Control(strip.id), WM_TIMER, 1, 0);
            EXPECT_EQ(TextOf(FindWindow(L"ToolTipWindow", nullptr)), Text(text));
            const uint32_t before = strip.setting.value;
            SendMessage(Control(strip.id), BM_CLICK, 0, 0);
            EXPECT_EQ(strip.setting.value - before, flag);
            SendMessage(Control(strip.id), kMessageStepButton, TRUE, 0);
        }
    }
}

TEST_F(CalendarPageTest, StepsThroughTheDisplayFormats) {
    settingsStore.ApptDisplayFormat.Set(1);
    OpenAt(4);
    RECT text{};
    GetWindowRect(Control(kDisplayFormat), &text);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&text), 2);
    const int top = text.top;
    const auto tap = [&](int x, int y) {
        SendMessage(window_, WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
        return settingsStore.ApptDisplayFormat.value;
    };
    for (uint32_t format = 2; format <= 12; ++format)
        EXPECT_EQ(tap(Scale(16), top + 1), format);
    EXPECT_EQ(tap(Scale(26) - 1, top + ScaleY(12) - 1), 1u);
    EXPECT_EQ(tap(Scale(16) - 1, top + 1), 12u);
    EXPECT_EQ(tap(Scale(6), top + 1), 11u);
    for (const POINT& beside : {POINT{Scale(6) - 1, top + 1}, POINT{Scale(26), top + 1},
                                POINT{Scale(10), top}, POINT{Scale(10), top + ScaleY(12)}})
        EXPECT_EQ(tap(beside.x, beside.y), 11u);
    HWND strip = Control(kDisplayFormat);
    SetFocus(page_->tabStrip);
    SendMessage(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessage(strip, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(settingsStore.ApptDisplayFormat.value, 11u) << "a tap on the text steps nothing";
    EXPECT_EQ(GetFocus(), strip);
    SendMessage(strip, WM_TIMER, 1, 0);
    EXPECT_FALSE(KillTimer(strip, 1)) << "it has no name to show";
    const auto press = [this](WPARAM key) {
        SetFocus(Control(kDisplayFormat));
        const MSG message{Control(kDisplayFormat), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(TranslateNavigationKey(window_, message));
        return settingsStore.ApptDisplayFormat.value;
    };
    EXPECT_EQ(press(VK_RIGHT), 12u);
    EXPECT_EQ(press(VK_RETURN), 1u);
    EXPECT_EQ(press(VK_LEFT), 12u);
    EXPECT_EQ(press(VK_UP), 12u);
    EXPECT_NE(GetFocus(), Control(kDisplayFormat)) << "Up and Down lead out";
    settingsStore.ApptDisplayFormat.Set(0xFFFFFFFF);
    EXPECT_EQ(tap(Scale(20), top + 1), 1u);
    ShowTab(0);
    EXPECT_EQ(tap(Scale(20), top + 1), 1u) << "on this section only";
}

TEST_F(CalendarPageTest, PaintsArrowsFormatAndSample) {
    settingsStore.ApptDisplayFormat.Set(6);
    OpenAt(4);
    HWND strip = Control(kDisplayFormat);
    RECT text{};
    GetClientRect(strip, &text);
    RECT box = text;
    MapWindowPoints(strip, window_, reinterpret_cast<POINT*>(&box), 2);
    const auto distinct = [](const std::vector<COLORREF>& pixels) {
        return std::set<COLORREF>(pixels.begin(), pixels.end()).size();
    };
    const auto shown = [&](HWND window, const RECT& place) {
        PumpMessages();
        return PixelsOf(window, place);
    };
    const RECT arrows{Scale(6), box.top, Scale(26), box.top + ScaleY(12)};
    const RECT sample{0, box.bottom + ScaleY(4), box.right, box.bottom + ScaleY(40)};
    EXPECT_GT(distinct(shown(window_, arrows)), 1u);
    const std::vector<COLORREF> sixth = shown(strip, text);
    const std::vector<COLORREF> withColumn = shown(window_, sample);
    EXPECT_GT(distinct(sixth), 1u);
    SendMessage(window_, WM_LBUTTONDOWN, 0, MAKELPARAM(Scale(20), box.top + 1));
    EXPECT_TRUE(shown(strip, text) != sixth);
    const std::vector<COLORREF> withoutColumn = shown(window_, sample);
    EXPECT_TRUE(withoutColumn != withColumn);
    SendMessage(window_, kMessageToolbarMenuSelect, 4, 1);
    EXPECT_TRUE(shown(window_, sample) != withoutColumn);
}

// What is painted below the controls ends above the tab strip, also on a screen turned low.
TEST_F(CalendarPageTest, TheSampleHasRoomOnEveryScreen) {
    OpenAt(4);
    for (const SIZE& size : {SIZE{240, 268}, SIZE{320, 188}}) {
        MoveWindow(window_, 0, 0, Scale(static_cast<int>(size.cx)),
                   ScaleY(static_cast<int>(size.cy)), TRUE);
        RECT format{};
        GetWindowRect(Control(kDisplayFormat), &format);
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&format), 2);
        // A line of text, a gap and the sample's own height.
        EXPECT_LE(format.top + ScaleY(12 + 4 + 42), ScaleY(static_cast<int>(size.cy) - 22) + 1)
            << size.cx;
    }
}
} // namespace
