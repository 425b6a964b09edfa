#include "ui/image_picker.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "files/icon_catalogue.h"
#include "settings/settings_store.h"
#include "shell/services/application.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/image_files.h"
#include "tests/support/install_folder.h"
#include "tests/support/window_support.h"

namespace {
constexpr wchar_t kPicker[] = L"ImagePickerWin";
constexpr int kList = 100;
constexpr int kEmptyText = 101;
constexpr int kNoneButton = 102;

class ImagePickerTest : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        owner_ = CreateWindowEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268, nullptr,
                                nullptr, application.instance, nullptr);
        folder_.emplace();
    }
    void TearDown() override {
        folder_.reset();
        DestroyWindow(owner_);
        StoreFixture::TearDown();
    }

    // The catalogue of the program is built anew, as at a start.
    void Build() {
        iconCatalogue = IconCatalogue();
        LoadInto(settingsStore);
    }
    bool Pick(std::wstring& path, std::vector<DialogSteps::Step> steps) {
        const DialogSteps work(kPicker, std::move(steps));
        WideString chosen(path.c_str());
        const bool isConfirmed = PickImage(owner_, chosen);
        path = chosen.CStr();
        return isConfirmed;
    }
    static int SelectedIn(HWND picker) {
        return ListView_GetNextItem(GetDlgItem(picker, kList), -1, LVNI_SELECTED);
    }

    HWND owner_ = nullptr;
    std::optional<InstallFolder> folder_;
};

void Press(HWND picker, WPARAM key) {
    PostMessage(GetDlgItem(picker, kList), WM_KEYDOWN, key, 0);
}

TEST_F(ImagePickerTest, MarksTheCurrentIconAndWorksByKeys) {
    for (const wchar_t* name : {L"Icons\\moon.bmp", L"Icons\\anchor.bmp", L"Icons\\Mouse.bmp"})
        folder_->Write(name, BmpFile(2, 2, 0));
    Build();
    int marked = -1;
    std::wstring path = folder_->PathOf(L"icons\\MOON.bmp");
    EXPECT_TRUE(Pick(path, {[&](HWND picker) {
                                marked = SelectedIn(picker);
                                Press(picker, 'M');
                            },
                            [](HWND picker) { Press(picker, VK_RETURN); }}));
    EXPECT_EQ(marked, 1);
    EXPECT_EQ(path, folder_->PathOf(L"Icons\\Mouse.bmp"));

    path = L"\\Elsewhere\\own.bmp";
    EXPECT_FALSE(Pick(path, {[&](HWND picker) {
                                 marked = SelectedIn(picker);
                                 Press(picker, VK_DOWN);
                             },
                             [](HWND picker) { Press(picker, VK_ESCAPE); }}));
    EXPECT_EQ(marked, 0);
    EXPECT_EQ(path, L"\\Elsewhere\\own.bmp");
}

TEST_F(ImagePickerTest, TakesNoIconOnlyByItsButton) {
    Build();
    const std::wstring own = L"\\Elsewhere\\own.bmp";
    std::wstring path = own;
    EXPECT_TRUE(Pick(path, {[](HWND picker) {
                         ListView_SetItemState(GetDlgItem(picker, kList), -1, 0, LVIS_SELECTED);
                         SendMessage(picker, WM_COMMAND, IDOK, 0);
                     }}));
    EXPECT_EQ(path, own) << "nothing selected";
    EXPECT_TRUE(Pick(path, {[](HWND picker) { Tap(picker, kNoneButton); }}));
    EXPECT_EQ(path, L"");
    bool saysEmpty = false;
    HWND focus = nullptr;
    EXPECT_TRUE(Pick(path, {[&](HWND picker) {
                         saysEmpty = IsWindowVisible(GetDlgItem(picker, kEmptyText));
                         focus = GetFocus() == GetDlgItem(picker, kNoneButton) ? picker : nullptr;
                         SendMessage(picker, WM_COMMAND, IDOK, 0);
                     }}));
    EXPECT_TRUE(saysEmpty);
    EXPECT_TRUE(focus);
}

TEST_F(ImagePickerTest, OpensAtOnceWithThousandsOfIcons) {
    constexpr int kFiles = 100;
    constexpr int kTimes = 50;
    for (int file = 0; file < kFiles; ++file)
        folder_->Write(L"Icons\\icon " + std::to_wstring(file) + L".bmp", BmpFile(2, 2, 0));
    Build();
    iconCatalogue.BuildIconCatalogue();
    for (int time = 1; time < kTimes; ++time)
        iconCatalogue.AddIconFolder(folder_->PathOf(L"Icons").c_str());
    const DWORD start = GetTickCount();
    DWORD opened = 0;
    LRESULT rows = 0;
    std::wstring path;
    EXPECT_TRUE(Pick(path, {[&](HWND picker) {
                                UpdateWindow(GetDlgItem(picker, kList));
                                opened = GetTickCount();
                                rows = SendDlgItemMessage(picker, kList, LVM_GETITEMCOUNT, 0, 0);
                                Press(picker, VK_END);
                            },
                            [](HWND picker) {
                                UpdateWindow(GetDlgItem(picker, kList));
                                SendMessage(picker, WM_COMMAND, IDOK, 0);
                            }}));
    EXPECT_EQ(rows, kFiles * kTimes);
    EXPECT_LT(opened - start, 1000U);
    EXPECT_EQ(path, folder_->PathOf(L"Icons\\icon 99.bmp"));
}
} // namespace
