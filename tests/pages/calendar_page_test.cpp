#include "pages/calendar_page.h"

#include <set>

#include "tests/pages/calendar_page_fixture.h"
#include "ui/button_strip.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kWeatherNotice = 1218;
constexpr int kWeatherLayout = 1220;
constexpr int kWeatherTap = 1222;
constexpr int kAppointmentRightIcons = 1265;
constexpr int kTaskRightIcons = 1271;
constexpr int kDisplayFormat = 1272;
constexpr int kIconsTab = 4;

class CalendarPageTest : public CalendarPageFixture {
  protected:
    // The place of the display format's text on the page.
    RECT FormatPlace() const {
        RECT place{};
        GetWindowRect(Control(kDisplayFormat), &place);
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    uint32_t TapPage(LONG x, LONG y) const {
        SendMessage(window_, WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
        return settingsStore.ApptDisplayFormat.value;
    }
};

TEST_F(CalendarPageTest, ShowsNumbersThatItDoesNotOffer) {
    settingsStore.dNumOfDays.Set(45);
    settingsStore.MonthlyPopIconsSize.Set(static_cast<uint32_t>(Scale(14) + 1));
    OpenAt(5);
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 31);
    EXPECT_EQ(TextOf(Control(kDays)), L"45");
    Select(kMonthList, 7);
    EXPECT_EQ(Chosen(kCombo), 0);
    Close();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 45u);
    EXPECT_EQ(settingsStore.MonthlyPopIconsSize.value, static_cast<uint32_t>(Scale(6)));

    Choose(Reopen(), kDays, 29);
    Reopen();
    EXPECT_EQ(settingsStore.dNumOfDays.value, 30u) << "the number, not the entry";
    EXPECT_EQ(SendMessage(Control(kDays), CB_GETCOUNT, 0, 0), 30);
}

TEST_F(CalendarPageTest, OffersTheWeatherWhereItsProductIs) {
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Nimbrel", L"NWUtilsPath",
            folder_->PathOf(L"Weather.dll"));
    settingsStore.WeatehrLayout.Set(2);
    OpenAt(0);
    for (const bool isThere : {false, true, false}) {
        if (isThere)
            folder_->Write(L"Weather.dll", "");
        else if (folder_->Has(L"Weather.dll"))
            folder_->Remove(L"Weather.dll");
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
        OpenAt(kIconsTab);
        SendMessage(window_, kMessageToolbarMenuSelect, 4, chosen.code);
        for (const Side& side : sides) {
            EXPECT_EQ(side.left.value, side.code == chosen.code ? 4u : 0u) << chosen.code;
            EXPECT_EQ(side.right.value, &side.right == &chosen.right ? 16u : 20u) << chosen.code;
        }
    }
}

// A button of the icons at the right, which the focus is on, is named by its text and adds its
// flag.
TEST_F(CalendarPageTest, TheIconsAreNamedByTheirFlags) {
    constexpr UINT kNames[] = {650, 651, 652, 653, 654, 656, 655, 1211, 1212}; // From flag 1.
    for (const int id : {kAppointmentRightIcons, kTaskRightIcons}) {
        const bool isTask = id == kTaskRightIcons;
        (isTask ? settingsStore.TaskLeftAlignIcon1 : settingsStore.ApptLeftAlignIcon1).Set(0);
        (isTask ? settingsStore.TaskLeftAlignIcon2 : settingsStore.ApptLeftAlignIcon2).Set(0);
        DwordSetting& setting =
            isTask ? settingsStore.ClrTaskRightIcons : settingsStore.ClrApptRightIcons;
        setting.Set(0);
        OpenAt(kIconsTab);
        SetFocus(Control(id));
        for (uint32_t flag = 0; flag < 9; ++flag) {
            if (flag == (isTask ? 7 : 5)) continue; // An icon of the other kind.
            SendMessage(Control(id), WM_TIMER, 1, 0);
            EXPECT_EQ(TextOf(FindWindow(L"ToolTipWindow", nullptr)), Text(kNames[flag]));
            const uint32_t before = setting.value;
            SendMessage(Control(id), BM_CLICK, 0, 0);
            EXPECT_EQ(setting.value - before, 1U << flag);
            SendMessage(Control(id), kMessageStepButton, TRUE, 0);
        }
    }
}

