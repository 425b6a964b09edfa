#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "shell/services/font_holder.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "shell/services/wide_string.h"

namespace {

TEST(WideStringFormat, FormatsWideTextsAndNumbersAndCutsWhatDoesNotFit) {
    WideString text;
    text.Format(L"[%s] %d %u %ld %02X%%", L"w\u00E4\u4E00", -1, 4294967295U, -5L, 10);
    EXPECT_STREQ(text.CStr(), L"[w\u00E4\u4E00] -1 4294967295 -5 0A%");
    text.Format(L"%s\\%s", text.CStr(), L"100%s");
    EXPECT_STREQ(text.CStr(), L"[w\u00E4\u4E00] -1 4294967295 -5 0A%\\100%s");
    for (const size_t length : {0U, 1022U, 1023U, 1024U, 5000U}) {
        const std::wstring argument(length, L'y');
        text.Format(L"%s", argument.c_str());
        EXPECT_EQ(text.CStr(), argument.substr(0, 1023)) << length;
    }
}

TEST(Scaling, OnlyTheFirstCallFixesTheMode) {
    SetVgaMode(false);
    SetVgaMode(true);
    HDC screen = GetDC(nullptr);
    EXPECT_EQ(Scale(16), ScaleBy({.density = GetDeviceCaps(screen, LOGPIXELSX)}, 16));
    EXPECT_EQ(ScaleY(160), ScaleBy({.density = GetDeviceCaps(screen, LOGPIXELSY)}, 160));
    ReleaseDC(nullptr, screen);
}

int cataloguesAsked = 0;

LOGFONT NumberedFont(int fontId) {
    ++cataloguesAsked;
    LOGFONT font = {};
    font.lfHeight = 100 + fontId;
    return font;
}

LONG HeightOf(HFONT font) {
    LOGFONT description = {};
    GetObject(font, sizeof description, &description);
    return description.lfHeight;
}

TEST(FontHolder, MakesItsFontOnFirstUseAndKeepsIt) {
    FontHolder holder;
    holder.Init(3);
    SetFontCatalogue(NumberedFont);
    EXPECT_EQ(cataloguesAsked, 0);

    const HFONT font = holder.Get();
    EXPECT_EQ(HeightOf(font), 103);
    EXPECT_EQ(holder.Get(), font);
    EXPECT_EQ(cataloguesAsked, 1);

    holder.Release();
    EXPECT_EQ(HeightOf(font), 0) << "the font outlived its release";
    EXPECT_EQ(HeightOf(holder.Get()), 103);
    holder.Init(5);
    EXPECT_EQ(HeightOf(holder.Get()), 105);
    SetFontCatalogue(nullptr);
}

int closed = 0;
void CloseNumber(int) {
    ++closed;
}

TEST(UniqueHandle, ClosesOnceAndHandsOver) {
    using Number = UniqueHandle<int, CloseNumber>;
    closed = 0;
    {
        Number first(1);
        Number second(std::move(first));
        EXPECT_FALSE(first);
        EXPECT_EQ(second.Get(), 1);
        second.Reset(2);
        EXPECT_EQ(closed, 1);
        *second.Receive() = 3;
        EXPECT_EQ(closed, 2);
        first = std::move(second);
        Number& same = first;
        first = std::move(same);
        EXPECT_EQ(first.Get(), 3);
        EXPECT_EQ(closed, 2);
        EXPECT_EQ(Number(4).Release(), 4);
        EXPECT_EQ(closed, 2);
    }
    EXPECT_EQ(closed, 3);
}

} // namespace
