#include "pages/category_page.h"

#include "files/category_store.h"
#include "files/icon_catalogue.h"
#include "tests/support/image_files.h"
#include "tests/support/page_fixture.h"

namespace {
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
constexpr int kFolderBrowse = 1216;

constexpr wchar_t kPicker[] = L"ImagePickerWin";
constexpr int kPickerList = 100;
constexpr int kPickerNone = 102;

class CategoryPageTest : public PageFixture {
  protected:
    CategoryPageTest() : PageFixture(11, L"\\Categories") {}

    // The categories by name are "..\Icons\star", "Home", "Work".
    void SetUp() override {
        PageFixture::SetUp();
        folder_->SetCategories("1\t0\tWork\n2\t0\tHome\n3\t0\t..\\Icons\\star\n");
        folder_->Write(L"Icons\\star.bmp", BmpFile(8, 8, 1));
        folder_->Write(L"CategoryIcons\\Work.bmp", BmpFile(4, 4, 4));
        iconCatalogue = IconCatalogue(); // As at a start.
        settingsStore.Load(application.languageLibrary);
        categoryStore.LoadCategoryStore();
    }

    void TickMember(int row) const { ListView_SetCheckState(Control(kMembers), row, TRUE); }
    std::string Ticks() const {
        std::string ticks;
        for (int row = 0; row < ListView_GetItemCount(Control(kMembers)); ++row)
            ticks += ListView_GetCheckState(Control(kMembers), row) ? 'x' : '-';
        return ticks;
    }
    void SelectCategory(const wchar_t* name) const { SelectRow(Control(kCategories), name); }
    static bool HasIcon(const wchar_t* name) {
        return static_cast<bool>(categoryStore.FindCategory(name)->icon);
    }
};

TEST_F(CategoryPageTest, KeepsTheTicksOfEachFilter) {
    Open();
    EXPECT_EQ(RowsOf(Control(kMembers)), L"..\\Icons\\star|Home|Work");
    EXPECT_EQ(Ticks(), "---");
    EXPECT_EQ(TextOf(Control(kVisible)), Text(925));
    EXPECT_EQ(TextOf(Control(kUncategorized)), Text(924));
    TickMember(1);
    Tap(window_, kVisible);
    Choose(window_, kFilter, 1);
    EXPECT_EQ(Ticks(), "---");
    EXPECT_TRUE(IsTicked(kVisible));
    Tap(window_, kTickAll);
    EXPECT_EQ(Ticks(), "xxx");
    Tap(window_, kTickNone);
    EXPECT_EQ(Ticks(), "---");
    Tap(window_, kTickAll);
    EXPECT_EQ(categoryStore.FindCategory(L"Work")->filters, 0U) << "not before the filter is left";
    Choose(window_, kSensitivity, 2);
    Tap(window_, kUncategorized);
    Choose(window_, kFilter, 0);
    EXPECT_EQ(Ticks(), "-x-");
    EXPECT_FALSE(IsTicked(kVisible));
    EXPECT_EQ(categoryStore.FindFilter(2)->sensitivity, 2);
    EXPECT_TRUE(categoryStore.FindFilter(2)->includeUncategorized);
    EXPECT_EQ(categoryStore.FindCategory(L"Home")->filters, 3U);
    Choose(window_, kFilter, 31);
    TickMember(2);
    Close();
    EXPECT_EQ(categoryStore.FindCategory(L"Work")->filters, 0x80000002U) << "by closing the page";
}

// A list that is given up may leave another entry than the one whose settings are shown.
TEST_F(CategoryPageTest, SavesTheFilterThatItShows) {
    Open();
    TickMember(0);
    SendMessage(Control(kFilter), CB_SETCURSEL, 4, 0);
    SendMessage(window_, WM_COMMAND, MAKEWPARAM(kFilter, CBN_CLOSEUP),
                reinterpret_cast<LPARAM>(Control(kFilter)));
    EXPECT_EQ(Ticks(), "---");
    SendMessage(Control(kFilter), CB_SETCURSEL, 5, 0);
    TickMember(1);
    Close();
    EXPECT_EQ(categoryStore.All()[0]->filters, 1U);
    EXPECT_EQ(categoryStore.All()[1]->filters, 16U);
}

TEST_F(CategoryPageTest, KeepsASensitivityThatItDoesNotOffer) {
    for (const int odd : {3, -1, INT_MIN}) {
        categoryStore.FindFilter(1)->sensitivity = odd;
        Open();
        EXPECT_EQ(Chosen(kSensitivity), CB_ERR);
        Close();
        EXPECT_EQ(categoryStore.FindFilter(1)->sensitivity, odd);
    }
}

TEST_F(CategoryPageTest, RenamesAFilter) {
    constexpr int kName = 1590;
    Open();
    Choose(window_, kFilter, 4);
    const WideString& title = categoryStore.FindFilter(5)->title;
    const auto rename = [&](const std::wstring& name, WPARAM button) {
        TapAndWork(kRename, kTemplateDialog, {[&](HWND dialog) {
                       EXPECT_EQ(TextOf(GetDlgItem(dialog, 419)), L"Filter name:");
                       EXPECT_EQ(TextOf(GetDlgItem(dialog, kName)), title.CStr());
                       Write(kName, name, button)(dialog);
                   }});
    };
    rename(L"Other", IDCANCEL);
    EXPECT_STREQ(title.CStr(), L"Filter 5");
    rename(std::wstring(300, L'n'), IDOK);
    EXPECT_EQ(title.Length(), 255U);
    rename(L"", IDOK);
    EXPECT_STREQ(title.CStr(), L"");
    EXPECT_EQ(EntriesOf(Control(kFilter)).find(L"Filter 1|Filter 2|Filter 3|Filter 4||Filter 6"),
              0U);
    EXPECT_EQ(Chosen(kFilter), 4);
}

TEST_F(CategoryPageTest, DoesNothingWithoutASelectedCategory) {
    Open();
    for (const int button : {kIcon, kColour}) {
        EXPECT_FALSE(IsEnabled(button));
        SendMessage(window_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                    reinterpret_cast<LPARAM>(Control(button))); // Would hang if it opened anything.
    }
    SelectCategory(L"Home");
    EXPECT_TRUE(IsEnabled(kIcon) && IsEnabled(kColour));
    ListView_SetItemState(Control(kCategories), -1, 0, LVIS_SELECTED);
    EXPECT_FALSE(IsEnabled(kIcon) || IsEnabled(kColour));
}

TEST_F(CategoryPageTest, TakesAndDropsAnIcon) {
    Open();
    SelectCategory(L"Home");
    const auto select = [](HWND picker) { SelectRow(GetDlgItem(picker, kPickerList), L"star"); };
    TapAndWork(kIcon, kPicker, {select, Answer(IDOK)});
    EXPECT_TRUE(HasIcon(L"Home"));
    EXPECT_EQ(folder_->Read(L"CategoryIcons\\Home.bmp"), folder_->Read(L"Icons\\star.bmp"));
    EXPECT_EQ(GetFocus(), Control(kCategories));

    // What is there is offered first and kept when it is confirmed.
    std::wstring rows;
    const auto read = [&](HWND picker) { rows = RowsOf(GetDlgItem(picker, kPickerList)); };
    TapAndWork(kIcon, kPicker, {read, Answer(IDOK)});
    EXPECT_EQ(rows, L"Present icon|star");
    EXPECT_TRUE(folder_->Has(L"CategoryIcons\\Home.bmp"));

    // A file that goes while the picker shows it cannot be copied.
    TapAndWork(kIcon, kPicker,
               {select, [&](HWND) { folder_->Remove(L"Icons\\star.bmp"); }, Answer(IDOK)});
    EXPECT_FALSE(HasIcon(L"Home") || folder_->Has(L"CategoryIcons\\Home.bmp"));

    SelectCategory(L"Work");
    TapAndWork(kIcon, kPicker, {});
    EXPECT_TRUE(HasIcon(L"Work")) << "cancelled";
    TapAndWork(kIcon, kPicker, {Answer(kPickerNone)});
    EXPECT_FALSE(HasIcon(L"Work") || folder_->Has(L"CategoryIcons\\Work.bmp"));
}

TEST_F(CategoryPageTest, RefusesAnIconForANameThatIsNoFileName) {
    Open();
    SelectCategory(L"..\\Icons\\star");
    const MessageBoxAnswer answer(IDOK);
    TapAndWork(kIcon, kPicker, {});
    EXPECT_EQ(answer.caption, L"No icon possible");
    EXPECT_TRUE(folder_->Has(L"Icons\\star.bmp"));
}

TEST_F(CategoryPageTest, ChoosesAColour) {
    Open();
    SelectCategory(L"Home");
    for (const WPARAM button : {IDOK, IDCANCEL}) {
        TapAndWork(kColour, kColourPicker,
                   {Write(kHtml, button == IDOK ? L"102030" : L"FFFFFF", button)});
        EXPECT_EQ(categoryStore.FindCategory(L"Home")->colour, RGB(0x10, 0x20, 0x30)) << button;
        EXPECT_EQ(GetFocus(), Control(kCategories));
    }
}

TEST_F(CategoryPageTest, LeavesAFolderAloneThatIsLongerThanItTakes) {
    const std::wstring stored = L"\\" + std::wstring(399, L'f');
    Store(L"AdditionalIconsFolder", stored);
    const StringSetting& setting = settingsStore.AdditionalIconsFolder;
    Open();
    TapAndWork(kFolderBrowse, kFolderDialog, {Answer(IDCANCEL)});
    Close();
    EXPECT_EQ(setting.value.CStr(), stored);
    EXPECT_FALSE(setting.changed);
    Reopen();
    TapAndWork(kFolderBrowse, kFolderDialog, {Answer(IDOK)});
    Close();
    EXPECT_STREQ(setting.value.CStr(), L"\\");
}
} // namespace
