#include "pages/colours_page.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "resource_ids.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
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
constexpr wchar_t kColoursKey[] = L"Software\\Teskel\\Orvane\\Colors";
constexpr int kHtml = 130; // Of the picker.
constexpr wchar_t kPicker[] = L"ColourPickerWin";

class ColoursPageTest : public PageFixture {
  protected:
    ColoursPageTest() : PageFixture(8) {}
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
    HWND window = Open();
    HWND list = GetDlgItem(window, kColours);
    for (int row = 0; row < 16; ++row) {
        SelectRow(list, row);
        WideString html;
        html.Format(L"%02X0000", row + 1);
        const DialogSteps steps(kPicker, {[&](HWND picker) {
                                    SetDlgItemText(picker, kHtml, html.CStr());
                                    PostMessage(picker, WM_COMMAND, IDOK, 0);
                                }});
        Tap(window, kEdit);
    }
    for (int row = 0; row < 16; ++row) {
        const DwordSetting& setting = settingsStore.*kSettings[row];
        EXPECT_EQ(setting.value, static_cast<uint32_t>(row + 1)) << row;
        EXPECT_TRUE(setting.changed) << row;
    }
    Close();
}

TEST_F(ColoursPageTest, ListsEachColour) {
    HWND list = GetDlgItem(Open(), kColours);
    EXPECT_EQ(RowsOf(list),
              Expand(L"883|884|885|886|887|888|889|890|891|892|893|894|895|896|897|898"));
    Close();
}

class SchemesTest : public ColoursPageTest {
  protected:
    void SetUp() override {
        ColoursPageTest::SetUp();
        folder_.emplace();
    }
    void TearDown() override {
        folder_.reset();
        ColoursPageTest::TearDown();
    }

    // A button whose last message box, answered as said, has these texts.
    void Press(int button, int answer, UINT text, UINT caption) const {
        const MessageBoxAnswer box(answer);
        Tap(page_->hwnd, button);
        EXPECT_EQ(box.text, Text(text));
        EXPECT_EQ(box.caption, Text(caption));
    }
    void Save(const wchar_t* name, UINT text = IDS_SCHEME_SAVED,
              UINT caption = IDS_SCHEME_SAVED_CAPTION) const {
        SetDlgItemText(page_->hwnd, kName, name);
        Press(kSave, IDOK, text, caption);
    }
    void Load(int answer, UINT text = IDS_SCHEME_LOAD_QUESTION,
              UINT caption = IDS_SCHEME_LOAD_QUESTION_CAPTION) const {
        Press(kLoad, answer, text, caption);
    }
    [[nodiscard]] HWND List() const { return GetDlgItem(page_->hwnd, kSchemes); }
    [[nodiscard]] std::wstring Name() const { return TextOf(GetDlgItem(page_->hwnd, kName)); }
    static void SetColour(uint32_t colour) {
        SetNumber(HKEY_CURRENT_USER, kColoursKey, L"GeneralFontColor", colour);
    }
    static std::optional<uint32_t> Colour() {
        return GetNumber(HKEY_CURRENT_USER, kColoursKey, L"GeneralFontColor");
    }

    std::optional<InstallFolder> folder_;
};

TEST_F(SchemesTest, AreSavedUnderNewNames) {
    Open();
    Save(L"", IDS_SCHEME_NO_NAME, IDS_SCHEME_NO_NAME_CAPTION);
    Save(L"Night");
    EXPECT_EQ(Name(), L"");
    Save(L"Day");
    EXPECT_EQ(RowsOf(List()), L"Day.scm|Night.scm") << "the new one on top";
    const auto before = folder_->Read(L"Schemes\\Night.scm");
    SetColour(1);
    Save(L"night", IDS_SCHEME_EXISTS, IDS_SCHEME_EXISTS_CAPTION);
    EXPECT_EQ(folder_->Read(L"Schemes\\Night.scm"), before);
    EXPECT_EQ(Name(), L"night");
    Save(L"a?b"); // Not checked.
    Close();
    Open();
    EXPECT_EQ(RowsOf(List()), L"Day.scm|Night.scm");
    Close();
}

TEST_F(SchemesTest, AreLoadedWhenSelected) {
    SetColour(0x123456);
    Open();
    Save(L"Mine");
    SetColour(1);
    settingsStore.GoofyMode.Set(1);
    Load(IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION);
    SelectRow(List(), 0);
    Load(IDNO);
    EXPECT_EQ(Colour(), 1U);
    MSG message;
    const auto closesPage = [&] {
        return PeekMessage(&message, owner_, kMessageClosePage, kMessageClosePage, PM_REMOVE) != 0;
    };
    EXPECT_FALSE(closesPage());
    Load(IDYES);
    EXPECT_TRUE(closesPage());
    EXPECT_EQ(settingsStore.GeneralFontColor.value, 0x123456U);
    EXPECT_EQ(settingsStore.GoofyMode.value, 0U) << "all settings are loaded anew";
    EXPECT_NE(application.languageLibrary, nullptr);
    Close();
}

TEST_F(SchemesTest, SayWhyAFileCannotBeLoaded) {
    folder_->Write(L"Schemes\\Bad.scm", "[Software\\Teskel\\Orvane\\Colors]\r\n");
    folder_->Write(L"Schemes\\Gone.scm", "");
    Open();
    folder_->Remove(L"Schemes\\Gone.scm");
    SetColour(1);
    SelectRow(List(), 1);
    Load(IDYES, IDS_SCHEME_NOT_OPENED, IDS_SCHEME_NOT_OPENED_CAPTION);
    EXPECT_EQ(Colour(), 1U);
    SelectRow(List(), 0);
    Load(IDYES, IDS_SCHEME_NOT_LOADED, IDS_SCHEME_NOT_LOADED_CAPTION);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, kColoursKey)) << "the old colours are gone";
    folder_->Remove(L"Schemes\\Bad.scm"); // Only a closed file goes.
    EXPECT_FALSE(folder_->Has(L"Schemes\\Bad.scm"));
    Close();
}

TEST_F(SchemesTest, AreDeletedWhenSelected) {
    Open();
    Save(L"One");
    Save(L"Two");
    ClearSelection(List());
    const auto missing = [this] {
        Press(kDelete, IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION);
    };
    missing();
    SelectRow(List(), 0);
    for (const int answer : {IDNO, IDYES})
        Press(kDelete, answer, IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_QUESTION_CAPTION);
    EXPECT_EQ(RowsOf(List()), L"One.scm");
    EXPECT_FALSE(folder_->Has(L"Schemes\\Two.scm"));
    missing(); // The mark has moved to a neighbour, the selection has not.
    Close();
}

TEST_F(ColoursPageTest, LeavesTheColourWhereNothingIsChosen) {
    HWND window = Open();
    Tap(window, kEdit); // Nothing is selected; a picker would hang the test.
    SelectRow(GetDlgItem(window, kColours), 2);
    TapAndWork(kEdit, kPicker, {});
    EXPECT_FALSE(settingsStore.GeneralFontColor.changed);
    Close();
}

TEST_F(ColoursPageTest, ListsNoHigherThanTheirRoom) {
    MoveWindow(owner_, 0, Scale(26), Scale(320), Scale(108), FALSE); // Turned, above the panel.
    HWND window = Open();
    for (const int id : {kColours, kSchemes}) {
        RECT place{};
        GetWindowRect(GetDlgItem(window, id), &place);
        EXPECT_GE(place.bottom, place.top) << id;
        EXPECT_LE(place.bottom - place.top, Scale(8)) << id;
    }
    Close();
}
} // namespace
