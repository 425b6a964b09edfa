#include "shell/main_window.h"

#include <aygshell.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/icon_set.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/image_strip.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kRoot[] = L"Software\\Teskel\\Orvane";
constexpr int kColoursRow = 8;

// How often the dashboard was told.
int timesTold;

LRESULT CALLBACK ListenerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == application.settingsChangedMessage) {
        ++timesTold;
        EXPECT_TRUE(wParam == 0 && lParam == 0);
    }
    return DefWindowProc(window, message, wParam, lParam);
}

class MainWindowTest : public RegistryFixture {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        listener_ = CreateWindowEx(0, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                   nullptr, nullptr);
        SetWindowLongPtr(listener_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListenerProc));
        timesTold = 0;
    }

    void TearDown() override {
        if (IsWindow(window_)) DestroyWindow(window_);
        DestroyWindow(listener_);
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        RegistryFixture::TearDown();
    }

    void Start() {
        window_ = CreateMainWindow(application.instance);
        ASSERT_NE(window_, nullptr);
        MakeRoomForMenuBar(window_);
        PumpMessages();
        list_ = FindWindowEx(window_, nullptr, WC_LISTVIEW, nullptr);
        ASSERT_NE(list_, nullptr);
    }

    // As by the keys: the row takes the selection, Enter activates it.
    HWND OpenPage(int row) {
        SelectRow(list_, row);
        SendMessage(list_, WM_KEYDOWN, VK_RETURN, 0);
        PumpMessages();
        HWND root = ActiveRoot(window_);
        return root == window_ ? nullptr : root;
    }

    HWND window_ = nullptr;
    HWND list_ = nullptr;
    HWND listener_ = nullptr;
};

TEST_F(MainWindowTest, BearsTheNameOfTheOpenPage) {
    Start();
    EXPECT_EQ(TextOf(window_), L"OV Options");
    for (int row = 0; row < kPageCount; ++row) {
        HWND page = OpenPage(row);
        ASSERT_NE(page, nullptr) << row;
        EXPECT_EQ(TextOf(window_), LanguageText(PageCaption(row)).CStr());
        EXPECT_NE(TextOf(window_), L"");
        SendMessage(page, WM_COMMAND, IDOK, 0);
        EXPECT_EQ(ActiveRoot(window_), window_);
        EXPECT_EQ(TextOf(window_), L"OV Options");
    }
    EXPECT_EQ(CreatePage(window_, kPageCount), nullptr);
}

TEST_F(MainWindowTest, HoldsTheBuiltInIconSetWhileItLives) {
    Start();
    EXPECT_TRUE(iconSet[IconSymbol::Note].bitmap && iconSet[IconSymbol::AttachedIcon].bitmap);
    EXPECT_TRUE(application.imagingFactory);
    DestroyWindow(window_);
    EXPECT_FALSE(iconSet[IconSymbol::Note].bitmap || iconSet[IconSymbol::AttachedIcon].bitmap);
    EXPECT_FALSE(application.imagingFactory);
}

// A scheme replaces the settings below the open page.
TEST_F(MainWindowTest, ALoadedSchemeLeadsBackToThePageList) {
    constexpr wchar_t kColourKey[] = L"Software\\Teskel\\Orvane\\Colors";
    constexpr int kSchemes = 1204;
    constexpr int kLoadScheme = 1205;
    const InstallFolder folder;
    folder.Write(L"Schemes\\Dusk.scm",
                 "\r\n[Software\\Teskel\\Orvane\\Colors]\r\n\"GeneralFontColor\"=dword:4660\r\n");
    SetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile",
            L"\\Program Files\\Teskel\\Orvane\\LangRes\\OVEngRc.dll");
    SetNumber(HKEY_CURRENT_USER, kColourKey, L"HighlightBgClr", 1);
    Start();
    const std::wstring captions = RowsOf(list_);
    HWND page = OpenPage(kColoursRow);
    settingsStore.GeneralFontColor.Set(2);
    SelectRow(GetDlgItem(page, kSchemes), L"Dusk.scm");
    {
        const MessageBoxAnswer yes(IDYES);
        Tap(page, kLoadScheme);
    }
    PumpMessages();
    EXPECT_FALSE(IsWindow(page));
    EXPECT_EQ(ActiveRoot(window_), window_);
    EXPECT_EQ(TextOf(window_), L"OV Options");
    EXPECT_EQ(RowsOf(list_), captions);
    EXPECT_NE(captions.find(L"Colours"), std::wstring::npos);
    EXPECT_NE(SHFindMenuBar(window_), nullptr);
    EXPECT_EQ(timesTold, 0);

    SendMessage(window_, WM_COMMAND, IDOK, 0);
    EXPECT_FALSE(IsWindow(window_)) << "the first tap saves and quits";
    EXPECT_EQ(timesTold, 0) << "the message is posted, not sent";
    EXPECT_FALSE(PumpMessages());
    EXPECT_EQ(timesTold, 1);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kColourKey, L"GeneralFontColor"), 4660u);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kColourKey, L"HighlightBgClr"));
}

