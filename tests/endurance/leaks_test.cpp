// Every page and every dialog, opened and closed over and over: nothing it holds may stay behind.
// OV_ROUNDS in the environment sets how often; a test run makes do with a few.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "pages/add_plugin_dialog.h"
#include "pages/font_style_dialog.h"
#include "shell/about_window.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "tests/endurance/environment.h"
#include "tests/endurance/page_visit.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/resource_count.h"
#include "tests/support/window_support.h"
#include "ui/colour_picker.h"
#include "ui/file_dialog.h"
#include "ui/filter_name_dialog.h"
#include "ui/folder_dialog.h"
#include "ui/image_picker.h"

namespace {

constexpr wchar_t kTemplateDialog[] = L"#32770";
constexpr FileDialogText kFileTexts{L"Files", L"Backups", L"ovsb", L"Backup"};

// A dialog by its window's class, and what shows it until it is answered.
struct Dialog {
    const char* name;
    const wchar_t* className;
    void (*run)(HWND owner);
};

constexpr Dialog kDialogs[] = {
    {"FontStyle", kTemplateDialog,
     [](HWND owner) {
         LOGFONT font{};
         COLORREF colour = RGB(1, 2, 3);
         EditFontStyle(owner, font, colour);
     }},
    {"Colour", L"ColourPickerWin", [](HWND owner) { (void)PickColour(owner, RGB(1, 2, 3)); }},
    {"Image", L"ImagePickerWin",
     [](HWND owner) {
         WideString path;
         (void)PickImage(owner, path);
     }},
    {"SaveFile", L"SaveFileWin",
     [](HWND owner) {
         WideString path;
         (void)SelectFileToSave(owner, kFileTexts, path);
     }},
    {"OpenFile", L"LoadFileWin",
     [](HWND owner) {
         WideString path;
         (void)SelectFileToOpen(owner, kFileTexts, path);
     }},
    {"Folder", L"SelectFolderWin",
     [](HWND owner) {
         WideString path(L"\\Windows");
         (void)SelectFolder(owner, L"Folder", path);
     }},
    {"AddPlugin", kTemplateDialog,
     [](HWND owner) {
         WideString name;
         (void)ChoosePluginToAdd(owner, name);
     }},
    {"FilterName", kTemplateDialog,
     [](HWND owner) {
         WideString title(L"Filter");
         (void)AskFilterName(owner, title);
     }},
    {"About", L"AboutWin", ShowAbout},
};
constexpr int kDialogCount = static_cast<int>(std::size(kDialogs));

// What the memory of a process may grow by, however often something is done: the platform takes
// megabytes in advance, early or late. The blocks of the heaps are counted to the byte besides.
constexpr size_t kMemoryToSettle = 16 * 1024 * 1024;

// The pages by their numbers, the dialogs behind them.
class LeaksTest : public RegistryFixture, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        AddTodayPlugins();
        application.instance = GetModuleHandle(nullptr);
        window_ = CreateMainWindow(application.instance);
        ASSERT_NE(window_, nullptr);
    }
    void TearDown() override {
        DestroyWindow(window_);
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        RegistryFixture::TearDown();
    }

    // Confirmed and cancelled in turns.
    void VisitDialog(int round) const {
        const Dialog& dialog = kDialogs[GetParam() - kPageCount];
        int seen = 0;
        {
            const DialogSteps steps(dialog.className, {[&](HWND window) {
                                        ++seen;
                                        SelectEachRow(window);
                                        PostMessage(window, WM_COMMAND, round % 2 ? IDOK : IDCANCEL,
                                                    0);
                                    }});
            dialog.run(window_);
        }
        PumpMessages();
        ASSERT_EQ(seen, 1);
    }

    // Of many visits to a page one in ten looks at everything.
    static bool LooksEverywhere(int round) { return round < 100 || round % 10 == 0; }

    void Visit(int round) const {
        if (GetParam() < kPageCount)
            VisitPage(window_, GetParam(), LooksEverywhere(round));
        else
            VisitDialog(round);
    }

    HWND window_ = nullptr;
};

TEST_P(LeaksTest, LeavesNothingBehind) {
    const int rounds = NumberFrom("OV_ROUNDS", 6);
    for (int round = 0; round < 3; ++round)
        Visit(round); // What is made once stays.
    const HeldResources before;
    // What other programs of the device do now and then is less than a leak at each full visit.
    size_t leak = 0;
    for (int round = 0; round < rounds; ++round) {
        Visit(round);
        leak += LooksEverywhere(round);
    }
    const HeldResources after;
    EXPECT_LT(after.gdiObjects, before.gdiObjects + leak);
    EXPECT_LT(after.userHandle, before.userHandle + leak);
    EXPECT_LT(after.handle, before.handle + leak);
    EXPECT_LT(after.heapBytes, before.heapBytes + leak);
    EXPECT_LT(after.memory, before.memory + kMemoryToSettle);
}

std::string NameOf(const testing::TestParamInfo<int>& info) {
    return info.param < kPageCount ? "Page" + std::to_string(info.param)
                                   : kDialogs[info.param - kPageCount].name;
}

INSTANTIATE_TEST_SUITE_P(Every, LeaksTest, testing::Range(0, kPageCount + kDialogCount), NameOf);

} // namespace
