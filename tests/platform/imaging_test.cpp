#include <gtest/gtest.h>

#include "temp_file.h"

#include <imaging.h>

#include <array>
#include <cstring>

namespace {

// 2 by 2: red and half-transparent green above clear and blue.
constexpr std::string_view kPng{
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x02\0\0\0\x02\x08\x06\0\0\0r\xB6\r$\0\0\0\x14IDATx\xDA"
    "c\xF8\xCF\xC0\xF0\x1F\x08\x1B\x18 \xE0\xFF\x7F\0002\xE4\x05|\xF9\xB9\xF4\x80\0\0\0\0IEND"
    "\xAE\x42\x60\x82",
    77};

class ImagingTest : public testing::Test {
  protected:
    ImagingTest() {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                         reinterpret_cast<void**>(&factory_));
    }
    ~ImagingTest() override {
        for (IUnknown* object : std::array<IUnknown*, 3>{bitmap_, image_, factory_})
            EXPECT_EQ(object ? object->Release() : 0u, 0u);
        CoUninitialize();
    }
    void SetUp() override { ASSERT_NE(factory_, nullptr) << "is the class registered?"; }

    TempFile file_{L"picture.png"};
    IImagingFactory* factory_ = nullptr;
    IImage* image_ = nullptr;
    IBitmapImage* bitmap_ = nullptr;
};

TEST_F(ImagingTest, PixelsKeepTheirAlpha) {
    file_.Write(kPng);
    ASSERT_EQ(factory_->CreateImageFromFile(file_.Path(), &image_), S_OK);
    ImageInfo info = {};
    ASSERT_EQ(image_->GetImageInfo(&info), S_OK);
    EXPECT_EQ(info.Width, 2u);
    EXPECT_EQ(info.Height, 2u);
    ASSERT_EQ(factory_->CreateBitmapFromImage(image_, 2, 2, PixelFormat32bppARGB,
                                              InterpolationHintDefault, &bitmap_),
              S_OK);
    BitmapData data = {};
    ASSERT_EQ(bitmap_->LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data), S_OK);
    ASSERT_EQ(data.Stride, 8);
    constexpr DWORD kPixels[] = {0xFFFF0000, 0x8000FF00, 0x00000000, 0xFF0000FF};
    EXPECT_EQ(memcmp(data.Scan0, kPixels, sizeof kPixels), 0);
    EXPECT_EQ(bitmap_->UnlockBits(&data), S_OK);
}

} // namespace
