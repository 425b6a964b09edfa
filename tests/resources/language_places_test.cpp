// Every page and dialog in every language, as the program opens them: each text within its control.
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "shell/main_window.h"
#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/resources/language_library.h"
#include "tests/resources/text_room.h"
#include "tests/support/every_window.h"
#include "tests/support/registry_fixture.h"

namespace {

class LanguagePlaces : public RegistryFixture, public testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane", L"SelectedLangResFile",
                LanguagePath(GetParam()));
        application.instance = GetModuleHandle(nullptr);
        window_ = CreateMainWindow(application.instance);
        ASSERT_NE(window_, nullptr);
        MakeRoomForMenuBar(window_);
        const UniqueModule library = LoadLanguage(GetParam());
        ASSERT_EQ(application.languageLibrary, library.Get());
    }
    void TearDown() override {
        DestroyWindow(window_);
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        RegistryFixture::TearDown();
    }

    HWND window_ = nullptr;
};

TEST_P(LanguagePlaces, HoldTheTextsOfPages) {
    constexpr int kFontsRow = 7;
    constexpr int kFontPerItem = 1204; // Names a tab anew.
    constexpr int kFontFace = 1206;    // Lists the device's own names.
    for (int row = 0; row < kPageCount; ++row) {
        Misfits misfits;
        VisitPage(window_, row, [&](HWND page) {
            if (row == kFontsRow) {
                SendDlgItemMessage(page, kFontFace, CB_RESETCONTENT, 0, 0);
                Tap(page, kFontPerItem);
            }
            CheckControls(page, misfits);
        });
        EXPECT_EQ(misfits, Misfits()) << Narrow(LanguageText(PageCaption(row)).CStr());
    }
}

TEST_P(LanguagePlaces, HoldTheTextsOfDialogs) {
    for (const Dialog& dialog : kDialogs) {
        Misfits misfits;
        VisitDialog(window_, dialog, IDCANCEL,
                    [&](HWND window) { CheckControls(window, misfits); });
        EXPECT_EQ(misfits, Misfits()) << dialog.name;
    }
}

// Below the icons, in at most two lines; the list view keeps some of its grid free of text.
TEST_P(LanguagePlaces, HoldTheNamesOfPages) {
    HWND list = FindWindowEx(window_, nullptr, WC_LISTVIEW, nullptr);
    const auto spacing = static_cast<DWORD>(SendMessage(list, LVM_GETITEMSPACING, FALSE, 0));
    const SIZE room{LOWORD(spacing) - Scale(12), 2 * Scale(14)};
    Misfits misfits;
    for (int row = 0; row < kPageCount; ++row)
        CheckText(application.boldFont, LanguageText(PageCaption(row)).CStr(), room, misfits);
    EXPECT_EQ(misfits, Misfits());
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguagePlaces, testing::ValuesIn(kLanguages),
                         LanguageTestName);

} // namespace
