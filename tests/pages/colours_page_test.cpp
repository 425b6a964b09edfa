#include "pages/colours_page.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"
#include "ui/list_items.h"

namespace {
constexpr int kEdit = 1200;
constexpr int kColours = 1201;
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
    ASSERT_EQ(RowCount(list), 16);
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

TEST_F(ColoursPageTest, NamesAndDescribesEachColour) {
    HWND window = Open();
    HWND list = GetDlgItem(window, kColours);
    RECT client{};
    GetClientRect(window, &client);
    const RECT above{Scale(10), ScaleY(8), client.right - Scale(10), ScaleY(50)};
    std::wstring labels;
    for (UINT row = 0; row < 16; ++row) {
        labels += (row ? L"|" : L"") + Text(883 + row);
        SelectRow(list, static_cast<int>(row));
        EXPECT_TRUE(ShowsText(above, Text(899 + row), DT_WORDBREAK)) << row;
    }
    EXPECT_EQ(RowsOf(list), labels);
    Close();
}

TEST_F(ColoursPageTest, SavesAndDeletesASchemeByItsButtons) {
    constexpr int kName = 1202;
    constexpr int kSave = 1203;
    constexpr int kSchemes = 1204;
    constexpr int kDelete = 1206;
    const InstallFolder folder;
    HWND window = Open();
    ShowTab(1);
    HWND list = GetDlgItem(window, kSchemes);
    SetDlgItemText(window, kName, L"Mine");
    {
        const MessageBoxAnswer answer(IDOK);
        Tap(window, kSave);
        EXPECT_EQ(answer.count, 1);
    }
    EXPECT_EQ(RowsOf(list), L"Mine.scm");
    EXPECT_TRUE(folder.Has(L"Schemes\\Mine.scm"));
    EXPECT_EQ(TextOf(GetDlgItem(window, kName)), L"");
    SelectRow(list, 0);
    {
        const MessageBoxAnswer yes(IDYES);
        Tap(window, kDelete);
        EXPECT_EQ(yes.count, 1);
    }
    EXPECT_EQ(RowsOf(list), L"");
    EXPECT_FALSE(folder.Has(L"Schemes\\Mine.scm"));
    Close();
}

TEST_F(ColoursPageTest, LeavesTheColourWhereNothingIsChosen) {
    HWND window = Open();
    Tap(window, kEdit); // Nothing is selected; a picker would hang the test.
    SelectRow(GetDlgItem(window, kColours), 2);
    {
        const DialogSteps steps(kPicker, {}); // Cancels.
        Tap(window, kEdit);
    }
    EXPECT_FALSE(settingsStore.GeneralFontColor.changed);
    Close();
}

TEST_F(ColoursPageTest, ListsNoHigherThanTheirRoom) {
    MoveWindow(owner_, 0, Scale(26), Scale(320), Scale(108), FALSE); // Turned, above the panel.
    HWND window = Open();
    for (const int id : {kColours, 1204}) {
        RECT place{};
        GetWindowRect(GetDlgItem(window, id), &place);
        EXPECT_GE(place.bottom, place.top) << id;
        EXPECT_LE(place.bottom - place.top, Scale(8)) << id;
    }
    Close();
}
} // namespace
