#include "ui/image_picker.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "files/icon_catalogue.h"
#include "settings/settings_store.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/image_files.h"
#include "tests/support/install_folder.h"
#include "tests/support/owner_window.h"

namespace {
constexpr int kList = 100;
constexpr int kEmptyText = 101;
constexpr int kNoneButton = 102;

class ImagePickerTest : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        owner_ = CreateOwner();
        folder_.emplace();
        iconCatalogue = IconCatalogue(); // As at a start.
        LoadInto(settingsStore);
    }
    void TearDown() override {
        folder_.reset();
        DestroyWindow(owner_);
        StoreFixture::TearDown();
    }

    bool Pick(std::wstring& path, std::vector<DialogSteps::Step> steps) {
        const DialogSteps work(L"ImagePickerWin", std::move(steps));
        WideString chosen(path.c_str());
        const bool isConfirmed = PickImage(owner_, chosen);
        path = chosen.CStr();
        return isConfirmed;
    }
    static DialogSteps::Step Press(WPARAM key) {
        return [key](HWND picker) { PostMessage(GetDlgItem(picker, kList), WM_KEYDOWN, key, 0); };
    }

    HWND owner_ = nullptr;
    std::optional<InstallFolder> folder_;
};

TEST_F(ImagePickerTest, MarksTheCurrentIconAndWorksByKeys) {
    for (const wchar_t* name : {L"Icons\\moon.bmp", L"Icons\\anchor.bmp", L"Icons\\Mouse.bmp"})
        folder_->Write(name, BmpFile(2, 2, 0));
    int marked = -1;
    const auto look = [&marked](HWND picker) {
        marked = ListView_GetNextItem(GetDlgItem(picker, kList), -1, LVNI_SELECTED);
    };
    std::wstring path = folder_->PathOf(L"icons\\MOON.bmp");
    EXPECT_TRUE(Pick(path, {look, Press('M'), Press(VK_RETURN)}));
    EXPECT_EQ(marked, 1);
    EXPECT_EQ(path, folder_->PathOf(L"Icons\\Mouse.bmp"));

    path = L"\\Elsewhere\\own.bmp";
    EXPECT_FALSE(Pick(path, {look, Press(VK_DOWN), Press(VK_ESCAPE)}));
    EXPECT_EQ(marked, 0);
    EXPECT_EQ(path, L"\\Elsewhere\\own.bmp");
}

TEST_F(ImagePickerTest, TakesNoIconOnlyByItsButton) {
    std::wstring path = L"\\Elsewhere\\own.bmp";
    const auto deselect = [](HWND picker) {
        ListView_SetItemState(GetDlgItem(picker, kList), -1, 0, LVIS_SELECTED);
    };
    EXPECT_TRUE(Pick(path, {deselect, Answer(IDOK)}));
    EXPECT_EQ(path, L"\\Elsewhere\\own.bmp") << "nothing selected";
    EXPECT_TRUE(Pick(path, {Answer(kNoneButton)}));
    EXPECT_EQ(path, L"");
    bool saysEmpty = false;
    EXPECT_TRUE(Pick(path, {[&](HWND picker) {
                                saysEmpty = IsWindowVisible(GetDlgItem(picker, kEmptyText));
                                EXPECT_EQ(GetFocus(), GetDlgItem(picker, kNoneButton));
                            },
                            Answer(IDOK)}));
    EXPECT_TRUE(saysEmpty);
}

TEST_F(ImagePickerTest, OpensAtOnceWithThousandsOfIcons) {
    constexpr int kFiles = 100;
    constexpr int kTimes = 50;
    for (int file = 0; file < kFiles; ++file)
        folder_->Write(L"Icons\\icon " + std::to_wstring(file) + L".bmp", BmpFile(2, 2, 0));
    iconCatalogue.BuildIconCatalogue();
    for (int time = 1; time < kTimes; ++time)
        iconCatalogue.AddIconFolder(folder_->PathOf(L"Icons").c_str());
    const DWORD start = GetTickCount();
    std::wstring path;
    EXPECT_TRUE(Pick(path, {[&](HWND picker) {
                                UpdateWindow(GetDlgItem(picker, kList));
                                EXPECT_LT(GetTickCount() - start, 1000U);
                                EXPECT_EQ(ListView_GetItemCount(GetDlgItem(picker, kList)),
                                          kFiles * kTimes);
                            },
                            Press(VK_END), Answer(IDOK)}));
    EXPECT_EQ(path, folder_->PathOf(L"Icons\\icon 99.bmp"));
}
} // namespace
