#include "ui/file_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/dialog_steps.h"
#include "tests/support/owner_window.h"
#include "tests/support/window_support.h"
#include "ui/folder_dialog.h"

namespace {
constexpr int kPathText = 100;
constexpr int kUpButton = 101;
constexpr int kList = 102;
constexpr int kName = 111;

constexpr const wchar_t* kFolders[] = {L"\\FileTest", L"\\FileTest\\beta", L"\\FileTest\\Alpha"};
constexpr const wchar_t* kFiles[] = {L"\\FileTest\\one.ovsb", L"\\FileTest\\TWO.OVSB",
                                     L"\\FileTest\\longer.ovsbx", L"\\FileTest\\other.txt"};

enum class Kind { Save, Open, Folder };

class FileDialogTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const wchar_t* folder : kFolders)
            CreateDirectory(folder, nullptr);
        for (const wchar_t* file : kFiles)
            CloseHandle(CreateFile(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        owner_ = CreateOwner();
    }
    void TearDown() override {
        DestroyWindow(owner_);
        for (const wchar_t* file : kFiles)
            DeleteFile(file);
        for (auto folder = std::rbegin(kFolders); folder != std::rend(kFolders); ++folder)
            RemoveDirectory(*folder);
    }

    // Runs a dialog through the given steps in \FileTest. Gives the path chosen, or L"untouched".
    std::wstring Run(Kind kind, const wchar_t* name, std::vector<DialogSteps::Step> steps) {
        steps.insert(steps.begin(), WalkToTestFolder);
        return RunHere(kind, name, steps);
    }
    std::wstring RunHere(Kind kind, const wchar_t* name, std::vector<DialogSteps::Step> steps) {
        constexpr const wchar_t* kClasses[] = {L"SaveFileWin", L"LoadFileWin", L"SelectFolderWin"};
        const DialogSteps work(kClasses[static_cast<int>(kind)], std::move(steps));
        const FileDialogText text{L"Title", L"Backup (ovsb)", L"ovsb", name};
        WideString path(kind == Kind::Folder ? name : L"untouched");
        confirmed_ = kind == Kind::Folder ? SelectFolder(owner_, L"Select Folder", path)
                     : kind == Kind::Save ? SelectFileToSave(owner_, text, path)
                                          : SelectFileToOpen(owner_, text, path);
        EXPECT_TRUE(IsWindowEnabled(owner_));
        EXPECT_EQ(TextOf(owner_), L"Owner");
        return path.CStr();
    }

    static void WalkToTestFolder(HWND dialog) {
        HWND focus = GetFocus();
        while (IsWindowEnabled(GetDlgItem(dialog, kUpButton)))
            Tap(dialog, kUpButton);
        Activate(dialog, L"FileTest");
        SetFocus(focus);
    }
    // What a tap on a row does.
    static void Activate(HWND dialog, const wchar_t* row) {
        SelectRow(GetDlgItem(dialog, kList), row);
        SendDlgItemMessage(dialog, kList, WM_KEYDOWN, VK_RETURN, 0);
    }
    // A key as the dialog's loop takes it.
    static DialogSteps::Step Press(WPARAM key) {
        return [key](HWND) { PostMessage(GetFocus(), WM_KEYDOWN, key, 0); };
    }
    static std::wstring Name(HWND dialog) { return TextOf(GetDlgItem(dialog, kName)); }

    HWND owner_ = nullptr;
    bool confirmed_ = false;
};

TEST_F(FileDialogTest, ListsFoldersAndThenTheFilesOfTheExtension) {
    Run(Kind::Open, L"", {[](HWND dialog) {
            EXPECT_EQ(RowsOf(GetDlgItem(dialog, kList)), L"Alpha|beta|one.ovsb|TWO.OVSB");
            Activate(dialog, L"beta");
            EXPECT_EQ(TextOf(GetDlgItem(dialog, kPathText)), L"\\FileTest\\beta");
            EXPECT_EQ(RowsOf(GetDlgItem(dialog, kList)), L"");
        }});
}

TEST_F(FileDialogTest, RefusesMissingNamesAndIllegalCharacters) {
    std::vector<std::wstring> names = {L"", L"  ", L"beta\\"};
    for (const wchar_t character : std::wstring(L"/:*?\"<>|"))
        names.push_back(std::wstring(L"a") + character + L"b");
    MessageBoxAnswer answer(IDOK);
    std::vector<DialogSteps::Step> steps;
    for (const std::wstring& name : names) {
        steps.emplace_back([&](HWND dialog) {
            answer.text.clear();
            SetFocus(GetDlgItem(dialog, kList));
            Write(kName, name)(dialog);
        });
        steps.emplace_back([&](HWND dialog) {
            EXPECT_EQ(answer.text, name[0] == L'a' ? L"File name include illegal characters"
                                                   : L"File name value is missing");
            EXPECT_EQ(answer.caption, L"File Name Error");
            EXPECT_EQ(GetFocus(), GetDlgItem(dialog, kName));
        });
    }
    EXPECT_EQ(Run(Kind::Save, L"", steps), L"untouched");
    EXPECT_EQ(answer.count, static_cast<int>(names.size()));
}

