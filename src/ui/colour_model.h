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

// What a grey, black or white leaves open is as in `previous`.
[[nodiscard]] HueShade HueShadeOf(uint32_t colour, const HueShade& previous);

// Red 0, green 1, blue 2.
[[nodiscard]] uint32_t Component(uint32_t colour, int index);
[[nodiscard]] uint32_t WithComponent(uint32_t colour, int index, uint32_t value);

// Three pairs of hexadecimal digits: red, green, blue. A "#" before them is passed over; anything
// less or more is no colour.
[[nodiscard]] std::optional<uint32_t> ColourFromHtml(std::wstring_view text);
