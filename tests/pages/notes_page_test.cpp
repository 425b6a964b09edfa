#include "pages/notes_page.h"

#include "tests/support/page_fixture.h"

namespace {
constexpr wchar_t kFolders[] = L"Software\\Teskel\\Orvane\\Notes\\Folders";
constexpr int kSearchBar = 1201;
constexpr int kFileTypes = 1208;
constexpr int kPresentations = 1213;
constexpr int kList = 1215;
constexpr int kRemove = 1216;
constexpr int kAdd = 1217;

class NotesPageTest : public PageFixture {
  protected:
    NotesPageTest() : PageFixture(3, L"\\Notes") {}

    void SetUp() override {
        PageFixture::SetUp();
        for (const wchar_t* name : {L"A\\x", L"B\\x", L"C\\x"})
            folder_->Write(name, "");
    }

    static void StoreFolder(const std::wstring& name, const std::wstring& path) {
        SetText(HKEY_CURRENT_USER, kFolders, name, path);
    }
    // The stored folders, in the order of their numbers.
    static std::wstring Stored() {
        std::wstring stored;
        for (int i = 0; HasValue(HKEY_CURRENT_USER, kFolders, std::to_wstring(i)); ++i)
            stored += (i ? L"|" : L"") +
                      GetText(HKEY_CURRENT_USER, kFolders, std::to_wstring(i)).value_or(L"?");
        return stored;
    }

    // Steps into a folder from the one above it, in the dialog, and takes it.
    void AddFolder(const std::wstring& name) const {
        // The dialog begins at the folder that is selected.
        TapAndWork(kAdd, kFolderDialog, {[&](HWND dialog) {
                       constexpr int kUp = 101;
                       HWND list = GetDlgItem(dialog, 102);
                       Tap(dialog, kUp);
                       SelectRow(list, name);
                       SendMessage(list, WM_KEYDOWN, VK_RETURN, 0);
                       SendMessage(dialog, WM_COMMAND, IDOK, 0);
                   }});
    }

    std::wstring A() const { return folder_->PathOf(L"A"); }
    std::wstring B() const { return folder_->PathOf(L"B"); }
    std::wstring C() const { return folder_->PathOf(L"C"); }
    std::wstring Rows() const { return RowsOf(Control(kList)); }
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
                            {77, L"Gone", -1, -1, 77, L"Gone"}}) {
        Store(L"NotesActiveSearchBar", bar.active);
        Store(L"NotesCustomSearchBarSelected", bar.custom);
        Open();
        EXPECT_EQ(Chosen(kSearchBar), bar.shown);
        EXPECT_NE(EntriesOf(Control(kSearchBar)).find(L"|Letters of Greece"), std::wstring::npos);
        if (bar.chosen >= 0) Choose(window_, kSearchBar, bar.chosen);
        Close();
        EXPECT_EQ(settingsStore.NotesActiveSearchBar.value, bar.savedActive);
        EXPECT_STREQ(settingsStore.NotesCustomSearchBarSelected.value.CStr(), bar.savedCustom);
    }
}

TEST_F(NotesPageTest, FileTypesArePairsOfBits) {
    struct Case {
        uint32_t stored;
        uint32_t boxes; // Bit n: box kFileTypes + n.
        uint32_t saved;
    };
    for (const Case& types : {Case{64 + 128, 0, 0},
                              {8, 8, 72},
                              {16, 16, 144},
                              {1 + 4, 1 + 4, 1 + 4},
                              {2 + 32, 2 + 32, 2 + 32},
                              {0xFFFFFF00, 0, 0}}) {
        Store(L"NotesScannedFileTypes", types.stored);
        Open();
        uint32_t boxes = 0;
        for (int box = 0; box < 6; ++box)
            boxes |= static_cast<uint32_t>(IsTicked(kFileTypes + box)) << box;
        EXPECT_EQ(boxes, types.boxes) << types.stored;
        Close();
        EXPECT_EQ(settingsStore.NotesScannedFileTypes.value, types.saved) << types.stored;
    }
    StandInSetOsVersion(4, 20); // Does not offer the last, which counts as scanned.
    Store(L"NotesScannedFileTypes", 32 + 1);
    Open();
    EXPECT_FALSE(IsEnabled(kPresentations) || IsTicked(kPresentations));
    Tap(window_, kFileTypes);
    Close();
    EXPECT_EQ(settingsStore.NotesScannedFileTypes.value, 32u);
}

