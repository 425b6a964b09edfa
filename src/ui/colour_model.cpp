#include "ui/colour_model.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int kByte = 255;
constexpr int kSector = kFullCircle / 6;
constexpr int kComponents = 3;
constexpr int kBitsPerByte = 8;

uint32_t ByteOf(int doubledLevel) {
    return static_cast<uint32_t>((doubledLevel * kByte + kFullShade) / (2 * kFullShade));
}

int HexDigit(wchar_t digit) {
    if (digit >= L'0' && digit <= L'9') return digit - L'0';
    if (digit >= L'a' && digit <= L'f') return digit - L'a' + 10;
    if (digit >= L'A' && digit <= L'F') return digit - L'A' + 10;
    return -1;
}

// Of a colour whose components differ by `spread`.
int HueOf(int red, int green, int blue, int spread) {
    int offset = 0;
    int base = 0;
    if (red >= green && red >= blue) {
        offset = green - blue;
    } else if (green >= blue) {
        offset = blue - red;
        base = 2 * kSector;
    } else {
        offset = red - green;
        base = 4 * kSector;
    }
    const int rounded = (offset * kSector + (offset < 0 ? -spread : spread) / 2) / spread;
    return (base + rounded + kFullCircle) % kFullCircle;
}
} // namespace

uint32_t ColourOf(const HueShade& shade) {
    // Levels are doubled, so that half a spread stays whole.
    const int spread =
        (kFullShade - std::abs(2 * shade.lightness - kFullShade)) * shade.saturation / kFullShade;
    const int lowest = 2 * shade.lightness - spread;
    const int within = shade.hue % (2 * kSector);
    const int second = 2 * spread * (kSector - std::abs(within - kSector)) / kSector;
    const uint32_t high = ByteOf(lowest + 2 * spread);
    const uint32_t middle = ByteOf(lowest + second);
    const uint32_t low = ByteOf(lowest);
    const uint32_t sectors[6][kComponents] = {{high, middle, low}, {middle, high, low},
                                              {low, high, middle}, {low, middle, high},
                                              {middle, low, high}, {high, low, middle}};
    const auto& [red, green, blue] = sectors[shade.hue / kSector];
    return red | green << kBitsPerByte | blue << 2 * kBitsPerByte;
}

HueShade HueShadeOf(uint32_t colour, const HueShade& previous) {
    const auto red = static_cast<int>(Component(colour, 0));
    const auto green = static_cast<int>(Component(colour, 1));
    const auto blue = static_cast<int>(Component(colour, 2));
    const int highest = std::max({red, green, blue});
    const int lowest = std::min({red, green, blue});
    const int spread = highest - lowest;
    const int sum = highest + lowest;
    HueShade shade = previous;
    shade.lightness = (sum * kFullShade + kByte) / (2 * kByte);
    if (sum == 0 || sum == 2 * kByte) return shade;
    const int widest = sum <= kByte ? sum : 2 * kByte - sum;
    shade.saturation = (2 * spread * kFullShade + widest) / (2 * widest);
    if (spread > 0) shade.hue = HueOf(red, green, blue, spread);
    return shade;
}

uint32_t Component(uint32_t colour, int index) {
    return colour >> index * kBitsPerByte & kByte;
}

uint32_t WithComponent(uint32_t colour, int index, uint32_t value) {
    const int shift = index * kBitsPerByte;
    return (colour & 0xFFFFFF & ~(uint32_t{kByte} << shift)) | (value & kByte) << shift;
}

std::optional<uint32_t> ColourFromHtml(std::wstring_view text) {
    if (!text.empty() && text.front() == L'#') text.remove_prefix(1);
    if (text.size() != size_t{2} * kComponents) return std::nullopt;
    uint32_t colour = 0;
    for (int i = 0; i < kComponents; ++i) {
        const int high = HexDigit(text[0]);
        const int low = HexDigit(text[1]);
        text.remove_prefix(2);
        if (high < 0 || low < 0) return std::nullopt;
        colour = WithComponent(colour, i, static_cast<uint32_t>(high * 16 + low));
    }
    return colour;
}
