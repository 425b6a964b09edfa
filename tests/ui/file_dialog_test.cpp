#include "ui/file_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/support/dialog_steps.h"
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
        application.instance = GetModuleHandle(nullptr);
        for (const wchar_t* folder : kFolders)
            CreateDirectory(folder, nullptr);
        for (const wchar_t* file : kFiles)
            CloseHandle(CreateFile(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        SetVgaMode(false); // As at start, by the screen's density.
        owner_ =
            CreateWindowEx(0, L"Static", L"Owner", WS_POPUP | WS_VISIBLE, 0, Scale(26), Scale(240),
                           Scale(268), nullptr, nullptr, application.instance, nullptr);
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
    static void Press(WPARAM key) { PostMessage(GetFocus(), WM_KEYDOWN, key, 0); }
    static void PressOk(HWND dialog) { PostMessage(dialog, WM_COMMAND, IDOK, 0); }
    static std::wstring Name(HWND dialog) { return TextOf(GetDlgItem(dialog, kName)); }

    HWND owner_ = nullptr;
    bool confirmed_ = false;
};

TEST_F(FileDialogTest, ListsFoldersAndThenTheFilesOfTheExtension) {
    std::wstring rows;
    std::wstring inFolder;
    Run(Kind::Open, L"", {[&](HWND dialog) {
            rows = RowsOf(GetDlgItem(dialog, kList));
            Activate(dialog, L"beta");
            inFolder =
                TextOf(GetDlgItem(dialog, kPathText)) + L":" + RowsOf(GetDlgItem(dialog, kList));
        }});
    EXPECT_EQ(rows, L"Alpha|beta|one.ovsb|TWO.OVSB");
    EXPECT_EQ(inFolder, L"\\FileTest\\beta:");
}

TEST_F(FileDialogTest, RefusesMissingNamesAndIllegalCharacters) {
    struct Case {
        std::wstring name;
        std::wstring refusal;
    };
    std::vector<Case> cases;
    for (const wchar_t* name : {L"", L"  ", L"beta\\"})
        cases.push_back({name, L"File name value is missing"});
    for (const wchar_t character : std::wstring(L"/:*?\"<>|"))
        cases.push_back(
            {std::wstring(L"a") + character + L"b", L"File name include illegal characters"});
    MessageBoxAnswer answer(IDOK);
    std::vector<DialogSteps::Step> steps;
    for (const Case& refused : cases) {
        steps.emplace_back([&](HWND dialog) {
            answer.text.clear();
            SetFocus(GetDlgItem(dialog, kList));
            SetDlgItemText(dialog, kName, refused.name.c_str());
            PressOk(dialog);
        });
        steps.emplace_back([&](HWND dialog) {
            EXPECT_EQ(answer.text, refused.refusal) << testing::PrintToString(refused.name);
            EXPECT_EQ(answer.caption, L"File Name Error");
            EXPECT_EQ(GetFocus(), GetDlgItem(dialog, kName));
        });
    }
    EXPECT_EQ(Run(Kind::Save, L"", steps), L"untouched");
    EXPECT_EQ(answer.count, static_cast<int>(cases.size()));
}

TEST_F(FileDialogTest, MakesThePathOfFolderNameAndExtension) {
    constexpr struct {
        const wchar_t* name;
        const wchar_t* path;
    } kCases[] = {
        {L"new", L"\\FileTest\\new.ovsb"},
        {L" New.OvSb ", L"\\FileTest\\New.OvSb"},
        {L"new.ovsbx", L"\\FileTest\\new.ovsbx.ovsb"},
        {L"newovsb", L"\\FileTest\\newovsb.ovsb"},
        {L"beta\\new", L"\\FileTest\\beta\\new.ovsb"},
        {L"\\Elsewhere\\new", L"\\Elsewhere\\new.ovsb"},
    };
    for (const auto& given : kCases) {
        for (const Kind kind : {Kind::Save, Kind::Open}) {
            EXPECT_EQ(Run(kind, given.name, {PressOk}), given.path);
            EXPECT_TRUE(confirmed_);
        }
    }
}

TEST_F(FileDialogTest, StartsWhereAFileWasChosenLast) {
    Run(Kind::Save, L"new", {[](HWND dialog) {
            Activate(dialog, L"beta");
            PressOk(dialog);
        }});
    // Where a dialog that is cancelled went does not count.
    Run(Kind::Open, L"", {});
    std::wstring start;
    RunHere(Kind::Open, L"", {[&](HWND dialog) { start = TextOf(GetDlgItem(dialog, kPathText)); }});
    EXPECT_EQ(start, L"\\FileTest\\beta");
}

TEST_F(FileDialogTest, IsWorkedByKeys) {
    // The name box has the focus first where a name is to be given.
    EXPECT_EQ(Run(Kind::Save, L"new", {[](HWND) { Press(VK_RETURN); }}), L"\\FileTest\\new.ovsb");
    EXPECT_EQ(Run(Kind::Save, L"new", {[](HWND) { Press(VK_ESCAPE); }}), L"untouched");
    EXPECT_FALSE(confirmed_);
    std::wstring shown;
    EXPECT_EQ(Run(Kind::Open, L"",
                  {[](HWND) { Press(VK_END); }, [&](HWND dialog) { shown = Name(dialog); },
                   [](HWND) { Press(VK_UP); }, [](HWND) { Press(VK_RETURN); }}),
              L"\\FileTest\\one.ovsb");
    EXPECT_EQ(shown, L"TWO.OVSB");
    // Enter on a folder goes into it.
    EXPECT_EQ(Run(Kind::Open, L"new", {[](HWND) { Press(VK_RETURN); }, PressOk}),
              L"\\FileTest\\Alpha\\new.ovsb");
}

TEST_F(FileDialogTest, AsksBeforeItReplacesAFile) {
    std::wstring passed;
    std::wstring tapped;
    bool stays = false;
    MessageBoxAnswer no(IDNO);
    EXPECT_EQ(Run(Kind::Save, L"typed",
                  {[&](HWND dialog) {
                       SelectRow(GetDlgItem(dialog, kList), L"one.ovsb");
                       passed = Name(dialog);
                       Activate(dialog, L"one.ovsb");
                       tapped = Name(dialog);
                       PressOk(dialog);
                   },
                   [&](HWND dialog) { stays = IsWindowVisible(dialog); }}),
              L"untouched");
    EXPECT_EQ(passed, L"typed");
    EXPECT_EQ(tapped, L"one.ovsb");
    EXPECT_EQ(no.count, 1);
    EXPECT_TRUE(stays);
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
                       PressOk}),
              L"\\FileTest\\beta");
    EXPECT_EQ(shown, L"\\FileTest:Alpha|beta \\FileTest\\beta: ") << "folders only, in order";
    EXPECT_TRUE(confirmed_);

    EXPECT_EQ(RunHere(Kind::Folder, L"\\FileTest",
                      {[](HWND dialog) {
                           Tap(dialog, kUpButton);
                           EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, kUpButton)));
                       },
                       PressOk}),
              L"\\");
    EXPECT_EQ(RunHere(Kind::Folder, L"\\Missing", {[](HWND) { Press(VK_ESCAPE); }}), L"\\Missing");
    EXPECT_FALSE(confirmed_);
}

TEST_F(FileDialogTest, ReplacesWhenToldToAndOpensWithoutAQuestion) {
    MessageBoxAnswer yes(IDYES);
    EXPECT_EQ(Run(Kind::Open, L"one", {PressOk}), L"\\FileTest\\one.ovsb");
    EXPECT_EQ(yes.count, 0);
    EXPECT_EQ(Run(Kind::Save, L"one", {PressOk}), L"\\FileTest\\one.ovsb");
    EXPECT_EQ(yes.count, 1);
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
