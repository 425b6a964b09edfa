#include "pages/fonts_page.h"

#include <aygshell.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "resource_ids.h"
#include "settings/font_catalogue.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/page_fixture.h"
#include "tests/support/text_words.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kFonts[] = L"Software\\Teskel\\Orvane\\Fonts";
constexpr wchar_t kPicker[] = L"ColourPickerWin";
constexpr wchar_t kDialog[] = L"#32770";
constexpr int kSize = 1201;
constexpr int kTitleSize = 1203;
constexpr int kPerItem = 1204;
constexpr int kFace = 1206;
constexpr int kShadow = 1208;
constexpr int kClearType = 1209;
constexpr int kEdit = 1210;
constexpr int kItems = 1211;
constexpr int kHtml = 130; // Of the picker.
constexpr COLORREF kGreen = RGB(0, 128, 0);

class FontsPageTest : public PageFixture {
  protected:
    FontsPageTest() : PageFixture(7) {}

    static void Store(const wchar_t* name, uint32_t number) {
        SetNumber(HKEY_CURRENT_USER, kFonts, name, number);
    }
    HWND OpenItem(int row) {
        HWND window = Open();
        ShowTab(1);
        ::SelectRow(GetDlgItem(window, kItems), row);
        PumpMessages();
        return window;
    }
    [[nodiscard]] std::wstring SecondTab() const {
        wchar_t text[64] = L"";
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        SendMessage(page_->tabStrip, TCM_GETITEM, 1, reinterpret_cast<LPARAM>(&item));
        return text;
    }
    // The steps that choose green in a picker, whoever opened it.
    static void ChooseGreen(HWND) {
        HWND picker = FindWindow(kPicker, nullptr);
        SetDlgItemText(picker, kHtml, L"008000");
        PostMessage(picker, WM_COMMAND, IDOK, 0);
    }
    [[nodiscard]] COLORREF PixelAt(int right, int down) const {
        HDC dc = GetDC(page_->hwnd);
        const COLORREF pixel = GetPixel(dc, right, down);
        ReleaseDC(page_->hwnd, dc);
        return pixel;
    }
};

TEST_F(FontsPageTest, ShowsAndSavesItsOptions) {
    Store(L"FontGnrlSize", 10);
    Store(L"FontGnrlTitlesSize", 30);
    Store(L"UseShadowColor", 4);
    Store(L"ForceClearType", 2); // Any number but 0 is on.
    SetText(HKEY_CURRENT_USER, kFonts, L"FontFaceToUse", L"taho");
    HWND window = Open();
    EXPECT_EQ(TextOf(GetDlgItem(window, kSize)), L"10");
    EXPECT_EQ(TextOf(GetDlgItem(window, kTitleSize)), L"30");
    EXPECT_EQ(TextOf(GetDlgItem(window, kFace)), L"Tahoma") << "found by its beginning";
    EXPECT_EQ(SendDlgItemMessage(window, kShadow, CB_GETCURSEL, 0, 0), 4);
    EXPECT_EQ(IsDlgButtonChecked(window, kClearType), 1u);
    Choose(window, kSize, 20);
    Choose(window, kTitleSize, 1);
    Choose(window, kShadow, 2);
    Tap(window, kPerItem);
    Close();
    EXPECT_EQ(settingsStore.FontGnrlSize.value, 30u);
    EXPECT_EQ(settingsStore.FontGnrlTitlesSize.value, 11u);
    EXPECT_EQ(settingsStore.UseShadowColor.value, 2u);
    EXPECT_EQ(settingsStore.FontGnrlUseAdvncd.value, 1u);
    EXPECT_EQ(settingsStore.ForceClearType.value, 1u);
    EXPECT_EQ(settingsStore.FontFaceToUse.value.CStr(), std::wstring(L"Tahoma"));
}

