#include "ui/colour_picker.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "settings/setting.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/owner_window.h"
#include "tests/support/window_support.h"
#include "ui/colour_model.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kDefault = 101;
constexpr int kPalette = 110;
constexpr int kField = 111;
constexpr int kLightness = 112;
constexpr int kBars = 123; // Red, green, blue; so are the edit fields.
constexpr int kEdits = 126;
constexpr int kHtml = 130;
constexpr COLORREF kStart = RGB(16, 32, 48);

class ColourPickerTest : public testing::Test {
  protected:
    void SetUp() override { owner_ = CreateOwner(); }
    void TearDown() override { DestroyWindow(owner_); }

    // Takes a step in the picker, answers it, and gives what it gives.
    COLORREF PickAfter(COLORREF start, const DialogSteps::Step& step, WPARAM answer = IDOK) const {
        const DialogSteps worked(L"ColourPickerWin", {[&](HWND picker) {
                                     step(picker);
                                     PostMessage(picker, WM_COMMAND, answer, 0);
                                 }});
        return PickColour(owner_, start);
    }

    HWND owner_ = nullptr;
};

void Type(HWND picker, int id, const wchar_t* text) {
    SetDlgItemText(picker, id, text);
}

// As the loop of the picker handles it.
void Press(HWND picker, WPARAM key) {
    const MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
    if (!TranslateNavigationKey(picker, message)) DispatchMessage(&message);
}

std::wstring Values(HWND picker) {
    std::wstring values;
    for (int i = 0; i < 3; ++i) {
        values += TextOf(GetDlgItem(picker, kEdits + i)) + L",";
        values += std::to_wstring(SendDlgItemMessage(picker, kBars + i, TBM_GETPOS, 0, 0)) + L" ";
    }
    return values + TextOf(GetDlgItem(picker, kHtml));
}

