#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <string>

namespace {

// 32-bit pixels, the top row first, and a context that draws on them.
struct Canvas {
    Canvas(int wide, int high) : width(wide), height(high), dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(info.bmiHeader), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
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

    int width, height;
    HDC dc;
    HBITMAP bitmap;
    DWORD* pixels;
    HGDIOBJ previous;
};

TEST(DrawingTest, OneColorStaysOut) {
    // The fourth byte, which what loads pictures leaves full, is no part of the colour.
    const Canvas source(2, 2);
    constexpr DWORD kChess[] = {0xFFFF00FF, 0xFF10C808, 0xFF10C808, 0xFFFF00FF};
    std::ranges::copy(kChess, source.pixels);
    SelectObject(source.dc, source.previous);
    for (const int cell : {1, 3}) {
        const Canvas target(8, 8);
        for (DWORD i = 0; i < 64; ++i)
            target.pixels[i] = i;
        ASSERT_TRUE(TransparentImage(target.dc, 1, 2, 2 * cell, 2 * cell, source.bitmap, 0, 0, 2, 2,
                                     RGB(255, 0, 255)));
        for (int i = 0; i < 64; ++i) {
            const int column = i % 8 < 1 ? -1 : (i % 8 - 1) / cell;
            const int row = i / 8 < 2 ? -1 : (i / 8 - 2) / cell;
            const bool isInk = (column == 0 && row == 1) || (column == 1 && row == 0);
            EXPECT_EQ(target.pixels[i] & 0xFFFFFF, isInk ? 0x10C808u : i) << i << " of " << cell;
        }
    }
}

// Up to a text's last pixel.
int DrawnWidth(const Canvas& canvas) {
    int drawn = 0;
    for (int i = 0; i < canvas.width * canvas.height; ++i)
        if ((canvas.pixels[i] & 0xFFFFFF) != 0xFFFFFF)
            drawn = std::max(drawn, i % canvas.width + 1);
    return drawn;
}

// Texts are laid out by their measure: drawn wider, a label at the right loses its last letters.
TEST(DrawingTest, TextIsAsWideAsItMeasures) {
    // The gap after the last letter, and widths that cannot be right for all sizes at once.
    constexpr int kMostOver = 8;
    const std::wstring text = L"Look at words as they were took; Показывать это окно под другим";
    for (const LONG size : {12, 13, 24}) {
        for (const LONG weight : {FW_NORMAL, FW_BOLD}) {
            HFONT font = CreateFontW(size, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0,
                                     0, 0, 0, L"Tahoma");
            const Canvas canvas(1000, 40);
            std::fill_n(canvas.pixels, 1000 * 40, 0xFFFFFFu);
            HGDIOBJ previous = SelectObject(canvas.dc, font);
            SIZE measured = {};
            const auto length = static_cast<int>(text.size());
            GetTextExtentPoint32W(canvas.dc, text.c_str(), length, &measured);
            TextOutW(canvas.dc, 0, 0, text.c_str(), length);
            GdiFlush();
            SelectObject(canvas.dc, previous);
            DeleteObject(font);
            EXPECT_LE(DrawnWidth(canvas), measured.cx) << size << " " << weight;
            EXPECT_GE(DrawnWidth(canvas) + kMostOver, measured.cx) << size << " " << weight;
        }
    }
}

} // namespace