TEST_F(CalendarPageTest, StepsThroughTheDisplayFormats) {
    settingsStore.ApptDisplayFormat.Set(11);
    OpenAt(kIconsTab);
    const LONG top = FormatPlace().top;
    EXPECT_EQ(TapPage(Scale(16), top + 1), 12u);
    EXPECT_EQ(TapPage(Scale(26) - 1, top + ScaleY(12) - 1), 1u);
    EXPECT_EQ(TapPage(Scale(16) - 1, top + 1), 12u);
    EXPECT_EQ(TapPage(Scale(6), top + 1), 11u);
    for (const POINT& beside : {POINT{Scale(6) - 1, top + 1}, POINT{Scale(26), top + 1},
                                POINT{Scale(10), top}, POINT{Scale(10), top + ScaleY(12)}})
        EXPECT_EQ(TapPage(beside.x, beside.y), 11u);
    HWND strip = Control(kDisplayFormat);
    SetFocus(page_->tabStrip);
    SendMessage(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessage(strip, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(settingsStore.ApptDisplayFormat.value, 11u) << "a tap on the text steps nothing";
    EXPECT_EQ(GetFocus(), strip);
    const auto press = [&](WPARAM key) {
        SetFocus(strip);
        const MSG message{strip, WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(TranslateNavigationKey(window_, message));
        return settingsStore.ApptDisplayFormat.value;
    };
    EXPECT_EQ(press(VK_RIGHT), 12u);
    EXPECT_EQ(press(VK_RETURN), 1u);
    EXPECT_EQ(press(VK_LEFT), 12u);
    EXPECT_EQ(press(VK_UP), 12u);
    EXPECT_NE(GetFocus(), strip) << "Up and Down lead out";
    settingsStore.ApptDisplayFormat.Set(0xFFFFFFFF);
    EXPECT_EQ(TapPage(Scale(20), top + 1), 1u);
    ShowTab(0);
    EXPECT_EQ(TapPage(Scale(20), top + 1), 1u) << "on this section only";
}

TEST_F(CalendarPageTest, PaintsArrowsFormatAndSample) {
    settingsStore.ApptDisplayFormat.Set(6);
    OpenAt(kIconsTab);
    RECT text{};
    GetClientRect(Control(kDisplayFormat), &text);
    const RECT box = FormatPlace();
    const RECT sample{0, box.bottom + ScaleY(4), box.right, box.bottom + ScaleY(40)};
    const auto shown = [&](HWND window, const RECT& place) {
        PumpMessages();
        return PixelsOf(window, place);
    };
    const auto arrows = shown(window_, {Scale(6), box.top, Scale(26), box.top + ScaleY(12)});
    EXPECT_GT(std::set<COLORREF>(arrows.begin(), arrows.end()).size(), 1u);
    const auto sixth = shown(Control(kDisplayFormat), text);
    const auto withColumn = shown(window_, sample);
    TapPage(Scale(20), box.top + 1);
    EXPECT_TRUE(shown(Control(kDisplayFormat), text) != sixth);
    const auto withoutColumn = shown(window_, sample);
    EXPECT_TRUE(withoutColumn != withColumn);
    SendMessage(window_, kMessageToolbarMenuSelect, 4, 1);
    EXPECT_TRUE(shown(window_, sample) != withoutColumn);
}

// What is painted below the controls ends above the tab strip, also on a screen turned low.
TEST_F(CalendarPageTest, TheSampleHasRoomOnEveryScreen) {
    OpenAt(kIconsTab);
    for (const auto& [width, height] : {std::pair{240, 268}, {320, 188}}) {
        MoveWindow(window_, 0, 0, Scale(width), ScaleY(height), TRUE);
        // A line of text, a gap and the sample's own height.
        EXPECT_LE(FormatPlace().top + ScaleY(12 + 4 + 42), ScaleY(height - 22) + 1) << width;
    }
}
} // namespace
