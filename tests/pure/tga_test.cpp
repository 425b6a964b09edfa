#include "files/tga_image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint8_t kRaw = 2;
constexpr uint8_t kRuns = 10;

struct Header {
    uint8_t kind = kRaw;
    unsigned width = 2;
    unsigned height = 2;
    uint8_t bits = 24;
    uint8_t descriptor = 0;
    uint8_t textSize = 0;
    uint8_t paletteKind = 0;
    uint8_t paletteLength = 0;
};

Bytes File(const Header& header, const Bytes& rest) {
    Bytes file(18 + rest.size());
    file[0] = header.textSize;
    file[1] = header.paletteKind;
    file[2] = header.kind;
    file[5] = header.paletteLength;
    file[7] = 15; // Bits of a palette's colour: two bytes.
    file[12] = static_cast<uint8_t>(header.width);
    file[13] = static_cast<uint8_t>(header.width >> 8);
    file[14] = static_cast<uint8_t>(header.height);
    file[15] = static_cast<uint8_t>(header.height >> 8);
    file[16] = header.bits;
    file[17] = header.descriptor;
    std::copy(rest.begin(), rest.end(), file.begin() + 18);
    return file;
}

// The image's pixels, a letter each: the red of "a" is 1.
std::string Read(const Bytes& file) {
    const auto image = ReadTga(file);
    if (!image) return "refused";
    std::string letters;
    for (const uint32_t pixel : image->pixels)
        letters += static_cast<char>('a' - 1 + (pixel >> 16 & 0xFF));
    return letters;
}

const Bytes kFourPixels = {0, 0, 1, 0, 0, 2, 0, 0, 3, 0, 0, 4};

TEST(Tga, StartsAtAnyCorner) {
    EXPECT_EQ(Read(File({.descriptor = 0x00}, kFourPixels)), "cdab");
    EXPECT_EQ(Read(File({.descriptor = 0x10}, kFourPixels)), "dcba");
    EXPECT_EQ(Read(File({.descriptor = 0x20}, kFourPixels)), "abcd");
    EXPECT_EQ(Read(File({.descriptor = 0x30}, kFourPixels)), "badc");
}

TEST(Tga, ReadsColoursAndAlpha) {
    const Bytes pixel = {0x11, 0x22, 0x33, 0x44};
    const Header one{.width = 1, .height = 1, .bits = 32};
    Header withAlpha = one;
    withAlpha.descriptor = 8;
    EXPECT_EQ(ReadTga(File(withAlpha, pixel))->pixels[0], 0x44332211U);
    EXPECT_EQ(ReadTga(File(one, pixel))->pixels[0], 0xFF332211U) << "the fourth byte is no alpha";
    EXPECT_EQ(ReadTga(File({.width = 1, .height = 1}, pixel))->pixels[0], 0xFF332211U);
}

TEST(Tga, ReadsRunsAcrossLines) {
    const Header runs{.kind = kRuns, .width = 2, .height = 3, .descriptor = 0x20};
    EXPECT_EQ(Read(File(runs, {0x82, 0, 0, 1, 0x01, 0, 0, 2, 0, 0, 3, 0x80, 0, 0, 4})), "aaabcd");
    EXPECT_EQ(Read(File(runs, {0x82, 0, 0, 1, 0x83, 0, 0, 2})), "refused") << "one pixel too many";
    EXPECT_EQ(Read(File(runs, {0x82, 0, 0, 1, 0x01, 0, 0, 2, 0, 0, 3})), "refused");
}

TEST(Tga, SkipsTextAndPalette) {
    Bytes rest = {'h', 'i', 7, 7, 7, 7, 7, 7};
    rest.insert(rest.end(), kFourPixels.begin(), kFourPixels.end());
    const Header header{.descriptor = 0x20, .textSize = 2, .paletteKind = 1, .paletteLength = 3};
    EXPECT_EQ(Read(File(header, rest)), "abcd");
}

TEST(Tga, RefusesWhatItCannotRead) {
    for (const Header& header : {Header{.kind = 1}, Header{.kind = 9}, Header{.bits = 16},
                                 Header{.width = 0}, Header{.descriptor = 0x40}}) {
        EXPECT_EQ(Read(File(header, kFourPixels)), "refused") << int{header.kind};
    }
    const Bytes whole = File({.textSize = 1}, {'t', 0, 0, 1, 0, 0, 2, 0, 0, 3, 0, 0, 4});
    for (size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(Read(Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size))),
                  "refused")
            << size;
    EXPECT_EQ(Read(whole), "cdab");
}

// A header is quickly written; what it claims must stand behind it.
TEST(Tga, RefusesHugeClaims) {
    for (const uint8_t kind : {kRaw, kRuns}) {
        EXPECT_EQ(Read(File({.kind = kind, .width = 1024, .height = 1024}, Bytes(1000))),
                  "refused");
    }
    EXPECT_EQ(Read(File({.width = 1025, .height = 1}, Bytes(3 * 1025, 1))), "refused");
    EXPECT_EQ(Read(File({.width = 1024, .height = 1}, Bytes(3 * 1024, 1))), std::string(1024, 'a'));
}

} // namespace