TEST_F(ColourPickerTest, GivesTheColourNoneOrCancelled) {
    const auto nothing = [](HWND) {};
    const auto tapDefault = [](HWND picker) { Tap(picker, kDefault); };
    EXPECT_EQ(PickAfter(kStart, nothing), kStart);
    EXPECT_EQ(PickAfter(kNoColour, nothing), kNoColour);
    EXPECT_EQ(PickAfter(kStart, tapDefault), kNoColour);
    EXPECT_EQ(PickAfter(0x12345678, nothing), 0x345678u) << "the high byte is no part of a colour";
    EXPECT_EQ(PickAfter(kPickCancelled, nothing), 0xFFFFFEu);
    EXPECT_EQ(PickAfter(kStart, tapDefault, IDCANCEL), kPickCancelled);
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(ColourPickerTest, FieldsAndBarsShowAndSetOneColour) {
    const auto set = [](HWND picker) {
        EXPECT_EQ(Values(picker), L"16,16 32,32 48,48 102030");
        Type(picker, kEdits, L"255");
        EXPECT_EQ(Values(picker), L"255,255 32,32 48,48 FF2030");
        HWND bar = GetDlgItem(picker, kBars + 1);
        SendMessage(bar, TBM_SETPOS, TRUE, 200);
        SendMessage(picker, WM_HSCROLL, TB_THUMBTRACK, reinterpret_cast<LPARAM>(bar));
        EXPECT_EQ(Values(picker), L"255,255 200,200 48,48 FFC830");
        Tap(picker, kDefault);
        EXPECT_EQ(Values(picker), L",0 ,0 ,0 ");
        Type(picker, kEdits + 2, L"7");
    };
    EXPECT_EQ(PickAfter(kStart, set), RGB(0, 0, 7));
}

TEST_F(ColourPickerTest, RefusesValuesAbove255) {
    for (const wchar_t* typed : {L"256", L"-1"}) {
        const MessageBoxAnswer answer(IDOK);
        PickAfter(kStart, [typed](HWND picker) {
            Type(picker, kEdits + 1, typed);
            EXPECT_EQ(Values(picker), L"16,16 32,32 48,48 102030");
        });
        EXPECT_EQ(answer.count, 1) << typed;
        EXPECT_EQ(answer.text, L"Valid values are between 0-255");
        EXPECT_EQ(answer.caption, L"Invalid value");
    }
}

// Letting go of a key at a bar's end, or typing what may become a number, chooses nothing.
TEST_F(ColourPickerTest, NoneStaysUntilAValueIsChosen) {
    const MessageBoxAnswer answer(IDOK);
    const auto attempt = [](HWND picker) {
        SendMessage(picker, WM_HSCROLL, TB_ENDTRACK,
                    reinterpret_cast<LPARAM>(GetDlgItem(picker, kBars)));
        EXPECT_EQ(Values(picker), L",0 ,0 ,0 ");
        for (const wchar_t* typed : {L"x", L"+", L" ", L"-"})
            Type(picker, kEdits, typed);
    };
    EXPECT_EQ(PickAfter(kNoColour, attempt), kNoColour);
    EXPECT_EQ(answer.count, 0);
}

TEST_F(ColourPickerTest, ReadsAnHtmlColourWhenItIsWhole) {
    const auto type = [](HWND picker) {
        for (const wchar_t* unfinished : {L"", L"#FF800", L"FF80001", L"GG0000"}) {
            Type(picker, kHtml, unfinished);
            EXPECT_EQ(TextOf(GetDlgItem(picker, kEdits)), L"16") << unfinished;
        }
        SendMessage(picker, WM_COMMAND, MAKEWPARAM(kHtml, EN_KILLFOCUS), 0);
        EXPECT_EQ(TextOf(GetDlgItem(picker, kHtml)), L"102030");
        Type(picker, kHtml, L"#fF8001");
    };
    EXPECT_EQ(PickAfter(kStart, type), RGB(255, 128, 1));
}

TEST_F(ColourPickerTest, ColoursCanBeTapped) {
    const auto tap = [](HWND surface, int right, int down) { // Thousandths of the surface.
        RECT client{};
        GetClientRect(surface, &client);
        const LPARAM at = MAKELPARAM(client.right * right / 1000, client.bottom * down / 1000);
        SendMessage(surface, WM_LBUTTONDOWN, MK_LBUTTON, at);
        SendMessage(surface, WM_LBUTTONUP, 0, at);
    };
    EXPECT_EQ(PickAfter(kStart, [&](HWND p) { tap(GetDlgItem(p, kPalette), 150, 500); }),
              RGB(255, 0, 0));
    const auto tapField = [&](HWND p) {
        tap(GetDlgItem(p, kField), 999, 0);
        tap(GetDlgItem(p, kLightness), 500, 500);
    };
    const COLORREF vivid = PickAfter(RGB(0, 0, 0), tapField);
    EXPECT_GE(GetRValue(vivid), 250);
    EXPECT_LE(GetGValue(vivid), 8);
    EXPECT_EQ(PickAfter(kStart, [&](HWND p) { tap(GetDlgItem(p, kLightness), 500, 0); }),
              RGB(255, 255, 255));
}

TEST_F(ColourPickerTest, KeysMoveTheMarksAndLeaveAtTheEdges) {
    const auto press = [](HWND picker) {
        const auto html = [picker] { return TextOf(GetDlgItem(picker, kHtml)); };
        EXPECT_EQ(GetFocus(), GetDlgItem(picker, kPalette));
        Press(picker, VK_RIGHT);
        Press(picker, VK_DOWN);
        EXPECT_EQ(html(), L"102030") << "only marked";
        SendMessage(picker, WM_SIZE, 0, 0); // As the input panel causes.
        Press(picker, VK_RETURN);
        EXPECT_EQ(html(), L"FF0000");
        Press(picker, VK_DOWN);
        Press(picker, VK_DOWN);
        EXPECT_EQ(GetFocus(), GetDlgItem(picker, kField));
        Press(picker, VK_RIGHT);
        EXPECT_EQ(html(), L"FF2B00") << "10 degrees";
        for (int i = 0; i < 20; ++i)
            Press(picker, VK_DOWN);
        EXPECT_EQ(html(), L"808080");
        Press(picker, VK_DOWN);
        EXPECT_EQ(GetFocus(), GetDlgItem(picker, kLightness));
        Press(picker, VK_UP);
        EXPECT_EQ(html(), L"8C8C8C");
        Press(picker, VK_RIGHT);
        EXPECT_EQ(GetFocus(), GetDlgItem(picker, kDefault));
    };
    EXPECT_EQ(PickAfter(kStart, press), RGB(0x8C, 0x8C, 0x8C));
}

// The shades of a colour give it back, but for rounding.
TEST(ColourModel, TurnsColoursIntoShadesAndBack) {
    for (uint32_t colour = 0; colour < 0x1000000; colour += 0x010305) {
        const HueShade shade = HueShadeOf(colour, {0, 0, 0});
        const uint32_t back = ColourOf(shade);
        for (int i = 0; i < 3; ++i) {
            const int difference =
                static_cast<int>(Component(back, i)) - static_cast<int>(Component(colour, i));
            ASSERT_LE(std::abs(difference), 4) << std::hex << colour << " " << back;
        }
    }
    const HueShade blue = HueShadeOf(0xFF0000, {0, 0, 0});
    EXPECT_EQ(HueShadeOf(0x808080, blue).hue, 240) << "grey has no hue of its own";
    const HueRow row(200, 90);
    for (int hue = 0; hue < kFullCircle; ++hue)
        ASSERT_EQ(row.At(PlaceOf(hue)), ColourOf({hue, 200, 90})) << hue;
    EXPECT_EQ(ColourOf({30, kFullShade, kFullShade / 2}), 0x0080FFu) << "orange";
    EXPECT_EQ(ColourOf({270, kFullShade, kFullShade / 2}), 0xFF0080u) << "violet";
}
} // namespace
