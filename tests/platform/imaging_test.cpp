#include <gtest/gtest.h>

#include "temp_file.h"

#include <imaging.h>

#include <array>

namespace {

// 2 by 2: red and half-transparent green above clear and blue.
constexpr unsigned char kPng[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
    0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x02, 0x08, 0x06, 0x00, 0x00, 0x00, 0x72, 0xB6, 0x0D,
    0x24, 0x00, 0x00, 0x00, 0x14, 0x49, 0x44, 0x41, 0x54, 0x78, 0xDA, 0x63, 0xF8, 0xCF, 0xC0, 0xF0,
    0x1F, 0x08, 0x1B, 0x18, 0x20, 0xE0, 0xFF, 0x7F, 0x00, 0x32, 0xE4, 0x05, 0x7C, 0xF9, 0xB9, 0xF4,
    0x80, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
constexpr DWORD kPixels[] = {0xFFFF0000, 0x8000FF00, 0x00000000, 0xFF0000FF};
constexpr DWORD kPremultiplied[] = {0xFFFF0000, 0x80008000, 0x00000000, 0xFF0000FF};

const std::string_view kPngBytes(reinterpret_cast<const char*>(kPng), sizeof kPng);

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

    void LoadPng() {
        file_.Write(kPngBytes);
        ASSERT_EQ(factory_->CreateImageFromFile(file_.Path(), &image_), S_OK);
    }
    void MakeBitmap(UINT width, UINT height, PixelFormatID format,
                    InterpolationHint hint = InterpolationHintDefault) {
        if (bitmap_) bitmap_->Release();
        ASSERT_EQ(factory_->CreateBitmapFromImage(image_, width, height, format, hint, &bitmap_),
                  S_OK);
    }
    BitmapData Lock(const RECT* area, PixelFormatID format) {
        BitmapData data = {};
        EXPECT_EQ(bitmap_->LockBits(area, ImageLockModeRead, format, &data), S_OK);
        return data;
    }

    TempFile file_{L"picture.png"};
    IImagingFactory* factory_ = nullptr;
    IImage* image_ = nullptr;
    IBitmapImage* bitmap_ = nullptr;
};

TEST_F(ImagingTest, TellsWhatThePictureIs) {
    LoadPng();
    ImageInfo info = {};
    ASSERT_EQ(image_->GetImageInfo(&info), S_OK);
    EXPECT_EQ(info.Width, 2u);
    EXPECT_EQ(info.Height, 2u);
    EXPECT_EQ(info.PixelFormat, UINT{PixelFormat32bppARGB});
    EXPECT_EQ(info.Flags, UINT{ImageFlagsHasAlpha});
    EXPECT_EQ(info.RawDataFormat.Data1, 0xB96B3CAFu);
    EXPECT_EQ(info.Xdpi, 96);
    SIZE size = {};
    ASSERT_EQ(image_->GetPhysicalDimension(&size), S_OK);
    EXPECT_EQ(size.cx, 53);
    EXPECT_EQ(size.cy, 53);
}

TEST_F(ImagingTest, PixelsComeInTheFormatAskedFor) {
    LoadPng();
    const struct {
        PixelFormatID format;
        INT stride;
        DWORD pixels[4];
    } kCases[] = {
        {PixelFormat32bppARGB, 8, {kPixels[0], kPixels[1], kPixels[2], kPixels[3]}},
        {PixelFormat32bppPARGB,
         8,
         {kPremultiplied[0], kPremultiplied[1], kPremultiplied[2], kPremultiplied[3]}},
        {PixelFormat32bppRGB, 8, {0xFF0000, 0x00FF00, 0, 0x0000FF}},
        {PixelFormat24bppRGB, 8, {0xFF0000, 0x00FF00, 0, 0x0000FF}},
        {PixelFormat16bppRGB565, 4, {0xF800, 0x07E0, 0, 0x001F}},
    };
    for (const auto& [format, stride, pixels] : kCases) {
        MakeBitmap(0, 0, format);
        const BitmapData data = Lock(nullptr, format);
        EXPECT_EQ(data.Stride, stride) << format;
        const UINT pixelBytes = (format >> 8 & 0xFF) / 8;
        for (int i = 0; i < 4; ++i) {
            DWORD pixel = 0;
            memcpy(&pixel, static_cast<BYTE*>(data.Scan0) + i / 2 * stride + i % 2 * pixelBytes,
                   pixelBytes);
            EXPECT_EQ(pixel, pixels[i]) << format << " " << i;
        }
        EXPECT_EQ(bitmap_->UnlockBits(&data), S_OK);
    }
    IBitmapImage* none = nullptr;
    EXPECT_TRUE(FAILED(factory_->CreateBitmapFromImage(image_, 0, 0, 0x00030803,
                                                       InterpolationHintDefault, &none)));
    EXPECT_TRUE(FAILED(factory_->CreateBitmapFromImage(image_, 16000, 2000, PixelFormatDontCare,
                                                       InterpolationHintDefault, &none)));
    EXPECT_EQ(none, nullptr);
}

TEST_F(ImagingTest, LocksAPartInsideThePictureOnce) {
    LoadPng();
    MakeBitmap(0, 0, PixelFormatDontCare);
    const RECT part = {1, 1, 2, 2};
    const BitmapData data = Lock(&part, PixelFormat32bppARGB);
    EXPECT_EQ(data.Width, 1u);
    EXPECT_EQ(*static_cast<DWORD*>(data.Scan0), kPixels[3]);
    BitmapData other;
    EXPECT_TRUE(FAILED(bitmap_->LockBits(&part, ImageLockModeRead, PixelFormat32bppARGB, &other)));
    EXPECT_EQ(bitmap_->UnlockBits(&data), S_OK);
    EXPECT_TRUE(FAILED(bitmap_->UnlockBits(&data)));
    for (const RECT& outside : {RECT{1, 1, 3, 2}, RECT{-1, 0, 1, 1}, RECT{1, 1, 1, 1}})
        EXPECT_TRUE(
            FAILED(bitmap_->LockBits(&outside, ImageLockModeRead, PixelFormat32bppARGB, &other)));
}

TEST_F(ImagingTest, ShrinksByAverageAndGrowsByRepetition) {
    LoadPng();
    MakeBitmap(1, 1, PixelFormatDontCare);
    // Of alpha 255, 128, 0 and 255; green counts by half, and the clear pixel not at all.
    EXPECT_EQ(*static_cast<DWORD*>(Lock(nullptr, PixelFormat32bppARGB).Scan0), 0xA0663366u);
    MakeBitmap(1, 1, PixelFormatDontCare, InterpolationHintNearestNeighbor);
    EXPECT_EQ(*static_cast<DWORD*>(Lock(nullptr, PixelFormat32bppARGB).Scan0), kPixels[0]);
    MakeBitmap(4, 6, PixelFormatDontCare);
    const BitmapData data = Lock(nullptr, PixelFormat32bppARGB);
    const auto* pixels = static_cast<const DWORD*>(data.Scan0);
    for (int i = 0; i < 24; ++i)
        EXPECT_EQ(pixels[i], kPixels[i / 12 * 2 + i % 4 / 2]) << i;
}

TEST_F(ImagingTest, DrawBlends) {
    LoadPng();
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP target = CreateBitmap(8, 8, 1, 32, nullptr);
    const HGDIOBJ previous = SelectObject(dc, target);
    const RECT place = {2, 2, 6, 6};
    PatBlt(dc, 0, 0, 8, 8, WHITENESS);
    ASSERT_EQ(image_->Draw(dc, &place, nullptr), S_OK);
    EXPECT_EQ(GetPixel(dc, 1, 2), RGB(255, 255, 255));
    EXPECT_EQ(GetPixel(dc, 2, 2), RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(dc, 4, 3), RGB(127, 255, 127));
    EXPECT_EQ(GetPixel(dc, 3, 5), RGB(255, 255, 255));
    EXPECT_EQ(GetPixel(dc, 5, 5), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(dc, 6, 5), RGB(255, 255, 255));

    // The right half, in units of 0.01 mm.
    const RECT half = {26, 0, 53, 53};
    ASSERT_EQ(image_->Draw(dc, &place, &half), S_OK);
    EXPECT_EQ(GetPixel(dc, 2, 5), RGB(0, 0, 255));
    EXPECT_TRUE(FAILED(image_->Draw(dc, nullptr, nullptr)));
    SelectObject(dc, previous);
    DeleteObject(target);
    DeleteDC(dc);
}

TEST_F(ImagingTest, WrongAndCutOffFilesAreRefused) {
    EXPECT_TRUE(FAILED(factory_->CreateImageFromFile(L"\\no such file.png", &image_)));
    // What follows the pixels, their check sum and the end mark, may be missing.
    const std::size_t endOfPixels = kPngBytes.find("IEND") - 8;
    for (std::size_t length = 0; length < endOfPixels; ++length) {
        file_.Write(kPngBytes.substr(0, length));
        EXPECT_TRUE(FAILED(factory_->CreateImageFromFile(file_.Path(), &image_))) << length;
        EXPECT_EQ(image_, nullptr);
    }
    file_.Write("# a text\r\n");
    EXPECT_TRUE(FAILED(factory_->CreateImageFromFile(file_.Path(), &image_)));
    EXPECT_EQ(factory_->CreateImageFromBuffer(kPng, sizeof kPng, BufferDisposalFlagNone, &image_),
              S_OK);
}

TEST_F(ImagingTest, RegistersItsOwnFile) {
    HKEY classes = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\ImagingTest", 0, nullptr, 0, 0,
                              nullptr, &classes, nullptr),
              ERROR_SUCCESS);
    const HMODULE library = GetModuleHandleW(L"imaging.dll");
    const auto registerServer = reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllRegisterServer")));
    RegOverridePredefKey(HKEY_CLASSES_ROOT, classes);
    const HRESULT result = registerServer();
    RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    EXPECT_EQ(result, S_OK);
    HKEY server = nullptr;
    EXPECT_EQ(RegOpenKeyExW(classes,
                            L"CLSID\\{327ABDA8-072B-11D3-9D7B-0000F81EF32E}\\InprocServer32", 0, 0,
                            &server),
              ERROR_SUCCESS);
    wchar_t registered[MAX_PATH] = L"";
    DWORD size = sizeof registered;
    RegQueryValueExW(server, nullptr, nullptr, nullptr, reinterpret_cast<BYTE*>(registered), &size);
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(library, path, MAX_PATH);
    EXPECT_STREQ(registered, path);
    RegCloseKey(server);
    RegCloseKey(classes);
    RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\ImagingTest");
}

} // namespace
