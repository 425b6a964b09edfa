#include "ui/colour_model.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int kByte = 255;
constexpr int kComponents = 3;
constexpr int kBitsPerByte = 8;

// The components of a saturation and lightness, which only differ by hue. Levels are doubled, so
// that half a spread stays whole.
struct Levels {
    int lowest;
    int spread;

    // Of the component that is so many of kHueSector steps above the lowest.
    [[nodiscard]] uint32_t Byte(int steps) const {
        const int level = lowest + 2 * spread * steps / kHueSector;
        return static_cast<uint32_t>((level * kByte + kFullShade) / (2 * kFullShade));
    }
};

Levels LevelsOf(int saturation, int lightness) {
    const int spread =
        (kFullShade - std::abs(2 * lightness - kFullShade)) * saturation / kFullShade;
    return {2 * lightness - spread, spread};
}

// Which of the lowest (0), the middle and the highest component is red, green and blue, by sector.
constexpr uint8_t kOrders[6][kComponents] = {{2, 1, 0}, {1, 2, 0}, {0, 2, 1},
                                             {0, 1, 2}, {1, 0, 2}, {2, 0, 1}};

uint32_t Mix(int sector, uint32_t high, uint32_t middle, uint32_t low) {
    const uint32_t levels[] = {low, middle, high};
    const auto& [red, green, blue] = kOrders[sector];
    return levels[red] | levels[green] << kBitsPerByte | levels[blue] << 2 * kBitsPerByte;
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
        base = 2 * kHueSector;
    } else {
        offset = red - green;
        base = 4 * kHueSector;
    }
    const int rounded = (offset * kHueSector + (offset < 0 ? -spread : spread) / 2) / spread;
    return (base + rounded + kFullCircle) % kFullCircle;
}
} // namespace

uint32_t ColourOf(const HueShade& shade) {
    const Levels levels = LevelsOf(shade.saturation, shade.lightness);
    const HuePlace place = PlaceOf(shade.hue);
    return Mix(place.sector, levels.Byte(kHueSector), levels.Byte(place.middle), levels.Byte(0));
}

HuePlace PlaceOf(int hue) {
    const int within = hue % (2 * kHueSector);
    return {hue / kHueSector, kHueSector - std::abs(within - kHueSector)};
}

HueRow::HueRow(int saturation, int lightness) {
    const Levels levels = LevelsOf(saturation, lightness);
    for (int middle = 0; middle <= kHueSector; ++middle)
        middles_[middle] = levels.Byte(middle);
}

uint32_t HueRow::At(HuePlace place) const {
    return Mix(place.sector, middles_[kHueSector], middles_[place.middle], middles_[0]);
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