TEST_F(FontsPageTest, WhatItDoesNotOfferIsNotSelected) {
    for (const uint32_t size : {9u, 31u, 0xFFFFFFFFu}) {
        Store(L"FontGnrlSize", size);
        Store(L"UseShadowColor", 5);
        SetText(HKEY_CURRENT_USER, kFonts, L"FontFaceToUse", L"No such face");
        HWND window = Open();
        for (const int combo : {kSize, kFace, kShadow})
            EXPECT_EQ(SendDlgItemMessage(window, combo, CB_GETCURSEL, 0, 0), -1) << combo;
        Close();
        EXPECT_EQ(settingsStore.FontGnrlSize.value, 9u);
        EXPECT_EQ(settingsStore.UseShadowColor.value, 0xFFFFFFFFu);
        EXPECT_TRUE(settingsStore.FontFaceToUse.value.IsEmpty());
    }
}

TEST_F(FontsPageTest, OffersEachFaceOnce) {
    HWND window = Open();
    const std::wstring faces = L"|" + EntriesOf(GetDlgItem(window, kFace)) + L"|";
    const size_t first = faces.find(L"|Tahoma|");
    ASSERT_NE(first, std::wstring::npos);
    EXPECT_EQ(faces.find(L"|Tahoma|", first + 1), std::wstring::npos);
    Close();
}

TEST_F(FontsPageTest, FontsOfSingleItemsTakeThePlaceOfTheSizes) {
    Store(L"FontGnrlUseAdvncd", 1);
    HWND window = Open();
    for (const bool hasOwnFonts : {true, false, true}) {
        EXPECT_EQ(SecondTab(), Text(hasOwnFonts ? 1435 : 1434));
        for (int id = 1200; id <= kTitleSize; ++id)
            EXPECT_EQ(IsEnabled(id), !hasOwnFonts) << id;
        EXPECT_TRUE(IsEnabled(kFace));
        EXPECT_EQ(SendMessage(page_->tabStrip, TCM_GETITEMCOUNT, 0, 0), 2);
        Tap(window, kPerItem);
    }
    Close();
}

TEST_F(FontsPageTest, ListsEachItem) {
    HWND list = GetDlgItem(OpenItem(0), kItems);
    EXPECT_EQ(RowsOf(list),
              Expand(L"934|935|936|937|938|939|940|941|942|943|944|945|946|947|948|949|950|951|952|"
                     L"953|1242|1243|1438|1439|1244|1245|1246|954|955|956|957|958|1363"));
    Close();
}

TEST_F(FontsPageTest, EditsOnlyTheColourWhileOneFontServesAll) {
    HWND window = OpenItem(3);
    TapAndWork(kEdit, kPicker, {ChooseGreen});
    EXPECT_EQ(settingsStore.FontCalTasksFuture.colour.value, kGreen);
    EXPECT_EQ(settingsStore.FontCalTasksOverdue.colour.value, kNoColour);
    TapAndWork(kEdit, kPicker, {});
    EXPECT_EQ(settingsStore.FontCalTasksFuture.colour.value, kGreen);
    ClearSelection(GetDlgItem(window, kItems));
    Tap(window, kEdit); // Would hang if it opened anything.
    Close();
}

TEST_F(FontsPageTest, EditsTheStyleOfOneItem) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontCalPastlfHeight", 31);
    OpenItem(static_cast<int>(FontId::FontCalPast));
    DialogSteps::Step look = [](HWND dialog) {
        EXPECT_EQ(SendDlgItemMessage(dialog, IDC_FONT_SIZE, CB_GETCURSEL, 0, 0), -1);
        EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_FONT_STRIKE_OUT), 1u);
        EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_FONT_BOLD), 0u);
        EXPECT_NE(SHFindMenuBar(dialog), nullptr);
        Tap(dialog, IDC_FONT_STRIKE_OUT);
        Tap(dialog, IDC_FONT_BOLD);
        Tap(dialog, IDC_FONT_ITALIC);
        PostMessage(dialog, WM_COMMAND, IDOK, 0);
    };
    TapAndWork(kEdit, kDialog, {look});
    const FontSetting& font = settingsStore.FontCalPast;
    EXPECT_EQ(font.weight.value, 700u);
    EXPECT_EQ(font.italic.value, 1u);
    EXPECT_EQ(font.underline.value, 0u);
    EXPECT_EQ(font.strikeOut.value, 0u);
    EXPECT_EQ(font.height.value, 9u) << "no size was chosen";
    Close();
}

