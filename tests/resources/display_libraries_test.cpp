// The display libraries and the program's own resources as they stand on a device: the art of the
// right size on the right mask.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "shell/services/handles.h"

namespace {

const std::wstring kInstallFolder = L"\\Program Files\\Teskel\\Orvane\\";

struct Strip {
    UINT id;
    int count;
    int units;
    COLORREF mask;
};
constexpr Strip kPageListStrip = {IDB_PAGE_LIST, 12, 32, 0x00FF00};
constexpr Strip kMenuBarStrip = {IDB_MENU_BAR, 2, 16, 0xC6CFDE};
constexpr Strip kFileStrip = {IDB_FILE_IMAGES, 2, 20, 0x00FF00};

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kGreen = 0x00FF00;
// The dashboard's symbols by their numbers, which the dashboard knows too.
constexpr struct {
    UINT id;
    COLORREF clear;
} kSymbols[] = {{290, kWhite}, {291, kWhite}, {287, kWhite}, {292, kWhite}, {293, kWhite},
                {289, kWhite}, {286, kWhite}, {294, kWhite}, {288, kWhite}, {296, kWhite},
                {295, kWhite}, {297, kWhite}, {298, kWhite}, {299, kWhite}, {319, kWhite},
                {339, kWhite}, {190, kRed},   {189, kRed},   {282, kWhite}, {283, kWhite},
                {269, kGreen}, {270, kGreen}, {321, kWhite}, {323, kWhite}};
constexpr struct {
    const wchar_t* file;
    int scale;
} kLibraries[] = {{L"LowDpiRes.dll", 1}, {L"HighDpiRes.dll", 2}};

// The pixels of a library's bitmap; empty when it is not there or not of 24 bits.
class Picture {
  public:
    Picture(HMODULE library, UINT id)
        : bitmap_(static_cast<HBITMAP>(
              LoadImageW(library, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION))) {
        DIBSECTION section = {};
        if (GetObjectW(bitmap_.Get(), sizeof section, &section) != sizeof section) return;
        if (section.dsBm.bmBitsPixel == 24) info_ = section.dsBm;
    }

    [[nodiscard]] int Width() const { return info_.bmWidth; }
    [[nodiscard]] int Height() const { return info_.bmHeight; }
    [[nodiscard]] COLORREF At(int x, int y) const {
        const auto* bits = static_cast<const BYTE*>(info_.bmBits);
        const BYTE* pixel = bits + (Height() - 1 - y) * info_.bmWidthBytes + x * 3;
        return RGB(pixel[2], pixel[1], pixel[0]);
    }
    // One image of a strip of square images, row by row.
    [[nodiscard]] std::vector<COLORREF> Image(int index) const {
        std::vector<COLORREF> pixels;
        for (int y = 0; y < Height(); ++y)
            for (int x = 0; x < Height(); ++x)
                pixels.push_back(At(index * Height() + x, y));
        return pixels;
    }

