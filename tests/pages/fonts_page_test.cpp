#include "pages/fonts_page.h"

#include <aygshell.h>

#include "settings/font_catalogue.h"
#include "tests/support/page_fixture.h"
#include "tests/support/text_words.h"
#include "ui/list_items.h"

namespace {
constexpr int kSize = 1201;
constexpr int kTitleSize = 1203;
constexpr int kPerItem = 1204;
constexpr int kFace = 1206;
constexpr int kEdit = 1210;
constexpr int kItems = 1211;
constexpr COLORREF kGreen = RGB(0, 128, 0);

class FontsPageTest : public PageFixture {
  protected:
    FontsPageTest() : PageFixture(7, L"\\Fonts") {}

    void OpenItem(FontId item) {
        Open();
        ShowTab(1);
        ::SelectRow(Control(kItems), static_cast<int>(item));
        PumpMessages();
    }
    std::wstring SecondTab() const {
        wchar_t text[64] = L"";
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        SendMessage(page_->tabStrip, TCM_GETITEM, 1, reinterpret_cast<LPARAM>(&item));
        return text;
    }
    // The step that chooses green in a picker, whoever opened it.
    static void ChooseGreen(HWND) { Write(kHtml, L"008000")(FindWindow(kColourPicker, nullptr)); }
};

TEST_F(FontsPageTest, OffersSizesAndFaces) {
    struct Case {
        uint32_t size;
        const wchar_t* face;
        int chosen; // −1: what is not offered is not selected.
        uint32_t savedSize;
        const wchar_t* savedFace;
    };
    for (const Case& font : {Case{10, L"taho", 0, 10, L"Tahoma"}, // Found by its beginning.
                             {30, L"Tahoma", 20, 30, L"Tahoma"},
                             {9, L"No such face", -1, 9, L""},
                             {31, L"", -1, 9, L""},
                             {0xFFFFFFFF, L"", -1, 9, L""}}) {
        Store(L"FontGnrlSize", font.size);
        Store(L"FontGnrlTitlesSize", 12);
        Store(L"FontFaceToUse", font.face);
        Open();
        EXPECT_EQ(Chosen(kSize), font.chosen);
        EXPECT_EQ(Chosen(kTitleSize), 2);
        EXPECT_EQ(TextOf(Control(kFace)), font.savedFace);
        Choose(window_, kTitleSize, 1);
        Close();
        EXPECT_EQ(settingsStore.FontGnrlSize.value, font.savedSize);
        EXPECT_EQ(settingsStore.FontGnrlTitlesSize.value, 11u);
        EXPECT_STREQ(settingsStore.FontFaceToUse.value.CStr(), font.savedFace);
    }
}

TEST_F(FontsPageTest, ListsEachItemUnderTheTitleOfItsTab) {
    Open();
    EXPECT_EQ(RowsOf(Control(kItems)),
              Expand(L"934|935|936|937|938|939|940|941|942|943|944|945|946|947|948|949|950|951|952|"
                     L"953|1242|1243|1438|1439|1244|1245|1246|954|955|956|957|958|1363"));
    for (const UINT title : {1434u, 1435u, 1434u}) {
        EXPECT_EQ(SecondTab(), Text(title));
        EXPECT_EQ(SendMessage(page_->tabStrip, TCM_GETITEMCOUNT, 0, 0), 2);
        Tap(window_, kPerItem);
    }
}

TEST_F(FontsPageTest, EditsOnlyTheColourWhileOneFontServesAll) {
    OpenItem(FontId::FontCalTasksFuture);
    TapAndWork(kEdit, kColourPicker, {ChooseGreen});
    EXPECT_EQ(settingsStore.FontCalTasksFuture.colour.value, kGreen);
    EXPECT_EQ(settingsStore.FontCalTasksOverdue.colour.value, kNoColour);
    TapAndWork(kEdit, kColourPicker, {});
    EXPECT_EQ(settingsStore.FontCalTasksFuture.colour.value, kGreen) << "cancelled";
    ClearSelection(Control(kItems));
    Tap(window_, kEdit); // Would hang if it opened anything.
}

TEST_F(FontsPageTest, EditsTheStyleOfOneItem) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontCalPastlfHeight", 31);
    OpenItem(FontId::FontCalPast);
    TapAndWork(kEdit, kTemplateDialog, {[](HWND dialog) {
                   EXPECT_EQ(SendDlgItemMessage(dialog, IDC_FONT_SIZE, CB_GETCURSEL, 0, 0), -1);
                   EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_FONT_STRIKE_OUT), 1u);
                   EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_FONT_BOLD), 0u);
                   EXPECT_NE(SHFindMenuBar(dialog), nullptr);
                   for (const int box : {IDC_FONT_STRIKE_OUT, IDC_FONT_BOLD, IDC_FONT_ITALIC})
                       Tap(dialog, box);
                   PostMessage(dialog, WM_COMMAND, IDOK, 0);
               }});
    const FontSetting& font = settingsStore.FontCalPast;
    EXPECT_EQ(font.weight.value, 700u);
    EXPECT_EQ(font.italic.value, 1u);
    EXPECT_EQ(font.underline.value, 0u);
    EXPECT_EQ(font.strikeOut.value, 0u);
    EXPECT_EQ(font.height.value, 9u) << "no size was chosen";
}

