#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// Colours as the picker shows them; 0x00BBGGRR, of which the high byte never counts.

// Hue in degrees; saturation and lightness from 0 to kFullShade. Half the lightness is the pure
// colour.
struct HueShade {
    int hue;
    int saturation;
    int lightness;
};

inline constexpr int kFullCircle = 360;
inline constexpr int kFullShade = 240;

// For a hue below kFullCircle.
[[nodiscard]] uint32_t ColourOf(const HueShade& shade);

// Where a hue below kFullCircle lies: in one of six sectors, and how much its middle component has
// of the way from the lowest to the highest, from 0 to kHueSector.
struct HuePlace {
    int sector;
    int middle;
};
inline constexpr int kHueSector = kFullCircle / 6;
[[nodiscard]] HuePlace PlaceOf(int hue);

// The colours of all hues of one saturation and lightness, each as by ColourOf. Made for drawing
// many: they cost no division, which the device's processors do slowly.
class HueRow {
  public:
    HueRow(int saturation, int lightness);
    [[nodiscard]] uint32_t At(HuePlace place) const;

  private:
    uint32_t middles_[kHueSector + 1];
};

// What a grey, black or white leaves open is as in `previous`.
[[nodiscard]] HueShade HueShadeOf(uint32_t colour, const HueShade& previous);

// Red 0, green 1, blue 2.
[[nodiscard]] uint32_t Component(uint32_t colour, int index);
[[nodiscard]] uint32_t WithComponent(uint32_t colour, int index, uint32_t value);

// Three pairs of hexadecimal digits: red, green, blue. A "#" before them is passed over; anything
// less or more is no colour.
[[nodiscard]] std::optional<uint32_t> ColourFromHtml(std::wstring_view text);