// The picker lends its title to the windows below, which may get another meanwhile.
TEST_F(MainWindowTest, KeepsItsTitleWhenAPageIsClosedBehindThePicker) {
    constexpr int kEdit = 1200;
    constexpr int kColours = 1201;
    Start();
    HWND page = OpenPage(kColoursRow);
    const std::wstring caption = TextOf(window_);
    const std::wstring pagesOwn = TextOf(page);
    SelectRow(GetDlgItem(page, kColours), 0);
    const auto tap = [page](const DialogSteps::Step& step) {
        const DialogSteps steps(L"ColourPickerWin", {step});
        Tap(page, kEdit);
    };
    tap([&](HWND picker) {
        EXPECT_NE(TextOf(window_), caption);
        EXPECT_EQ(TextOf(window_), TextOf(picker));
    });
    EXPECT_EQ(TextOf(window_), caption);
    EXPECT_EQ(TextOf(page), pagesOwn);
    tap([&](HWND) { SendMessage(page, WM_CLOSE, 0, 0); });
    EXPECT_FALSE(IsWindow(page));
    EXPECT_EQ(TextOf(window_), L"OV Options");
}

TEST_F(MainWindowTest, CancelAsks) {
    Start();
    const MessageBoxAnswer no(IDNO);
    SendMessage(window_, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(no.text, LanguageText(IDS_QUIT_QUESTION).CStr());
    EXPECT_EQ(no.caption, LanguageText(IDS_QUIT_CAPTION).CStr());
    EXPECT_TRUE(IsWindow(window_));
    EXPECT_EQ(GetFocus(), list_);
}

TEST_F(MainWindowTest, ClosedFromOutsideWithAPageOpenSavesNothing) {
    Start();
    HWND page = OpenPage(0);
    Tap(page, 1218);
    SendMessage(window_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(window_));
    EXPECT_FALSE(IsWindow(page));
    EXPECT_FALSE(PumpMessages());
    EXPECT_EQ(timesTold, 0);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"GoofyMode"));
}

TEST_F(MainWindowTest, TheToolsMenuHasNothingOfTheDashboardsAndEndsWithAbout) {
    Start();
    auto* menu = reinterpret_cast<HMENU>(SendMessage(SHFindMenuBar(window_), SHCMBM_GETMENU, 0, 0));
    std::vector<UINT> entries;
    for (int i = 0; i < GetMenuItemCount(GetSubMenu(menu, 1)); ++i)
        entries.push_back(GetMenuItemID(GetSubMenu(menu, 1), i));
    EXPECT_EQ(entries, (std::vector<UINT>{IDC_EXPORT_BACKUP, 0, IDC_IMPORT_BACKUP, 0, IDC_ABOUT}));
}

// 128 dpi take the images of 96 dpi and have larger places for them.
TEST_F(MainWindowTest, StretchesTheImagesOfTheMenuBarToAnySize) {
    Start();
    const UniqueImageList images = LoadImageStrip(IDB_MENU_BAR, 21, RGB(0xDE, 0xCF, 0xC6));
    ASSERT_EQ(ImageList_GetImageCount(images.Get()), 2);
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(images.Get(), &width, &height);
    EXPECT_TRUE(width == 21 && height == 21);
}

TEST_F(MainWindowTest, StartsWithoutAnyLibrary) {
    SetText(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Orvane", L"ProgramFiles",
            L"\\Nowhere");
    SetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile", L"\\Nowhere.dll");
    Start();
    EXPECT_EQ(application.languageLibrary, nullptr);
    EXPECT_EQ(application.displayLibrary, nullptr);
    EXPECT_EQ(SendMessage(list_, LVM_GETITEMCOUNT, 0, 0), kPageCount);
    for (int row = 0; row < kPageCount; ++row) {
        HWND page = OpenPage(row);
        ASSERT_NE(page, nullptr) << row;
        SendMessage(page, WM_COMMAND, IDOK, 0);
    }
    SendMessage(window_, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile"), L"\\Nowhere.dll");
}
} // namespace
