#include "shell/backup_commands.h"

#include <gtest/gtest.h>

#include "files/category_store.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/window_support.h"

namespace {

constexpr wchar_t kCategories[] = L"Software\\Teskel\\Orvane\\Categories";
constexpr int kNameBox = 111;

// From the main window's menu to what is on the disk and in the registry.
class BackupCommandsTest : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        folder_.emplace();
        folder_->SetCategories("1\t0\tWork\n");
        application.instance = GetModuleHandle(nullptr);
        window_ = CreateMainWindow(application.instance);
        ASSERT_NE(window_, nullptr);
        PumpMessages();
    }
    void TearDown() override {
        if (IsWindow(window_)) DestroyWindow(window_);
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        folder_.reset();
        StoreFixture::TearDown();
    }

    // Runs a command of the menu whose dialog is confirmed with the file's name.
    void Run(UINT command, const wchar_t* dialogClass, const std::wstring& file) const {
        const DialogSteps steps(dialogClass, {Write(kNameBox, file)});
        SendMessage(window_, WM_COMMAND, command, 0);
    }
    void Export(const std::wstring& name) const {
        Run(IDC_EXPORT_BACKUP, L"SaveFileWin", folder_->PathOf(name));
    }
    void Import(const std::wstring& name) const {
        Run(IDC_IMPORT_BACKUP, L"LoadFileWin", folder_->PathOf(name));
    }

    std::optional<InstallFolder> folder_;
    HWND window_ = nullptr;
};

TEST_F(BackupCommandsTest, OffersANameOfTodayAndSaysWhereTheBackupIs) {
    SetUserNumber(kRoot, L"GoofyMode", 1);
    SYSTEMTIME now{};
    GetLocalTime(&now);
    wchar_t expected[64];
    wsprintf(expected, L"OV_Backup_%04d_%02d_%02d", now.wYear, now.wMonth, now.wDay);
    {
        const DialogSteps steps(L"SaveFileWin", {[&](HWND dialog) {
                                    EXPECT_EQ(TextOf(GetDlgItem(dialog, kNameBox)), expected);
                                }});
        SendMessage(window_, WM_COMMAND, IDC_EXPORT_BACKUP, 0);
    }

    const MessageBoxAnswer done(IDOK);
    Export(L"Mine");
    EXPECT_EQ(done.count, 1);
    EXPECT_EQ(done.text, std::wstring(LanguageText(IDS_BACKUP_EXPORTED).CStr()) + L" \"" +
                             folder_->PathOf(L"Mine.ovsb") + L"\"");
    EXPECT_EQ(done.caption, LanguageText(IDS_BACKUP_EXPORTED_CAPTION).CStr());
    EXPECT_TRUE(folder_->Read(L"Mine.ovsb")
                    ->starts_with("\r\n[Software\\Teskel\\Orvane]\r\n\"GoofyMode\"=dword:1\r\n"));
    Export(L"No such folder\\Mine");
    EXPECT_EQ(done.count, 2) << "a file that cannot be made is not reported";
}

TEST_F(BackupCommandsTest, ImportsSavesTheCategoriesAndEnds) {
    folder_->Write(L"In.ovsb", "\n[Software\\Teskel\\Orvane]\n\"OnClick\"=dword:2\n"
                               "\n[Software\\Teskel\\Orvane\\Tasks]\n\"TasksSelFilter\"=dword:2\n"
                               "\n[::Categories::]\n\"Category\"=\"Work\"\n"
                               "\"FiltersFlag\"=dword:5\n\"Color\"=dword:255\n"
                               "\n[::Filters::]\n\"FilterName\"=\"Two\"\n\"Index\"=dword:2\n"
                               "\"VisibleState\"=dword:0\n\"IncludeUncategorized\"=dword:1\n");
    SetUserNumber(kRoot, L"GoofyMode", 1);
    SetUserNumber(kCategories, L"CatColor.Work", 7);
    const WideString caption = LanguageText(IDS_BACKUP_IMPORTED_CAPTION); // Goes with the window.
    const MessageBoxAnswer done(IDOK);
    Import(L"In");
    EXPECT_EQ(done.caption, caption.CStr());
    EXPECT_FALSE(IsWindow(window_));
    EXPECT_FALSE(PumpMessages()) << "the program ends";
    EXPECT_EQ(settingsStore.OnClick.value, 2U);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"GoofyMode"));
    EXPECT_EQ(GetUserNumber(kCategories, L"CatColor.Work"), 255U);
    EXPECT_EQ(GetUserNumber(kCategories, L"CatFilter.Work"), 5U);
    EXPECT_EQ(categoryStore.tasksSelection.filter, categoryStore.FindFilter(2));
    CategoryStore again;
    again.LoadCategoryStore();
    EXPECT_STREQ(again.FindFilter(2)->title.CStr(), L"Two");
    EXPECT_FALSE(again.FindFilter(2)->visible);
}

TEST_F(BackupCommandsTest, SaysThatAFileIsNoBackupAndGoesOn) {
    folder_->Write(L"Empty.ovsb", "");
    folder_->Write(L"Other.ovsb", "REGEDIT4\r\n\r\n[Software\\Teskel\\Orvane]\r\n");
    SetUserNumber(kRoot, L"GoofyMode", 1);
    const MessageBoxAnswer failed(IDOK);
    int count = 0;
    for (const wchar_t* name : {L"Empty", L"Other", L"Missing"}) {
        Import(name);
        EXPECT_EQ(failed.count, ++count) << name;
        EXPECT_EQ(failed.text, LanguageText(IDS_BACKUP_NOT_IMPORTED).CStr());
        EXPECT_EQ(failed.caption, LanguageText(IDS_BACKUP_NOT_IMPORTED_CAPTION).CStr());
    }
    EXPECT_TRUE(IsWindow(window_));
    EXPECT_EQ(GetUserNumber(kRoot, L"GoofyMode"), 1U);
    EXPECT_EQ(settingsStore.GoofyMode.value, 0U) << "nothing is loaded anew";
}

TEST_F(BackupCommandsTest, OkSavesTheCategoriesBehindTheSettings) {
    categoryStore.FindCategory(L"Work")->colour = 1;
    categoryStore.FindFilter(1)->title = L"One";
    SendMessage(window_, WM_COMMAND, IDOK, 0);
    EXPECT_FALSE(IsWindow(window_));
    EXPECT_EQ(GetUserNumber(kCategories, L"CatColor.Work"), 1U);
    CategoryStore again;
    again.LoadCategoryStore();
    EXPECT_STREQ(again.FindFilter(1)->title.CStr(), L"One");
}

} // namespace
