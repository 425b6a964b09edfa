#include "pages/category_page.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "files/icon_catalogue.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/image_files.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"

namespace {
constexpr int kCategoryRow = 11;
constexpr int kCategories = 1200;
constexpr int kIcon = 1201;
constexpr int kColour = 1202;
constexpr int kFilter = 1204;
constexpr int kRename = 1205;
constexpr int kVisible = 1206;
constexpr int kUncategorized = 1207;
constexpr int kSensitivity = 1209;
constexpr int kTickAll = 1210;
constexpr int kTickNone = 1211;
constexpr int kMembers = 1212;
constexpr int kFolderEdit = 1214;
constexpr int kFolderClear = 1215;
constexpr int kFolderBrowse = 1216;

constexpr wchar_t kPicker[] = L"ImagePickerWin";
constexpr wchar_t kColourPicker[] = L"ColourPickerWin";
constexpr int kPickerList = 100;
constexpr int kPickerNone = 102;

class CategoryPageTest : public PageFixture {
  protected:
    CategoryPageTest() : PageFixture(kCategoryRow) {}

    void SetUp() override {
        PageFixture::SetUp();
        folder_.emplace();
        folder_->SetCategories("1\t0\tWork\n2\t0\tHome\n3\t0\t..\\Icons\\star\n");
        folder_->Write(L"Icons\\star.bmp", BmpFile(8, 8, 1));
        iconCatalogue = IconCatalogue(); // As at a start.
    }
    void TearDown() override {
        folder_.reset();
        PageFixture::TearDown();
    }

    // As at start: the categories by name are "..\Icons\star", "Home", "Work".
    HWND OpenPage() {
        settingsStore.Load(application.languageLibrary);
        categoryStore.LoadCategoryStore();
        return Open();
    }
    static void TickMember(HWND page, int row, bool isTicked) {
        ListView_SetCheckState(GetDlgItem(page, kMembers), row, isTicked);
    }
    static std::string Ticks(HWND page) {
        HWND members = GetDlgItem(page, kMembers);
        std::string ticks;
        for (int row = 0; row < ListView_GetItemCount(members); ++row)
            ticks += ListView_GetCheckState(members, row) ? 'x' : '-';
        return ticks;
    }
    static void SelectCategory(HWND page, const wchar_t* name) {
        SelectRow(GetDlgItem(page, kCategories), name);
    }
    static bool HasIcon(const wchar_t* name) {
        return static_cast<bool>(categoryStore.FindCategory(name)->icon);
    }
    void PickIcon(const wchar_t* name) {
        TapAndWork(kIcon, kPicker,
                   {[name](HWND picker) { SelectRow(GetDlgItem(picker, kPickerList), name); },
                    [](HWND picker) { SendMessage(picker, WM_COMMAND, IDOK, 0); }});
    }

