#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <string>

namespace {

constexpr COLORREF kKey = RGB(255, 0, 255);

// 32-bit pixels, the top row first, selected into a context of their own.
struct Canvas {
    Canvas(int width, int height) : dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        pixels = static_cast<DWORD*>(bits);
        previous = SelectObject(dc, bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() {
        DeleteDC(dc);
        DeleteObject(bitmap);
    }

    HDC dc;
    HBITMAP bitmap;
    DWORD* pixels;
    HGDIOBJ previous;
};

// Draws key and ink in a chess pattern at 1, 2, each in so many pixels, over pixels that all
// differ.
void ExpectOnlyInkDrawn(HANDLE source, int cell) {
    const Canvas target(8, 8);
    for (DWORD i = 0; i < 64; ++i)
        target.pixels[i] = i;
    ASSERT_TRUE(TransparentImage(target.dc, 1, 2, 2 * cell, 2 * cell, source, 1, 0, 2, 2, kKey));
    for (int i = 0; i < 64; ++i) {
        const int column = i % 8 < 1 ? -1 : (i % 8 - 1) / cell;
        const int row = i / 8 < 2 ? -1 : (i / 8 - 2) / cell;
        const bool isInk = (column == 0 && row == 1) || (column == 1 && row == 0);
        EXPECT_EQ(target.pixels[i] & 0xFFFFFF, isInk ? 0x10C808u : i) << i << " of " << cell;
    }
}

TEST(DrawingTest, OneColorStaysOut) {
    // The fourth byte, which what loads pictures leaves full, is no part of the colour. The first
    // column is not drawn.
    constexpr DWORD kSource[] = {0xFF010203, 0xFFFF00FF, 0xFF10C808,
                                 0xFF010203, 0xFF10C808, 0xFFFF00FF};
    const Canvas source(3, 2);
    std::memcpy(source.pixels, kSource, sizeof kSource);
    ExpectOnlyInkDrawn(source.dc, 1);
    ExpectOnlyInkDrawn(source.dc, 3);
    EXPECT_FALSE(TransparentImage(source.dc, 0, 0, 2, 2, source.bitmap, 0, 0, 2, 2, kKey))
        << "a bitmap that a context holds";
    SelectObject(source.dc, source.previous);
    ExpectOnlyInkDrawn(source.bitmap, 1);
}

// What lies to the left of a text's last pixel.
int DrawnWidth(const Canvas& canvas, int width, int height) {
    for (int x = width - 1; x >= 0; --x) {
        for (int y = 0; y < height; ++y) {
            if ((canvas.pixels[y * width + x] & 0xFFFFFF) != 0xFFFFFF) return x + 1;
        }
    }
    return 0;
}

// Texts are laid out by their measure: drawn wider, a label at the right loses its last letters.
TEST(DrawingTest, TextIsAsWideAsItMeasures) {
    constexpr int kWidth = 500;
    constexpr int kHeight = 40;
    // The gap after the last letter, and widths that cannot be right for all sizes at once.
    constexpr int kMostOver = 6;
    for (const LONG size : {12, 13, 24}) {
        for (const LONG weight : {FW_NORMAL, FW_BOLD}) {
            LOGFONTW description = {};
            description.lfHeight = size;
            description.lfWeight = weight;
            wcscpy(description.lfFaceName, L"Tahoma");
            HFONT font = CreateFontIndirectW(&description);
            for (const std::wstring text :
                 {L"Look at words as they were took", L"Показывать это окно под другим"}) {
                const Canvas canvas(kWidth, kHeight);
                std::fill_n(canvas.pixels, kWidth * kHeight, 0xFFFFFFu);
                HGDIOBJ previous = SelectObject(canvas.dc, font);
                SIZE measured = {};
                GetTextExtentPoint32W(canvas.dc, text.c_str(), static_cast<int>(text.size()),
                                      &measured);
                TextOutW(canvas.dc, 0, 0, text.c_str(), static_cast<int>(text.size()));
                GdiFlush();
                SelectObject(canvas.dc, previous);
                const int drawn = DrawnWidth(canvas, kWidth, kHeight);
                EXPECT_LE(drawn, measured.cx) << size << " " << weight;
                EXPECT_GE(drawn + kMostOver, measured.cx) << size << " " << weight;
            }
            DeleteObject(font);
        }
    }
}

} // namespace
