// Every page and dialog in every language, as the program opens them: each text within its control.
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "pages/add_plugin_dialog.h"
#include "pages/font_style_dialog.h"
#include "pages/settings_page.h"
#include "resource_ids.h"
#include "shell/about_window.h"
#include "shell/main_window.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "tests/resources/language_library.h"
#include "tests/resources/text_room.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"
#include "ui/colour_picker.h"
#include "ui/file_dialog.h"
#include "ui/filter_name_dialog.h"
#include "ui/folder_dialog.h"
#include "ui/image_picker.h"
#include "ui/list_items.h"

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

// Selects each row of each list that is shown, which may show more below or above it.
void CheckEachRow(HWND page, Misfits& misfits) {
    for (HWND list = FindWindowEx(page, nullptr, WC_LISTVIEW, nullptr); list;
         list = FindWindowEx(page, list, WC_LISTVIEW, nullptr)) {
        for (int row = 0; IsWindowVisible(list) && row < RowCount(list); ++row) {
            SelectRow(list, row);
            CheckControls(page, misfits, IsWindowVisible);
        }
    }
}

TEST_P(LanguagePlaces, HoldTheTextsOfPages) {
    constexpr int kFontsRow = 7;
    constexpr int kFontPerItem = 1204; // Names a tab anew.
    constexpr int kFontFace = 1206;    // Lists the device's own names.
    for (int row = 0; row < kPageCount; ++row) {
        Misfits misfits;
        const std::unique_ptr<SettingsPage> page(CreatePage(window_, row));
        ASSERT_TRUE(page && page->hwnd);
        if (row == kFontsRow) SendDlgItemMessage(page->hwnd, kFontFace, CB_RESETCONTENT, 0, 0);
        CheckControls(page->hwnd, misfits);
        for (int tab = 0; tab < page->GetTabCount(); ++tab) {
            SendMessage(page->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
            CheckEachRow(page->hwnd, misfits);
        }
        if (row == kFontsRow) {
            Tap(page->hwnd, kFontPerItem);
            CheckControls(page->hwnd, misfits);
        }
        EXPECT_EQ(misfits, Misfits()) << Narrow(LanguageText(PageCaption(row)).CStr());
        ClosePage(*page);
    }
}

struct Dialog {
    const wchar_t* className;
    void (*open)(HWND owner);
};
const Dialog kDialogs[] = {
    {L"SelectFolderWin",
     [](HWND owner) {
         WideString path;
         EXPECT_FALSE(SelectFolder(owner, L"", path));
     }},
    {L"LoadFileWin",
     [](HWND owner) {
         WideString path;
         const WideString files = LanguageText(IDS_CALENDAR_MAIL_PATH_FILES);
         EXPECT_FALSE(SelectFileToOpen(owner, {L"", files.CStr(), L"exe", L""}, path));
     }},
    {L"ImagePickerWin",
     [](HWND owner) {
         WideString path(L"\\no such picture.bmp"); // Has a row of its own.
         EXPECT_FALSE(PickImage(owner, path));
     }},
    {L"ColourPickerWin", [](HWND owner) { EXPECT_EQ(PickColour(owner, 0), kPickCancelled); }},
    {L"AboutWin", [](HWND owner) { ShowAbout(owner); }},
    {L"#32770",
     [](HWND owner) {
         LOGFONT font{};
         COLORREF colour = 0;
         EditFontStyle(owner, font, colour);
     }},
    {L"#32770",
     [](HWND owner) {
         WideString name;
         EXPECT_FALSE(ChoosePluginToAdd(owner, name));
     }},
    {L"#32770",
     [](HWND owner) {
         WideString title;
         EXPECT_FALSE(AskFilterName(owner, title));
     }},
};

TEST_P(LanguagePlaces, HoldTheTextsOfDialogs) {
    for (const Dialog& dialog : kDialogs) {
        Misfits misfits{"not opened"};
        const DialogSteps steps(dialog.className, {[&](HWND window) {
                                    misfits.clear();
                                    CheckControls(window, misfits);
                                }});
        dialog.open(window_);
        EXPECT_EQ(misfits, Misfits()) << &dialog - kDialogs;
    }
}

// Below the icons, in at most two lines; the list view keeps some of its grid free of text.
TEST_P(LanguagePlaces, HoldTheNamesOfPages) {
    HWND list = FindWindowEx(window_, nullptr, WC_LISTVIEW, nullptr);
    const auto spacing = static_cast<DWORD>(SendMessage(list, LVM_GETITEMSPACING, FALSE, 0));
    const SIZE room{LOWORD(spacing) - Scale(12), 2 * Scale(14)};
    ASSERT_EQ(RowCount(list), kPageCount);
    Misfits misfits;
    for (int row = 0; row < kPageCount; ++row)
        CheckText(application.boldFont, LanguageText(PageCaption(row)).CStr(), room, misfits);
    EXPECT_EQ(misfits, Misfits());
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguagePlaces, testing::ValuesIn(kLanguages),
                         LanguageTestName);

} // namespace