// The platform enumerates a key's values in an order of its own.
TEST_F(NotesPageTest, ListsTheStoredFoldersThatExist) {
    StoreFolder(L"10", B());
    StoreFolder(L"2", A());
    StoreFolder(L"3", folder_->PathOf(L"Gone"));
    StoreFolder(L"4", L"");
    SetNumber(HKEY_CURRENT_USER, kFolders, L"5", 65);
    StoreFolder(L"6", A());
    StoreFolder(std::wstring(300, L'n'), C());
    StoreFolder(L"own", C());
    Open();
    EXPECT_EQ(Rows(), B() + L"|" + A() + L"|" + C());
    Close();
    // At once, and whether or not the program saves anything else.
    EXPECT_EQ(Stored(), B() + L"|" + A() + L"|" + C());
    for (const wchar_t* name : {L"10", L"own"})
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kFolders, name));
}

TEST_F(NotesPageTest, LeavesFoldersAloneThatItCouldNotRead) {
    StoreFolder(L"0", A());
    StoreFolder(L"1", B());
    for (const StandInCalls call : {kRegOpenKeyCalls, kRegEnumValueCalls, kRegQueryValueCalls}) {
        settingsStore.Load(application.languageLibrary);
        StandInResetCalls();
        StandInFailCall(call, 1, ERROR_ACCESS_DENIED);
        Reopen();
        EXPECT_EQ(Rows(), L"") << call;
        EXPECT_FALSE(IsEnabled(kAdd)) << "what is added would be lost";
        Close();
        StandInResetCalls();
        EXPECT_EQ(Stored(), A() + L"|" + B()) << call;
    }
}

TEST_F(NotesPageTest, AddsAFolderOnceAndRemovesTheSelectedOne) {
    StoreFolder(L"0", A());
    Open();
    const MessageBoxAnswer answer(IDOK);
    SelectRow(Control(kList), A());
    AddFolder(L"B");
    EXPECT_EQ(Rows(), A() + L"|" + B());
    EXPECT_EQ(answer.count, 0);
    AddFolder(L"B");
    EXPECT_EQ(answer.count, 1);
    ExpectSaid(answer, IDS_NOTES_FOLDER_REFUSED, IDS_NOTES_FOLDER_REFUSED_CAPTION);
    SelectRow(Control(kList), A());
    Tap(window_, kRemove);
    EXPECT_EQ(Rows(), B());
    EXPECT_EQ(answer.count, 1);
    Tap(window_, kRemove); // The selection is gone as well.
    ExpectSaid(answer, IDS_NOTHING_SELECTED_TEXT, IDS_NOTHING_SELECTED_CAPTION);
    SelectRow(Control(kList), B());
    AddFolder(L"A");
    Close();
    EXPECT_EQ(Stored(), B() + L"|" + A()) << "a removed folder can be added again";
    EXPECT_EQ(answer.count, 2);
}

// Of all folders the root alone is chosen with a backslash at its end; what is left is no folder.
TEST_F(NotesPageTest, TheRootCannotBeAdded) {
    Open();
    const MessageBoxAnswer refusal(IDOK);
    TapAndWork(kAdd, kFolderDialog, {Answer(IDOK)});
    EXPECT_EQ(refusal.count, 1);
    Close();
    EXPECT_EQ(Stored(), L"");
}
} // namespace