  private:
    UniqueBitmap bitmap_;
    BITMAP info_ = {};
};

// A colour so close to the mask that it must be what is left of the mask under a smooth edge.
bool IsFringe(COLORREF colour, COLORREF mask) {
    if (colour == mask) return false;
    const auto close = [](int a, int b) { return std::abs(a - b) <= 8; };
    return close(GetRValue(colour), GetRValue(mask)) && close(GetGValue(colour), GetGValue(mask)) &&
           close(GetBValue(colour), GetBValue(mask));
}

void ExpectCornersClear(const std::vector<COLORREF>& image, int size, COLORREF mask) {
    for (const int corner : {0, size - 1, size * (size - 1), size * size - 1})
        EXPECT_EQ(image[static_cast<size_t>(corner)], mask);
}

void CheckStrip(HMODULE library, const Strip& strip, int scale) {
    const Picture picture(library, strip.id);
    const int size = strip.units * scale;
    ASSERT_EQ(picture.Height(), size);
    ASSERT_EQ(picture.Width(), size * strip.count);
    std::set<std::vector<COLORREF>> images;
    for (int i = 0; i < strip.count; ++i) {
        SCOPED_TRACE(i);
        const std::vector<COLORREF> image = picture.Image(i);
        ExpectCornersClear(image, size, strip.mask);
        EXPECT_LT(std::count(image.begin(), image.end(), strip.mask), size * size * 3 / 4)
            << "hardly anything is drawn";
        EXPECT_TRUE(std::none_of(image.begin(), image.end(),
                                 [&](COLORREF colour) { return IsFringe(colour, strip.mask); }));
        EXPECT_TRUE(images.insert(image).second) << "the same as an image before it";
    }
}

// How much redder than green what is drawn in an image is, summed over its pixels.
int Redness(const std::vector<COLORREF>& image, COLORREF mask) {
    int sum = 0;
    for (const COLORREF colour : image)
        if (colour != mask) sum += GetRValue(colour) - GetGValue(colour);
    return sum;
}

TEST(DisplayLibraries, HoldTheirArtAtTheirDensity) {
    for (const auto& [file, scale] : kLibraries) {
        SCOPED_TRACE(scale);
        const UniqueModule library(LoadLibraryW((kInstallFolder + file).c_str()));
        ASSERT_TRUE(library);
        CheckStrip(library.Get(), kPageListStrip, scale);
        CheckStrip(library.Get(), kMenuBarStrip, scale);
        CheckStrip(library.Get(), kFileStrip, scale);

        // Cancel, a red cross, comes before OK, a green tick.
        const Picture menuBar(library.Get(), IDB_MENU_BAR);
        EXPECT_GT(Redness(menuBar.Image(0), kMenuBarStrip.mask), 0);
        EXPECT_LT(Redness(menuBar.Image(1), kMenuBarStrip.mask), 0);
    }
}

TEST(DisplayLibraries, HoldEverySymbolOnceAndTheArrows) {
    for (const auto& [file, scale] : kLibraries) {
        const UniqueModule library(LoadLibraryW((kInstallFolder + file).c_str()));
        ASSERT_TRUE(library);
        const int size = 12 * scale;
        std::set<std::vector<COLORREF>> images;
        for (const auto& [id, clear] : kSymbols) {
            SCOPED_TRACE(testing::Message() << id << " at " << scale);
            const Picture picture(library.Get(), id);
            ASSERT_EQ(picture.Width(), size);
            ASSERT_EQ(picture.Height(), size);
            const std::vector<COLORREF> image = picture.Image(0);
            EXPECT_EQ(image[0], clear);
            EXPECT_LT(std::count(image.begin(), image.end(), clear), size * size * 4 / 5)
                << "hardly anything is drawn";
            // Edges that fade into white are right on white alone.
            EXPECT_TRUE(clear == kWhite ||
                        std::none_of(image.begin(), image.end(), [mask = clear](COLORREF colour) {
                            return IsFringe(colour, mask);
                        }));
            EXPECT_TRUE(images.insert(image).second) << "the same as a symbol before it";
        }

        const Picture arrows(library.Get(), IDB_ARROWS);
        ASSERT_EQ(arrows.Width(), 20 * scale);
        ASSERT_EQ(arrows.Height(), 12 * scale);
        // The left one points left, the right one right, and nothing joins them.
        const int middle = 6 * scale;
        EXPECT_EQ(arrows.At(0, 0), kRed);
        EXPECT_EQ(arrows.At(10 * scale, middle), kRed);
        EXPECT_NE(arrows.At(3 * scale, middle), kRed);
        EXPECT_EQ(arrows.At(3 * scale, 2 * scale), kRed);
        EXPECT_NE(arrows.At(7 * scale, 3 * scale), kRed);
        EXPECT_NE(arrows.At(16 * scale, middle), kRed);
        EXPECT_EQ(arrows.At(16 * scale, 2 * scale), kRed);
        EXPECT_NE(arrows.At(12 * scale, 3 * scale), kRed);
    }
}

BOOL CALLBACK CountName(HMODULE, const wchar_t*, wchar_t*, LONG_PTR count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

TEST(ProgramResources, AreItsIconKeysAndScalingMarkButNoTexts) {
    const UniqueModule program(LoadLibraryExW((kInstallFolder + L"OVOptions.exe").c_str(), nullptr,
                                              LOAD_LIBRARY_AS_DATAFILE));
    ASSERT_TRUE(program);
    const HMODULE module = program.Get();
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(IDI_PROGRAM), RT_GROUP_ICON), nullptr);
    EXPECT_NE(FindResourceW(module, L"HI_RES_AWARE", L"CEUX"), nullptr);
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(1), RT_VERSION), nullptr);

    ACCEL keys[4] = {};
    ASSERT_EQ(CopyAcceleratorTableW(LoadAcceleratorsW(module, L"OV_OPTIONS"), keys, 4), 1);
    EXPECT_EQ(keys[0].fVirt & ~FNOINVERT, FVIRTKEY | FCONTROL);
    EXPECT_EQ(keys[0].key, 'S');
    EXPECT_EQ(keys[0].cmd, IDOK);

    int stringTables = 0;
    EnumResourceNamesW(module, RT_STRING, CountName, reinterpret_cast<LONG_PTR>(&stringTables));
    EXPECT_EQ(stringTables, 0);
}

} // namespace