TEST_F(FontsPageTest, CancelKeepsTheStyleButNotTheOldColour) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontGenerallfWeight", 400);
    OpenItem(0);
    const auto set = [](HWND dialog) {
        Tap(dialog, IDC_FONT_UNDERLINE);
        PostMessage(dialog, WM_COMMAND, IDC_FONT_SET_COLOUR, 0);
    };
    const auto answer = [](WPARAM button) {
        return [button](HWND dialog) { PostMessage(dialog, WM_COMMAND, button, 0); };
    };
    const FontSetting& font = settingsStore.FontGeneral;
    TapAndWork(kEdit, kDialog, {set, ChooseGreen, answer(IDCANCEL)});
    EXPECT_EQ(font.colour.value, kGreen);
    EXPECT_EQ(font.underline.value, 0u);
    EXPECT_EQ(font.weight.value, 400u);
    TapAndWork(kEdit, kDialog, {answer(IDOK)});
    EXPECT_EQ(font.weight.value, 100u) << "only 700 is bold";
    Close();
}

TEST_F(FontsPageTest, GivesTheGeneralSizeToAllButContacts) {
    Store(L"FontGenerallfHeight", 17);
    HWND window = Open();
    HWND bar = SHFindMenuBar(window);
    EXPECT_EQ(bar, page_->menuBar);
    const auto menu = reinterpret_cast<HMENU>(SendMessage(bar, SHCMBM_GETMENU, 0, 0));
    EXPECT_NE(GetMenuState(menu, IDC_SAME_SIZE, MF_BYCOMMAND), 0xFFFFFFFFu);
    {
        const MessageBoxAnswer no(IDNO);
        SendMessage(window, WM_COMMAND, IDC_SAME_SIZE, 0);
        EXPECT_EQ(no.text, LanguageText(IDS_FONTS_SAME_SIZE_QUESTION).CStr());
        EXPECT_EQ(no.caption, LanguageText(IDS_FONTS_SAME_SIZE_CAPTION).CStr());
    }
    EXPECT_FALSE(settingsStore.FontCalTasks.height.changed);
    for (int id = 0; id < 33; ++id)
        FontOfStore(id)->colour.value = RGB(id, 0, 0);
    const MessageBoxAnswer yes(IDYES);
    SendMessage(window, WM_COMMAND, IDC_SAME_SIZE, 0);
    for (int id = 0; id < 33; ++id) {
        const FontSetting& font = *FontOfStore(id);
        const bool spared = id == 22 || id == 23;
        EXPECT_EQ(font.height.value == 17, !spared) << id;
        EXPECT_EQ(font.height.changed, id != 0 && !spared) << id;
        EXPECT_EQ(font.colour.value, RGB(id, 0, 0)) << id;
    }
    Close();
}

TEST_F(FontsPageTest, PaintsTheSelectedItemWithinItsBand) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontGenerallfColor", kGreen);
    Store(L"FontCalTaskslfColor", RGB(0, 0, 255));
    Store(L"FontCalTaskslfHeight", 0x7FFFFFFF);
    HWND window = OpenItem(0);
    RECT client{};
    GetClientRect(window, &client);
    const int swatch = client.right - Scale(104) + Scale(20);
    EXPECT_EQ(PixelAt(swatch, Scale(60)), kGreen);
    ::SelectRow(GetDlgItem(window, kItems), 1); // Painted before it returns.
    EXPECT_EQ(PixelAt(swatch, Scale(60)), RGB(0, 0, 255));
    int stray = 0;
    for (int x = 0; x < Scale(80); ++x) {
        for (int y = Scale(50); y < Scale(58); ++y)
            stray += PixelAt(x, y) != RGB(255, 255, 255);
    }
    EXPECT_EQ(stray, 0) << "the sample ran over its band";
    ClearSelection(GetDlgItem(window, kItems));
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE)) << "what is selected next may show at once";
    Close();
}
} // namespace
