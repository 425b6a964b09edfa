#include "preview/item_icons.h"

#include <gtest/gtest.h>

#include <vector>

#include "files/icon_set.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "tests/support/image_files.h"

namespace {
constexpr int kSide = 12;

// What `draw` leaves on a ground of its own.
template <typename Draw>
std::vector<COLORREF> Picture(Draw draw) {
    HDC screen = GetDC(nullptr);
    const UniqueBitmap canvas(CreateCompatibleBitmap(screen, kSide, kSide));
    ReleaseDC(nullptr, screen);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    {
        const SelectScope selected(dc.Get(), canvas.Get());
        const RECT all{0, 0, kSide, kSide};
        FillRect(dc.Get(), &all, static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH)));
        draw(dc.Get());
    }
    std::vector<COLORREF> pixels;
    for (int i = 0; i < kSide * kSide; ++i)
        pixels.push_back(PixelOf(canvas.Get(), i % kSide, i / kSide));
    return pixels;
}

TEST(ItemIcons, EachFlagHasItsOwnBitmap) {
    struct Icon {
        uint32_t flag;
        UINT bitmap;
    };
    constexpr Icon kIcons[] = {{1, 290},  {2, 287},  {4, 292},   {8, 289},  {16, 286},
                               {32, 291}, {64, 294}, {128, 288}, {256, 321}};
    SetVgaMode(false);
    const UniqueModule library(LoadLibrary(L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll"));
    ASSERT_TRUE(library);
    application.displayLibrary = library.Get();
    iconSet.LoadIconSet(WideString());
    const std::vector<COLORREF> nothing = Picture([](HDC) {});
    for (const Icon& icon : kIcons) {
        const UniqueBitmap bitmap(LoadBitmap(library.Get(), MAKEINTRESOURCE(icon.bitmap)));
        const std::vector<COLORREF> expected = Picture([&](HDC dc) {
            TransparentImage(dc, 0, 0, kSide, kSide, bitmap.Get(), 0, 0, kSide, kSide,
                             RGB(255, 255, 255));
        });
        EXPECT_TRUE(expected != nothing) << icon.bitmap;
        EXPECT_TRUE(Picture([&](HDC dc) { DrawItemIcon(dc, 0, 0, icon.flag); }) == expected)
            << icon.flag;
    }
    for (const uint32_t none : {0U, 3U, 512U, 0x80000000U})
        EXPECT_TRUE(Picture([&](HDC dc) { DrawItemIcon(dc, 0, 0, none); }) == nothing) << none;
    iconSet.Release();
    application.displayLibrary = nullptr;
}
} // namespace