TEST_F(FontsPageTest, CancelKeepsTheStyleButNotTheOldColour) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontGenerallfWeight", 400);
    OpenItem(FontId::FontGeneral);
    const auto set = [](HWND dialog) {
        Tap(dialog, IDC_FONT_UNDERLINE);
        PostMessage(dialog, WM_COMMAND, IDC_FONT_SET_COLOUR, 0);
    };
    const FontSetting& font = settingsStore.FontGeneral;
    TapAndWork(kEdit, kTemplateDialog, {set, ChooseGreen, Answer(IDCANCEL)});
    EXPECT_EQ(font.colour.value, kGreen);
    EXPECT_EQ(font.underline.value, 0u);
    EXPECT_EQ(font.weight.value, 400u);
    TapAndWork(kEdit, kTemplateDialog, {Answer(IDOK)});
    EXPECT_EQ(font.weight.value, 100u) << "only 700 is bold";
}

TEST_F(FontsPageTest, GivesTheGeneralSizeToAllButContacts) {
    Store(L"FontGenerallfHeight", 17);
    Open();
    const auto menu =
        reinterpret_cast<HMENU>(SendMessage(SHFindMenuBar(window_), SHCMBM_GETMENU, 0, 0));
    EXPECT_NE(GetMenuState(menu, IDC_SAME_SIZE, MF_BYCOMMAND), 0xFFFFFFFFu);
    {
        const MessageBoxAnswer no(IDNO);
        SendMessage(window_, WM_COMMAND, IDC_SAME_SIZE, 0);
        ExpectSaid(no, IDS_FONTS_SAME_SIZE_QUESTION, IDS_FONTS_SAME_SIZE_CAPTION);
    }
    EXPECT_FALSE(settingsStore.FontCalTasks.height.changed);
    for (int id = 0; id < 33; ++id)
        FontOfStore(id)->colour.value = RGB(id, 0, 0);
    const MessageBoxAnswer yes(IDYES);
    SendMessage(window_, WM_COMMAND, IDC_SAME_SIZE, 0);
    for (int id = 0; id < 33; ++id) {
        const FontSetting& font = *FontOfStore(id);
        const bool spared = id == 22 || id == 23;
        EXPECT_EQ(font.height.value == 17, !spared) << id;
        EXPECT_EQ(font.height.changed, id != 0 && !spared) << id;
        EXPECT_EQ(font.colour.value, RGB(id, 0, 0)) << id;
    }
}

TEST_F(FontsPageTest, PaintsTheSelectedItemWithinItsBand) {
    Store(L"FontGnrlUseAdvncd", 1);
    Store(L"FontGenerallfColor", kGreen);
    Store(L"FontCalTaskslfColor", RGB(0, 0, 255));
    Store(L"FontCalTaskslfHeight", 0x7FFFFFFF);
    OpenItem(FontId::FontGeneral);
    RECT client{};
    GetClientRect(window_, &client);
    const auto swatch = [&] {
        const LONG x = client.right - Scale(104) + Scale(4);
        return PixelsOf(window_, {x, Scale(60), x + 1, Scale(60) + 1})[0];
    };
    EXPECT_EQ(swatch(), kGreen);
    ::SelectRow(Control(kItems), 1); // Painted before it returns.
    EXPECT_EQ(swatch(), RGB(0, 0, 255));
    ::SelectRow(Control(kItems), 2);
    EXPECT_EQ(swatch(), RGB(255, 255, 255)) << "has no colour";
    ::SelectRow(Control(kItems), 1);
    for (const COLORREF pixel : PixelsOf(window_, {0, Scale(50), Scale(80), Scale(58)}))
        ASSERT_EQ(pixel, RGB(255, 255, 255)) << "the sample ran over its band";
    ClearSelection(Control(kItems));
    EXPECT_TRUE(GetUpdateRect(window_, nullptr, FALSE)) << "what is selected next may show at once";
}
} // namespace