    std::optional<InstallFolder> folder_;
};

TEST_F(CategoryPageTest, KeepsTheTicksOfEachFilter) {
    HWND page = OpenPage();
    EXPECT_EQ(RowsOf(GetDlgItem(page, kMembers)), L"..\\Icons\\star|Home|Work");
    EXPECT_EQ(Ticks(page), "---");
    EXPECT_EQ(TextOf(GetDlgItem(page, kVisible)), LanguageText(925).CStr());
    EXPECT_EQ(TextOf(GetDlgItem(page, kUncategorized)), LanguageText(924).CStr());
    TickMember(page, 1, true);
    SendDlgItemMessage(page, kVisible, BM_CLICK, 0, 0);
    Choose(page, kFilter, 1);
    EXPECT_EQ(Ticks(page), "---");
    EXPECT_EQ(IsDlgButtonChecked(page, kVisible), 1U);
    Tap(page, kTickAll);
    EXPECT_EQ(Ticks(page), "xxx");
    Tap(page, kTickNone);
    EXPECT_EQ(Ticks(page), "---");
    Tap(page, kTickAll);
    EXPECT_EQ(categoryStore.FindCategory(L"Work")->filters, 0U) << "not before the filter is left";
    Choose(page, kSensitivity, 2);
    Tap(page, kUncategorized);
    Choose(page, kFilter, 0);
    EXPECT_EQ(Ticks(page), "-x-");
    EXPECT_EQ(IsDlgButtonChecked(page, kVisible), 0U);
    EXPECT_EQ(categoryStore.FindFilter(2)->sensitivity, 2);
    EXPECT_TRUE(categoryStore.FindFilter(2)->includeUncategorized);
    EXPECT_EQ(categoryStore.FindCategory(L"Home")->filters, 3U);
    Choose(page, kFilter, 31);
    TickMember(page, 2, true);
    Close();
    EXPECT_EQ(categoryStore.FindCategory(L"Work")->filters, 0x80000002U) << "by closing the page";

    page = OpenPage();
    EXPECT_EQ(Ticks(page), "---") << "nothing of it was in the registry";
    Close();
}

// A list that is given up may leave another entry than the one whose settings are shown.
TEST_F(CategoryPageTest, SavesTheFilterThatItShows) {
    HWND page = OpenPage();
    TickMember(page, 0, true);
    SendDlgItemMessage(page, kFilter, CB_SETCURSEL, 4, 0);
    SendMessage(page, WM_COMMAND, MAKEWPARAM(kFilter, CBN_CLOSEUP),
                reinterpret_cast<LPARAM>(GetDlgItem(page, kFilter)));
    EXPECT_EQ(Ticks(page), "---");
    SendDlgItemMessage(page, kFilter, CB_SETCURSEL, 5, 0);
    TickMember(page, 1, true);
    Close();
    EXPECT_EQ(categoryStore.All()[0]->filters, 1U);
    EXPECT_EQ(categoryStore.All()[1]->filters, 16U);
}

TEST_F(CategoryPageTest, KeepsASensitivityThatItDoesNotOffer) {
    OpenPage();
    Close();
    for (const int odd : {3, -1, INT_MIN}) {
        categoryStore.FindFilter(1)->sensitivity = odd;
        HWND page = Open();
        EXPECT_EQ(SendDlgItemMessage(page, kSensitivity, CB_GETCURSEL, 0, 0), CB_ERR);
        Close();
        EXPECT_EQ(categoryStore.FindFilter(1)->sensitivity, odd);
    }
}

TEST_F(CategoryPageTest, RenamesAFilter) {
    HWND page = OpenPage();
    Choose(page, kFilter, 4);
    std::wstring shown;
    const std::wstring longName(300, L'n');
    const auto rename = [&](const std::wstring& name, int button) {
        TapAndWork(kRename, L"#32770", {[&](HWND dialog) {
                       shown = TextOf(GetDlgItem(dialog, 419)) + TextOf(GetDlgItem(dialog, 1590));
                       SetDlgItemText(dialog, 1590, name.c_str());
                       SendMessage(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
                   }});
    };
    rename(L"Other", IDCANCEL);
    EXPECT_EQ(shown, L"Filter name:Filter 5");
    EXPECT_STREQ(categoryStore.FindFilter(5)->title.CStr(), L"Filter 5");
    rename(longName, IDOK);
    EXPECT_EQ(categoryStore.FindFilter(5)->title.Length(), 255U);
    rename(L"", IDOK);
    EXPECT_STREQ(categoryStore.FindFilter(5)->title.CStr(), L"");
    HWND combo = GetDlgItem(page, kFilter);
    EXPECT_EQ(EntriesOf(combo).find(L"Filter 1|Filter 2|Filter 3|Filter 4||Filter 6"), 0U);
    EXPECT_EQ(SendMessage(combo, CB_GETCURSEL, 0, 0), 4);
    Close();
}

TEST_F(CategoryPageTest, DoesNothingWithoutASelectedCategory) {
    HWND page = OpenPage();
    for (const int button : {kIcon, kColour}) {
        EXPECT_FALSE(IsEnabled(button));
        SendMessage(page, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                    reinterpret_cast<LPARAM>(GetDlgItem(page, button)));
    }
    SelectCategory(page, L"Home");
    EXPECT_TRUE(IsEnabled(kIcon) && IsEnabled(kColour));
    ListView_SetItemState(GetDlgItem(page, kCategories), -1, 0, LVIS_SELECTED);
    EXPECT_FALSE(IsEnabled(kIcon) || IsEnabled(kColour));
    Close();
}

TEST_F(CategoryPageTest, TakesAndDropsAnIcon) {
    folder_->Write(L"CategoryIcons\\Work.bmp", BmpFile(4, 4, 4));
    HWND page = OpenPage();
    SelectCategory(page, L"Home");
    PickIcon(L"star");
    EXPECT_TRUE(HasIcon(L"Home"));
    EXPECT_EQ(folder_->Read(L"CategoryIcons\\Home.bmp"), folder_->Read(L"Icons\\star.bmp"));
    EXPECT_EQ(GetFocus(), GetDlgItem(page, kCategories));

    // What is there is offered first and kept when it is confirmed.
    std::wstring rows;
    TapAndWork(kIcon, kPicker, {[&](HWND picker) {
                   rows = RowsOf(GetDlgItem(picker, kPickerList));
                   SendMessage(picker, WM_COMMAND, IDOK, 0);
               }});
    EXPECT_EQ(rows, L"Present icon|star");
    EXPECT_TRUE(folder_->Has(L"CategoryIcons\\Home.bmp"));

    // A file that goes while the picker shows it cannot be copied.
    TapAndWork(kIcon, kPicker, {[&](HWND picker) {
                   SelectRow(GetDlgItem(picker, kPickerList), L"star");
                   folder_->Remove(L"Icons\\star.bmp");
                   SendMessage(picker, WM_COMMAND, IDOK, 0);
               }});
    EXPECT_FALSE(HasIcon(L"Home"));
    EXPECT_FALSE(folder_->Has(L"CategoryIcons\\Home.bmp"));

    SelectCategory(page, L"Work");
    TapAndWork(kIcon, kPicker, {[](HWND picker) { Tap(picker, IDCANCEL); }});
    EXPECT_TRUE(HasIcon(L"Work"));
    TapAndWork(kIcon, kPicker, {[](HWND picker) { Tap(picker, kPickerNone); }});
    EXPECT_FALSE(HasIcon(L"Work"));
    EXPECT_FALSE(folder_->Has(L"CategoryIcons\\Work.bmp"));
    Close();
}

TEST_F(CategoryPageTest, ChoosesAColour) {
    constexpr int kHtml = 130;
    HWND page = OpenPage();
    SelectCategory(page, L"Home");
    for (const UINT button : {IDOK, IDCANCEL}) {
        TapAndWork(kColour, kColourPicker, {[button](HWND picker) {
                       SetDlgItemText(picker, kHtml, button == IDOK ? L"102030" : L"FFFFFF");
                       SendMessage(picker, WM_COMMAND, button, 0);
                   }});
        EXPECT_EQ(categoryStore.FindCategory(L"Home")->colour, RGB(0x10, 0x20, 0x30)) << button;
        EXPECT_EQ(GetFocus(), GetDlgItem(page, kCategories));
    }
    Close();
}

TEST_F(CategoryPageTest, RefusesAnIconForANameThatIsNoFileName) {
    HWND page = OpenPage();
    SelectCategory(page, L"..\\Icons\\star");
    MessageBoxAnswer answer(IDOK);
    TapAndWork(kIcon, kPicker, {});
    EXPECT_EQ(answer.caption, L"No icon possible");
    EXPECT_TRUE(folder_->Has(L"Icons\\star.bmp"));
    Close();
}

TEST_F(CategoryPageTest, KeepsTheFolderOfAdditionalIcons) {
    HWND page = OpenPage();
    TapAndWork(kFolderBrowse, L"SelectFolderWin",
               {[](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDOK, 0); }});
    EXPECT_STREQ(settingsStore.AdditionalIconsFolder.value.CStr(), L"\\");
    Tap(page, kFolderClear);
    EXPECT_STREQ(settingsStore.AdditionalIconsFolder.value.CStr(), L"");
    EXPECT_TRUE(settingsStore.AdditionalIconsFolder.changed);
    SetDlgItemText(page, kFolderEdit, L"\\Typed");
    Close();
    EXPECT_STREQ(settingsStore.AdditionalIconsFolder.value.CStr(), L"\\Typed");
}

TEST_F(CategoryPageTest, LeavesAFolderAloneThatIsLongerThanItTakes) {
    const std::wstring stored = L"\\" + std::wstring(399, L'f');
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Categories", L"AdditionalIconsFolder",
            stored);
    OpenPage();
    TapAndWork(kFolderBrowse, L"SelectFolderWin",
               {[](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDCANCEL, 0); }});
    Close();
    EXPECT_EQ(settingsStore.AdditionalIconsFolder.value.CStr(), stored);
    EXPECT_FALSE(settingsStore.AdditionalIconsFolder.changed);
}

} // namespace
