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

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kGreen = 0x00FF00;

// A bitmap of square images in a row, each so many units wide.
struct Strip {
    UINT id;
    COLORREF clear;
    int units = 12;
    int count = 1;
};
constexpr Strip kStrips[] = {
    {IDB_PAGE_LIST, kGreen, 32, 12},
    {IDB_MENU_BAR, 0xC6CFDE, 16, 2},
    {IDB_FILE_IMAGES, kGreen, 20, 2},
    // The dashboard's symbols by their numbers, which the dashboard knows too.
    {290, kWhite},
    {291, kWhite},
    {287, kWhite},
    {292, kWhite},
    {293, kWhite},
    {289, kWhite},
    {286, kWhite},
    {294, kWhite},
    {288, kWhite},
    {296, kWhite},
    {295, kWhite},
    {297, kWhite},
    {298, kWhite},
    {299, kWhite},
    {319, kWhite},
    {339, kWhite},
    {190, kRed},
    {189, kRed},
    {282, kWhite},
    {283, kWhite},
    {269, kGreen},
    {270, kGreen},
    {321, kWhite},
    {323, kWhite}};

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
    const auto close = [](int a, int b) { return std::abs(a - b) <= 8; };
    return colour != mask && close(GetRValue(colour), GetRValue(mask)) &&
           close(GetGValue(colour), GetGValue(mask)) && close(GetBValue(colour), GetBValue(mask));
}

// How much redder than green what is drawn in an image is, summed over its pixels.
int Redness(const std::vector<COLORREF>& image, COLORREF mask) {
    int sum = 0;
    for (const COLORREF colour : image)
        if (colour != mask) sum += GetRValue(colour) - GetGValue(colour);
    return sum;
}

// The left one points left, the right one right, and nothing joins them.
void CheckArrows(const Picture& arrows, int scale) {
    ASSERT_EQ(arrows.Width(), 20 * scale);
    ASSERT_EQ(arrows.Height(), 12 * scale);
    const auto isClear = [&](int x, int y) { return arrows.At(x * scale, y * scale) == kRed; };
    EXPECT_TRUE(isClear(0, 0) && isClear(10, 6) && isClear(3, 2) && isClear(16, 2));
    EXPECT_FALSE(isClear(3, 6) || isClear(7, 3) || isClear(16, 6) || isClear(12, 3));
}

class DisplayLibraries : public testing::TestWithParam<std::pair<const wchar_t*, int>> {};

TEST_P(DisplayLibraries, HoldTheirArtAtTheirDensity) {
    const auto& [file, scale] = GetParam();
    const UniqueModule library(LoadLibraryW((kInstallFolder + file).c_str()));
    ASSERT_TRUE(library);
    std::set<std::vector<COLORREF>> images;
    for (const Strip& strip : kStrips) {
        const COLORREF clear = strip.clear;
        const Picture picture(library.Get(), strip.id);
        const int size = strip.units * scale;
        ASSERT_EQ(picture.Height(), size) << strip.id;
        ASSERT_EQ(picture.Width(), size * strip.count) << strip.id;
        for (int i = 0; i < strip.count; ++i) {
            SCOPED_TRACE(testing::Message() << "image " << i << " of " << strip.id);
            const std::vector<COLORREF> image = picture.Image(i);
            EXPECT_EQ(image[0], clear);
            EXPECT_LT(std::ranges::count(image, clear), size * size * 4 / 5)
                << "hardly anything is drawn";
            // Edges that fade into white are right on white alone.
            EXPECT_TRUE(clear == kWhite || std::ranges::none_of(image, [&](COLORREF colour) {
                            return IsFringe(colour, clear);
                        }));
            EXPECT_TRUE(images.insert(image).second) << "the same as an image before it";
        }
    }
    // Cancel, a red cross, comes before OK, a green tick.
    const Picture menuBar(library.Get(), IDB_MENU_BAR);
    EXPECT_GT(Redness(menuBar.Image(0), kStrips[1].clear), 0);
    EXPECT_LT(Redness(menuBar.Image(1), kStrips[1].clear), 0);
    CheckArrows(Picture(library.Get(), IDB_ARROWS), scale);
}

INSTANTIATE_TEST_SUITE_P(Both, DisplayLibraries,
                         testing::Values(std::pair(L"LowDpiRes.dll", 1),
                                         std::pair(L"HighDpiRes.dll", 2)));

TEST(ProgramResources, AreItsIconKeysAndScalingMark) {
    const UniqueModule program(LoadLibraryExW((kInstallFolder + L"OVOptions.exe").c_str(), nullptr,
                                              LOAD_LIBRARY_AS_DATAFILE));
    const HMODULE module = program.Get();
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(IDI_PROGRAM), RT_GROUP_ICON), nullptr);
    EXPECT_NE(FindResourceW(module, L"HI_RES_AWARE", L"CEUX"), nullptr);
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(1), RT_VERSION), nullptr);
    ACCEL keys[4] = {};
    ASSERT_EQ(CopyAcceleratorTableW(LoadAcceleratorsW(module, L"OV_OPTIONS"), keys, 4), 1);
    EXPECT_EQ(keys[0].fVirt & ~FNOINVERT, FVIRTKEY | FCONTROL);
    EXPECT_EQ(keys[0].key, 'S');
    EXPECT_EQ(keys[0].cmd, IDOK);
}

} // namespace
