#include "ui/folder_dialog.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "shell/services/application.h"
#include "tests/support/window_support.h"

namespace {
constexpr int kPathText = 100;
constexpr int kUpButton = 101;
constexpr int kFolderList = 102;

std::vector<std::function<void(HWND)>> steps;

// Works the dialog from inside its own loop, one step at each turn of the timer.
void CALLBACK NextStep(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND dialog = FindWindow(L"SelectFolderWin", nullptr);
    if (steps.empty() || !dialog) {
        KillTimer(nullptr, timer);
        if (dialog) PostMessage(dialog, WM_COMMAND, IDCANCEL, 0); // A test must not hang.
        return;
    }
    const auto step = steps.front();
    steps.erase(steps.begin());
    step(dialog);
}

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
    bool Run(std::vector<std::function<void(HWND)>> with, const wchar_t* start,
             std::wstring& chosen) {
        steps = std::move(with);
        SetTimer(nullptr, 0, 20, NextStep);
        WideString path(start);
        const bool confirmed = SelectFolder(owner_, L"Select Folder", path);
        chosen = path.CStr();
        EXPECT_TRUE(IsWindowEnabled(owner_));
        EXPECT_EQ(TextOf(owner_), L"Owner");
        return confirmed;
    }

    HWND owner_ = nullptr;
};

std::wstring RowsOf(HWND dialog) {
    HWND list = GetDlgItem(dialog, kFolderList);
    std::wstring rows;
    const LRESULT count = SendMessage(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        wchar_t text[MAX_PATH] = L"";
        LVITEM item{};
        item.pszText = text;
        item.cchTextMax = MAX_PATH;
        SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row),
                    reinterpret_cast<LPARAM>(&item));
        rows += (row ? L"|" : L"") + std::wstring(text);
    }
    return rows;
}

void PressInList(HWND dialog, WPARAM key) {
    SendDlgItemMessage(dialog, kFolderList, WM_KEYDOWN, key, 0);
}

TEST_F(FolderDialogTest, WalksDownAndUpAndTakesTheFolderShown) {
    std::wstring chosen;
    std::wstring rows;
    std::wstring shown;
    std::wstring deeper;
    EXPECT_TRUE(Run({[&](HWND dialog) {
                         rows = RowsOf(dialog);
                         shown = TextOf(GetDlgItem(dialog, kPathText));
                         PressInList(dialog, VK_DOWN);
                         PressInList(dialog, VK_RETURN);
                         deeper = TextOf(GetDlgItem(dialog, kPathText)) + L":" + RowsOf(dialog);
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
