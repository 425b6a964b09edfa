#include "pages/notes_page.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/include/stand_in.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"

namespace {
constexpr wchar_t kNotes[] = L"Software\\Teskel\\Orvane\\Notes";
constexpr wchar_t kFolders[] = L"Software\\Teskel\\Orvane\\Notes\\Folders";
constexpr int kSearchBar = 1201;
constexpr int kList = 1215;
constexpr int kRemove = 1216;
constexpr int kAdd = 1217;

class NotesPageTest : public PageFixture {
  protected:
    NotesPageTest() : PageFixture(3) {}

    void SetUp() override {
        PageFixture::SetUp();
        folder_ = std::make_unique<InstallFolder>();
        for (const wchar_t* name : {L"A\\x", L"B\\x", L"C\\x"})
            folder_->Write(name, "");
    }

    void TearDown() override {
        folder_.reset();
        StandInSetOsVersion(0, 0);
        PageFixture::TearDown();
    }

    std::wstring A() const { return folder_->PathOf(L"A"); }
    std::wstring B() const { return folder_->PathOf(L"B"); }
    std::wstring C() const { return folder_->PathOf(L"C"); }

    // Steps into a folder from the one above it, in the dialog, and takes it.
    void AddFolder(const std::wstring& name) const {
        // The dialog begins at the folder that is selected.
        const DialogSteps steps(L"SelectFolderWin", {[&](HWND dialog) {
                                    constexpr int kUp = 101;
                                    constexpr int kDialogList = 102;
                                    HWND list = GetDlgItem(dialog, kDialogList);
                                    Tap(dialog, kUp);
                                    SelectRow(list, name);
                                    SendMessage(list, WM_KEYDOWN, VK_RETURN, 0);
                                    SendMessage(dialog, WM_COMMAND, IDOK, 0);
                                }});
        Tap(page_->hwnd, kAdd);
    }

    HWND List() const { return GetDlgItem(page_->hwnd, kList); }

    std::unique_ptr<InstallFolder> folder_;
};

TEST_F(NotesPageTest, TheSearchBarMayBeACustomAlphabet) {
    folder_->Write(L"CustomAlphabets\\Greek.txt", "Letters of Greece\nA\n");
    folder_->Write(L"CustomAlphabets\\Bad.txt", "Bad\n");
    struct Case {
        uint32_t active;
        const wchar_t* custom;
        int shown;
        int chosen; // −1: nothing.
        uint32_t savedActive;
        const wchar_t* savedCustom;
    };
    for (const Case& bar : {Case{2, L"gREEK", 2, -1, 2, L"gREEK"},
                            {2, L"gREEK", 2, 0, 0, L"gREEK"},
                            {1, L"Gone", 1, 2, 2, L"Greek"},
                            {2, L"Gone", 3, -1, 2, L"Gone"},
                            {2, L"", -1, -1, 2, L""},
                            {77, L"Gone", -1, -1, 77, L"Gone"},
                            {77, L"Gone", -1, 1, 1, L"Gone"}}) {
        SetNumber(HKEY_CURRENT_USER, kNotes, L"NotesActiveSearchBar", bar.active);
        SetText(HKEY_CURRENT_USER, kNotes, L"NotesCustomSearchBarSelected", bar.custom);
        HWND window = Open();
        EXPECT_EQ(SendDlgItemMessage(window, kSearchBar, CB_GETCURSEL, 0, 0), bar.shown);
        EXPECT_NE(EntriesOf(GetDlgItem(window, kSearchBar)).find(L"|Letters of Greece"),
                  std::wstring::npos);
        if (bar.chosen >= 0) Choose(window, kSearchBar, bar.chosen);
        Close();
        EXPECT_EQ(settingsStore.NotesActiveSearchBar.value, bar.savedActive);
        EXPECT_EQ(settingsStore.NotesCustomSearchBarSelected.value.CStr(),
                  std::wstring(bar.savedCustom));
    }
}

TEST_F(NotesPageTest, FileTypesArePairsOfBits) {
    struct Case {
        uint32_t stored;
        uint32_t boxes; // Bit n: box 1208 + n.
        uint32_t saved;
    };
    for (const Case& types : {Case{255, 63, 255},
                              {64 + 128, 0, 0},
                              {8, 8, 72},
                              {16, 16, 144},
                              {1, 1, 1},
                              {2, 2, 2},
                              {4, 4, 4},
                              {32, 32, 32},
                              {0xFFFFFF00, 0, 0}}) {
        SetNumber(HKEY_CURRENT_USER, kNotes, L"NotesScannedFileTypes", types.stored);
        HWND window = Open();
        uint32_t boxes = 0;
        for (int box = 0; box < 6; ++box)
            boxes |= IsDlgButtonChecked(window, 1208 + box) << box;
        EXPECT_EQ(boxes, types.boxes) << types.stored;
        Close();
        EXPECT_EQ(settingsStore.NotesScannedFileTypes.value, types.saved) << types.stored;
    }
}

TEST_F(NotesPageTest, TheSixthFileTypeNeedsItsPlatform) {
    for (const bool isOffered : {false, true}) {
        StandInSetOsVersion(isOffered ? 5 : 4, isOffered ? 1 : 20);
        SetNumber(HKEY_CURRENT_USER, kNotes, L"NotesScannedFileTypes", 32 + 1);
        HWND window = Open();
        EXPECT_EQ(IsEnabled(1213), isOffered);
        EXPECT_EQ(IsDlgButtonChecked(window, 1213), isOffered ? 1u : 0u);
        Tap(window, 1208);
        if (isOffered) Tap(window, 1213);
        Close();
        EXPECT_EQ(settingsStore.NotesScannedFileTypes.value, isOffered ? 0u : 32u);
    }
}

// The platform enumerates a key's values in an order of its own.
TEST_F(NotesPageTest, ListsTheStoredFoldersThatExist) {
    SetText(HKEY_CURRENT_USER, kFolders, L"10", B());
    SetText(HKEY_CURRENT_USER, kFolders, L"2", A());
    SetText(HKEY_CURRENT_USER, kFolders, L"3", folder_->PathOf(L"Gone"));
    SetText(HKEY_CURRENT_USER, kFolders, L"4", L"");
    SetNumber(HKEY_CURRENT_USER, kFolders, L"5", 65);
    SetText(HKEY_CURRENT_USER, kFolders, L"6", A());
    SetText(HKEY_CURRENT_USER, kFolders, std::wstring(300, L'n'), C());
    SetText(HKEY_CURRENT_USER, kFolders, L"own", C());
    SetText(HKEY_CURRENT_USER, std::wstring(kFolders) + L"\\Below", L"0", C());
    Open();
    EXPECT_EQ(RowsOf(List()), B() + L"|" + A() + L"|" + C());
    Close();
    // At once, and whether or not the program saves anything else.
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"0"), B());
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"1"), A());
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"2"), C());
    for (const wchar_t* name : {L"3", L"10", L"own"})
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kFolders, name));
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, std::wstring(kFolders) + L"\\Below"));
}

