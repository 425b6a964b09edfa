#include "pages/colours_page.h"

#include "tests/support/page_fixture.h"
#include "tests/support/text_words.h"
#include "ui/list_items.h"

namespace {
constexpr int kEdit = 1200;
constexpr int kColours = 1201;
constexpr int kName = 1202;
constexpr int kSave = 1203;
constexpr int kSchemes = 1204;
constexpr int kLoad = 1205;
constexpr int kDelete = 1206;

class ColoursPageTest : public PageFixture {
  protected:
    ColoursPageTest() : PageFixture(8, L"\\Colors") {}

    // Presses a button whose last message box, answered as said, has these texts.
    void Press(int button, int answer, UINT text, UINT caption) const {
        const MessageBoxAnswer box(answer);
        Tap(window_, button);
        ExpectSaid(box, text, caption);
    }
    void SaveAs(const wchar_t* name, UINT text = IDS_SCHEME_SAVED,
                UINT caption = IDS_SCHEME_SAVED_CAPTION) const {
        SetDlgItemText(window_, kName, name);
        Press(kSave, IDOK, text, caption);
    }
    void Load(int answer, UINT text = IDS_SCHEME_LOAD_QUESTION,
              UINT caption = IDS_SCHEME_LOAD_QUESTION_CAPTION) const {
        Press(kLoad, answer, text, caption);
    }
    std::wstring Schemes() const { return RowsOf(Control(kSchemes)); }
    void SelectScheme(int row) const { SelectRow(Control(kSchemes), row); }
    std::optional<uint32_t> Colour() const {
        return GetNumber(HKEY_CURRENT_USER, key_, L"GeneralFontColor");
    }
};

TEST_F(ColoursPageTest, EachRowEditsItsOwnColour) {
    constexpr DwordSetting SettingsStore::*kSettings[] = {
        &SettingsStore::SeperatorLineClr,   &SettingsStore::ShadowFontColor,
        &SettingsStore::GeneralFontColor,   &SettingsStore::HighlightBgClr,
        &SettingsStore::HighlightTextClr,   &SettingsStore::TimeLinesBgClr,
        &SettingsStore::TimeLinesDfltClr,   &SettingsStore::ClrBreakingLineClr,
        &SettingsStore::ClrPopupClrBg,      &SettingsStore::ClrPopupCurr,
        &SettingsStore::ClrPopupHighlight,  &SettingsStore::TskBreakingLineClr,
        &SettingsStore::ClrStatusFree,      &SettingsStore::ClrStatusBusy,
        &SettingsStore::ClrStatusTentative, &SettingsStore::ClrStatusOutofoffice,
    };
    Open();
    EXPECT_EQ(RowsOf(Control(kColours)),
              Expand(L"883|884|885|886|887|888|889|890|891|892|893|894|895|896|897|898"));
    Tap(window_, kEdit); // Nothing is selected; a picker would hang the test.
    SelectRow(Control(kColours), 0);
    TapAndWork(kEdit, kColourPicker, {});
    EXPECT_FALSE(settingsStore.SeperatorLineClr.changed) << "cancelled";
    for (int row = 0; row < 16; ++row) {
        SelectRow(Control(kColours), row);
        WideString html;
        html.Format(L"%02X0000", row + 1);
        TapAndWork(kEdit, kColourPicker, {Write(kHtml, html.CStr())});
    }
    for (uint32_t row = 0; row < 16; ++row)
        EXPECT_EQ((settingsStore.*kSettings[row]).value, row + 1) << row;
}

TEST_F(ColoursPageTest, SavesSchemesUnderNewNames) {
    Open();
    SaveAs(L"", IDS_SCHEME_NO_NAME, IDS_SCHEME_NO_NAME_CAPTION);
    SaveAs(L"Night");
    EXPECT_EQ(TextOf(Control(kName)), L"");
    SaveAs(L"Day");
    EXPECT_EQ(Schemes(), L"Day.scm|Night.scm") << "the new one on top";
    const auto before = folder_->Read(L"Schemes\\Night.scm");
    Store(L"GeneralFontColor", 1);
    SaveAs(L"night", IDS_SCHEME_EXISTS, IDS_SCHEME_EXISTS_CAPTION);
    EXPECT_EQ(folder_->Read(L"Schemes\\Night.scm"), before);
    EXPECT_EQ(TextOf(Control(kName)), L"night");
    SaveAs(L"a?b"); // Not checked.
    Open();
    EXPECT_EQ(Schemes(), L"Day.scm|Night.scm");
}

TEST_F(ColoursPageTest, LoadsTheSelectedScheme) {
    Store(L"GeneralFontColor", 0x123456);
    Open();
    SaveAs(L"Mine");
    Store(L"GeneralFontColor", 1);
    settingsStore.GoofyMode.Set(1);
    Load(IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION);
    SelectScheme(0);
    MSG message;
    for (const int answer : {IDNO, IDYES}) {
        Load(answer);
        EXPECT_EQ(Colour(), answer == IDYES ? 0x123456U : 1U);
        EXPECT_EQ(PeekMessage(&message, owner_, kMessageClosePage, kMessageClosePage, PM_REMOVE) !=
                      0,
                  answer == IDYES);
    }
    EXPECT_EQ(settingsStore.GeneralFontColor.value, 0x123456U);
    EXPECT_EQ(settingsStore.GoofyMode.value, 0U) << "all settings are loaded anew";
    EXPECT_NE(application.languageLibrary, nullptr);
}

TEST_F(ColoursPageTest, SaysWhyASchemeCannotBeLoaded) {
    folder_->Write(L"Schemes\\Bad.scm", "[Software\\Teskel\\Orvane\\Colors]\r\n");
    folder_->Write(L"Schemes\\Gone.scm", "");
    Open();
    folder_->Remove(L"Schemes\\Gone.scm");
    Store(L"GeneralFontColor", 1);
    SelectScheme(1);
    Load(IDYES, IDS_SCHEME_NOT_OPENED, IDS_SCHEME_NOT_OPENED_CAPTION);
    EXPECT_EQ(Colour(), 1U);
    SelectScheme(0);
    Load(IDYES, IDS_SCHEME_NOT_LOADED, IDS_SCHEME_NOT_LOADED_CAPTION);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, key_)) << "the old colours are gone";
    folder_->Remove(L"Schemes\\Bad.scm"); // Only a closed file goes.
    EXPECT_FALSE(folder_->Has(L"Schemes\\Bad.scm"));
}

TEST_F(ColoursPageTest, DeletesTheSelectedScheme) {
    Open();
    SaveAs(L"One");
    SaveAs(L"Two");
    SelectScheme(0);
    for (const int answer : {IDNO, IDYES}) {
        EXPECT_EQ(Schemes(), L"Two.scm|One.scm");
        Press(kDelete, answer, IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_QUESTION_CAPTION);
    }
    EXPECT_EQ(Schemes(), L"One.scm");
    EXPECT_FALSE(folder_->Has(L"Schemes\\Two.scm"));
    // The mark has moved to a neighbour, the selection has not.
    Press(kDelete, IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION);
}
} // namespace