TEST_F(FileDialogTest, MakesThePathOfFolderNameAndExtension) {
    constexpr std::pair<const wchar_t*, const wchar_t*> kNames[] = {
        {L"new", L"\\FileTest\\new.ovsb"},
        {L" New.OvSb ", L"\\FileTest\\New.OvSb"},
        {L"new.ovsbx", L"\\FileTest\\new.ovsbx.ovsb"},
        {L"newovsb", L"\\FileTest\\newovsb.ovsb"},
        {L"beta\\new", L"\\FileTest\\beta\\new.ovsb"},
        {L"\\Elsewhere\\new", L"\\Elsewhere\\new.ovsb"},
    };
    for (const auto& [name, path] : kNames) {
        for (const Kind kind : {Kind::Save, Kind::Open}) {
            EXPECT_EQ(Run(kind, name, {Answer(IDOK)}), path);
            EXPECT_TRUE(confirmed_);
        }
    }
}

TEST_F(FileDialogTest, StartsWhereAFileWasChosenLast) {
    Run(Kind::Save, L"new", {[](HWND dialog) { Activate(dialog, L"beta"); }, Answer(IDOK)});
    // Where a dialog that is cancelled went does not count.
    Run(Kind::Open, L"", {});
    RunHere(Kind::Open, L"", {[](HWND dialog) {
                EXPECT_EQ(TextOf(GetDlgItem(dialog, kPathText)), L"\\FileTest\\beta");
            }});
}

TEST_F(FileDialogTest, IsWorkedByKeys) {
    // The name box has the focus first where a name is to be given.
    EXPECT_EQ(Run(Kind::Save, L"new", {Press(VK_RETURN)}), L"\\FileTest\\new.ovsb");
    EXPECT_EQ(Run(Kind::Save, L"new", {Press(VK_ESCAPE)}), L"untouched");
    EXPECT_FALSE(confirmed_);
    const auto look = [](HWND dialog) { EXPECT_EQ(Name(dialog), L"TWO.OVSB"); };
    EXPECT_EQ(Run(Kind::Open, L"", {Press(VK_END), look, Press(VK_UP), Press(VK_RETURN)}),
              L"\\FileTest\\one.ovsb");
    // Enter on a folder goes into it.
    EXPECT_EQ(Run(Kind::Open, L"new", {Press(VK_RETURN), Answer(IDOK)}),
              L"\\FileTest\\Alpha\\new.ovsb");
}

TEST_F(FileDialogTest, AsksBeforeItReplacesAFile) {
    {
        const MessageBoxAnswer no(IDNO);
        const auto tap = [](HWND dialog) {
            SelectRow(GetDlgItem(dialog, kList), L"one.ovsb");
            EXPECT_EQ(Name(dialog), L"typed") << "only passed";
            Activate(dialog, L"one.ovsb");
            EXPECT_EQ(Name(dialog), L"one.ovsb");
        };
        const auto look = [](HWND dialog) { EXPECT_TRUE(IsWindowVisible(dialog)); };
        EXPECT_EQ(Run(Kind::Save, L"typed", {tap, Answer(IDOK), look}), L"untouched");
        EXPECT_EQ(no.count, 1);
    }
    const MessageBoxAnswer yes(IDYES);
    EXPECT_EQ(Run(Kind::Open, L"one", {Answer(IDOK)}), L"\\FileTest\\one.ovsb");
    EXPECT_EQ(yes.count, 0);
    EXPECT_EQ(Run(Kind::Save, L"one", {Answer(IDOK)}), L"\\FileTest\\one.ovsb");
    EXPECT_EQ(yes.count, 1);
}

TEST_F(FileDialogTest, TheFolderDialogTakesTheFolderThatItShows) {
    std::wstring shown;
    const auto note = [&shown](HWND dialog) {
        shown +=
            TextOf(GetDlgItem(dialog, kPathText)) + L":" + RowsOf(GetDlgItem(dialog, kList)) + L" ";
    };
    EXPECT_EQ(RunHere(Kind::Folder, L"\\FileTest\\",
                      {[&](HWND dialog) {
                           note(dialog);
                           SendDlgItemMessage(dialog, kList, WM_KEYDOWN, VK_DOWN, 0);
                           SendDlgItemMessage(dialog, kList, WM_KEYDOWN, VK_RETURN, 0);
                           note(dialog);
                       },
                       Answer(IDOK)}),
              L"\\FileTest\\beta");
    EXPECT_EQ(shown, L"\\FileTest:Alpha|beta \\FileTest\\beta: ") << "folders only, in order";
    EXPECT_TRUE(confirmed_);

    EXPECT_EQ(RunHere(Kind::Folder, L"\\FileTest",
                      {[](HWND dialog) {
                           Tap(dialog, kUpButton);
                           EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, kUpButton)));
                       },
                       Answer(IDOK)}),
              L"\\");
    EXPECT_EQ(RunHere(Kind::Folder, L"\\Missing", {Press(VK_ESCAPE)}), L"\\Missing");
    EXPECT_FALSE(confirmed_);
}

TEST_F(FileDialogTest, RaisesTheInputPanelForTheNameOnly) {
    const auto heightOf = [](HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        return client.bottom;
    };
    LONG heights[3] = {};
    Run(Kind::Save, L"", {[&](HWND dialog) {
            heights[0] = heightOf(dialog);
            SetFocus(GetDlgItem(dialog, kUpButton));
            heights[1] = heightOf(dialog);
            SetFocus(GetDlgItem(dialog, kList));
            heights[2] = heightOf(dialog);
        }});
    EXPECT_EQ(heights[1], heights[0]) << "a button must not move under the stylus";
    EXPECT_GT(heights[2], heights[0]);
}
} // namespace
