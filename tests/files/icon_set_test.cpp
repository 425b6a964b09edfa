#include "files/icon_set.h"

#include <gtest/gtest.h>
#include <imaging.h>
#include <objbase.h>

#include <string>

#include "files/image_loader.h"
#include "shell/services/application.h"
#include "tests/files/folder_fixture.h"
#include "tests/support/image_files.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

class IconSetTest : public FolderFixture {
  protected:
    void SetUp() override {
        FolderFixture::SetUp();
        CoInitializeEx(nullptr, 0);
        ASSERT_EQ(CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IImagingFactory,
                                   reinterpret_cast<void**>(&application.imagingFactory)),
                  S_OK);
        library_.Reset(LoadLibrary(L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll"));
        application.displayLibrary = library_.Get();
        ASSERT_TRUE(library_);
    }
    void TearDown() override {
        icons_.Release();
        application.displayLibrary = nullptr;
        application.imagingFactory->Release();
        application.imagingFactory = nullptr;
        CoUninitialize();
        FolderFixture::TearDown();
    }

    void Write(const wchar_t* name, const std::string& bytes) {
        folder_->Write(std::wstring(L"Set\\") + name, bytes);
    }
    void Load() { icons_.LoadIconSet(folder_->PathOf(L"Set").c_str()); }

    // The built-in bitmaps are 12 pixels wide; those of the tests are smaller.
    int WidthOf(IconSymbol symbol) const {
        BITMAP bitmap{};
        GetObject(icons_[symbol].bitmap.Get(), sizeof(bitmap), &bitmap);
        return bitmap.bmWidth;
    }
    bool Loads(const wchar_t* name) const {
        return static_cast<bool>(LoadImageFile(folder_->PathOf(name).c_str()));
    }

    UniqueModule library_;
    IconSet icons_;
};

TEST_F(IconSetTest, LooksForFilesInItsOrderAndFallsBackToTheBuiltInBitmaps) {
    const auto loadedWidth = [this](const wchar_t* file, const std::string& bytes) {
        Write(file, bytes);
        Load();
        return WidthOf(IconSymbol::TaskChecked);
    };
    EXPECT_EQ(loadedWidth(L"note.bmp", BmpFile(2, 2, kBlue)), 12);
    EXPECT_EQ(WidthOf(IconSymbol::Note), 12)
        << "a bitmap counts only where a colour of it is clear";
    EXPECT_EQ(loadedWidth(L"task_checked_high.bmp", BmpFile(3, 3, kBlue)), 3);
    EXPECT_EQ(loadedWidth(L"task_checked.bmp", BmpFile(4, 4, kBlue)), 4);
    EXPECT_EQ(loadedWidth(L"task_checked.tga", TgaFile(5, 5, kBlue)), 5);
    EXPECT_EQ(loadedWidth(L"task_checked.png", PngFile()), 1);
    EXPECT_EQ(PixelOf(icons_[IconSymbol::TaskChecked].bitmap.Get(), 0, 0), RGB(32, 64, 128));
    EXPECT_EQ(loadedWidth(L"task_checked.png", "no picture"), 5);
    application.displayLibrary = nullptr;
    Load();
    EXPECT_FALSE(icons_[IconSymbol::Note].bitmap) << "what cannot be loaded is not drawn";
}

TEST_F(IconSetTest, DrawsNothingWhereAPictureIsClear) {
    constexpr COLORREF kGround = RGB(10, 20, 30);
    Write(L"task_checked_high.bmp", BmpFile(2, 2, kRed));
    Write(L"task_not_checked.bmp", BmpFile(2, 2, kBlue));
    Write(L"note.tga", TgaPixel(0x00FF0000));
    Write(L"link.tga", TgaPixel(0xFFFFFFFF));
    Load();
    const auto drawn = [this](IconSymbol symbol) {
        const UniqueDc dc(CreateCompatibleDC(nullptr));
        HDC screen = GetDC(nullptr);
        const UniqueBitmap canvas(CreateCompatibleBitmap(screen, 4, 4));
        ReleaseDC(nullptr, screen);
        const SelectScope selected(dc.Get(), canvas.Get());
        const UniqueBrush brush(CreateSolidBrush(kGround));
        const RECT all{0, 0, 4, 4};
        FillRect(dc.Get(), &all, brush.Get());
        icons_.Draw(dc.Get(), symbol, 0, 0, 4, 4);
        return GetPixel(dc.Get(), 2, 2);
    };
    EXPECT_EQ(drawn(IconSymbol::TaskChecked), kGround);
    EXPECT_EQ(drawn(IconSymbol::TaskNotChecked), kBlue);
    EXPECT_EQ(drawn(IconSymbol::Note), kGround) << "alpha 0";
    EXPECT_NE(drawn(IconSymbol::Link), kGround) << "white that is meant to be seen";
}

TEST_F(IconSetTest, RefusesFilesThatAreNoPicturesOfTheirKind) {
    folder_->Write(L"a.png", PngFile());
    folder_->Write(L"a.TGA", TgaFile(1, 1, kRed));
    folder_->Write(L"a.Bmp", BmpFile(1, 1, kRed));
    folder_->Write(L"bmp", BmpFile(1, 1, kRed));
    EXPECT_TRUE(Loads(L"a.PNG") && Loads(L"a.TGA") && Loads(L"a.Bmp"));
    EXPECT_FALSE(Loads(L"bmp") || Loads(L"missing.png"));

    for (const wchar_t* name : {L"bad.png", L"bad.tga", L"bad.bmp"}) {
        for (const std::string& bytes :
             {std::string(), PngFile().substr(0, 40), BmpFile(9, 9, 1).substr(0, 60),
              std::string(500, '\xFF')}) {
            folder_->Write(name, bytes);
            EXPECT_FALSE(Loads(name)) << bytes.size();
        }
    }
    // As wide as 32,000 pixels, by a header alone and with all its pixels.
    std::string huge = TgaFile(1, 1, kRed);
    huge.replace(12, 4, "\x00\x7D\x00\x7D", 4);
    folder_->Write(L"huge.tga", huge);
    folder_->Write(L"wide.tga", TgaFile(32000, 1, kRed));
    EXPECT_FALSE(Loads(L"huge.tga") || Loads(L"wide.tga"));
}

} // namespace