TEST_F(NotesPageTest, LeavesFoldersAloneThatItCouldNotRead) {
    SetText(HKEY_CURRENT_USER, kFolders, L"0", A());
    SetText(HKEY_CURRENT_USER, kFolders, L"1", B());
    Open();
    Close();
    for (const StandInCalls call : {kRegOpenKeyCalls, kRegEnumValueCalls, kRegQueryValueCalls}) {
        settingsStore.Load(application.languageLibrary);
        StandInResetCalls();
        StandInFailCall(call, 1, ERROR_ACCESS_DENIED);
        page_.reset(CreatePage(owner_, 3));
        EXPECT_EQ(RowsOf(List()), L"") << call;
        EXPECT_FALSE(IsEnabled(kAdd)) << "what is added would be lost";
        Close();
        StandInResetCalls();
        EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"0"), A()) << call;
        EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"1"), B()) << call;
    }
}

TEST_F(NotesPageTest, AddsAFolderOnce) {
    SetText(HKEY_CURRENT_USER, kFolders, L"0", A());
    Open();
    const MessageBoxAnswer answer(IDOK);
    SelectRow(List(), A());
    AddFolder(L"B");
    EXPECT_EQ(RowsOf(List()), A() + L"|" + B());
    AddFolder(L"B");
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(answer.text, LanguageText(IDS_NOTES_FOLDER_REFUSED).CStr());
    EXPECT_EQ(answer.caption, LanguageText(IDS_NOTES_FOLDER_REFUSED_CAPTION).CStr());
    EXPECT_EQ(RowsOf(List()), A() + L"|" + B());
    Close();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"0"), A());
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"1"), B());
}

// Of all folders the root alone is chosen with a backslash at its end; what is left is no folder.
TEST_F(NotesPageTest, TheRootCannotBeAdded) {
    Open();
    const MessageBoxAnswer answer(IDOK);
    TapAndWork(kAdd, L"SelectFolderWin",
               {[](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDOK, 0); }});
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(RowsOf(List()), L"");
    Close();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kFolders, L"0"));
}

TEST_F(NotesPageTest, RemovesTheSelectedFolder) {
    SetText(HKEY_CURRENT_USER, kFolders, L"0", A());
    SetText(HKEY_CURRENT_USER, kFolders, L"1", B());
    Open();
    const MessageBoxAnswer answer(IDOK);
    SelectRow(List(), A());
    Tap(page_->hwnd, kRemove);
    EXPECT_EQ(RowsOf(List()), B());
    EXPECT_EQ(answer.count, 0);
    Tap(page_->hwnd, kRemove);
    EXPECT_EQ(answer.count, 1) << "the selection is gone as well";
    EXPECT_EQ(answer.text, LanguageText(IDS_NOTHING_SELECTED_TEXT).CStr());
    SelectRow(List(), B());
    AddFolder(L"A");
    EXPECT_EQ(RowsOf(List()), B() + L"|" + A()) << "a removed folder can be added again";
    Close();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"0"), B());
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kFolders, L"1"), A());
}

} // namespace
