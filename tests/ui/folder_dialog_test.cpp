#include "ui/folder_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/services/application.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/window_support.h"

namespace {
constexpr int kPathText = 100;
constexpr int kUpButton = 101;
constexpr int kFolderList = 102;

class FolderDialogTest : public testing::Test {
  protected:
    void SetUp() override {
        application.instance = GetModuleHandle(nullptr);
        for (const wchar_t* folder : {L"\\FolderTest", L"\\FolderTest\\beta",
                                      L"\\FolderTest\\Alpha 100%", L"\\FolderTest\\beta\\deep"}) {
            CreateDirectory(folder, nullptr);
        }
        CloseHandle(CreateFile(L"\\FolderTest\\file.txt", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                               0, nullptr));
        owner_ = CreateWindowEx(0, L"Static", L"Owner", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268,
                                nullptr, nullptr, application.instance, nullptr);
    }
    void TearDown() override {
        DestroyWindow(owner_);
        DeleteFile(L"\\FolderTest\\file.txt");
        for (const wchar_t* folder : {L"\\FolderTest\\beta\\deep", L"\\FolderTest\\Alpha 100%",
                                      L"\\FolderTest\\beta", L"\\FolderTest"}) {
            RemoveDirectory(folder);
        }
    }

    // Runs the dialog through the given steps; a dialog left open is cancelled.
    bool Run(std::vector<DialogSteps::Step> steps, const wchar_t* start, std::wstring& chosen) {
        const DialogSteps work(L"SelectFolderWin", std::move(steps));
        WideString path(start);
        const bool confirmed = SelectFolder(owner_, L"Select Folder", path);
        chosen = path.CStr();
        EXPECT_TRUE(IsWindowEnabled(owner_));
        EXPECT_EQ(TextOf(owner_), L"Owner");
        return confirmed;
    }

    HWND owner_ = nullptr;
};

void PressInList(HWND dialog, WPARAM key) {
    SendDlgItemMessage(dialog, kFolderList, WM_KEYDOWN, key, 0);
}

TEST_F(FolderDialogTest, WalksDownAndUpAndTakesTheFolderShown) {
    std::wstring chosen;
    std::wstring rows;
    std::wstring shown;
    std::wstring deeper;
    EXPECT_TRUE(Run({[&](HWND dialog) {
                         rows = RowsOf(GetDlgItem(dialog, kFolderList));
                         shown = TextOf(GetDlgItem(dialog, kPathText));
                         PressInList(dialog, VK_DOWN);
                         PressInList(dialog, VK_RETURN);
                         deeper = TextOf(GetDlgItem(dialog, kPathText)) + L":" +
                                  RowsOf(GetDlgItem(dialog, kFolderList));
                         PressInList(dialog, VK_RETURN);
                         Tap(dialog, kUpButton);
                     },
                     [](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDOK, 0); }},
                    L"\\FolderTest\\", chosen));
    EXPECT_EQ(shown, L"\\FolderTest");
    EXPECT_EQ(rows, L"Alpha 100%|beta") << "folders only, in order";
    EXPECT_EQ(deeper, L"\\FolderTest\\beta:deep");
    EXPECT_EQ(chosen, L"\\FolderTest\\beta");
}

TEST_F(FolderDialogTest, EndsAtTheRoot) {
    std::wstring chosen;
    bool upAtRoot = true;
    EXPECT_TRUE(Run({[&](HWND dialog) {
                         Tap(dialog, kUpButton);
                         upAtRoot = IsWindowEnabled(GetDlgItem(dialog, kUpButton));
                     },
                     [](HWND dialog) { SendMessage(dialog, WM_COMMAND, IDOK, 0); }},
                    L"\\FolderTest", chosen));
    EXPECT_FALSE(upAtRoot);
    EXPECT_EQ(chosen, L"\\");
}

TEST_F(FolderDialogTest, CancelKeepsThePath) {
    std::wstring chosen;
    EXPECT_FALSE(Run({[](HWND dialog) {
                         PostMessage(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
                         (void)dialog;
                     }},
                     L"\\Missing", chosen));
    EXPECT_EQ(chosen, L"\\Missing");
}
} // namespace
