#include <imaging.h>

#include <cstring>

#include "tests/support/install_folder.h"
#include "tests/support/registry_fixture.h"

namespace {

// 2 by 2: red and half-transparent green above clear and blue.
constexpr std::string_view kPng{
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x02\0\0\0\x02\x08\x06\0\0\0r\xB6\r$\0\0\0\x14IDATx\xDA"
    "c\xF8\xCF\xC0\xF0\x1F\x08\x1B\x18 \xE0\xFF\x7F\0002\xE4\x05|\xF9\xB9\xF4\x80\0\0\0\0IEND"
    "\xAE\x42\x60\x82",
    77};

using ImagingTest = RegistryFixture;

TEST_F(ImagingTest, PixelsKeepTheirAlpha) {
    const InstallFolder folder;
    folder.Write(L"picture.png", std::string(kPng));
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    IImagingFactory* factory = nullptr;
    CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                     reinterpret_cast<void**>(&factory));
    ASSERT_NE(factory, nullptr) << "is the class registered?";
    IImage* image = nullptr;
    ASSERT_EQ(factory->CreateImageFromFile(folder.PathOf(L"picture.png").c_str(), &image), S_OK);
    IBitmapImage* bitmap = nullptr;
    ASSERT_EQ(factory->CreateBitmapFromImage(image, 2, 2, PixelFormat32bppARGB,
                                             InterpolationHintDefault, &bitmap),
              S_OK);
    BitmapData data = {};
    ASSERT_EQ(bitmap->LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data), S_OK);
    ASSERT_EQ(data.Stride, 8);
    constexpr DWORD kPixels[] = {0xFFFF0000, 0x8000FF00, 0x00000000, 0xFF0000FF};
    EXPECT_EQ(memcmp(data.Scan0, kPixels, sizeof kPixels), 0);
    EXPECT_EQ(bitmap->UnlockBits(&data), S_OK);
    EXPECT_EQ(bitmap->Release() + image->Release() + factory->Release(), 0u);
    CoUninitialize();
}

} // namespace
