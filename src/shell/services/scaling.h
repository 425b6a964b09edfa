#pragma once

#include <cstdint>

// Display-density scaling of every measure. All measures in the program are given in units of a
// 96-dpi screen.

// Fixes the scaling for the process: double size when `doubleSize`, else by the screen's density.
// Only the first call counts.
void SetVgaMode(bool doubleSize);

// A horizontal or vertical measure in pixels, rounded to nearest, halves away from zero. With
// `onlyAboveThreshold`, a screen below 136 dpi keeps the measure as it is.
[[nodiscard]] int Scale(int value, bool onlyAboveThreshold = false);
[[nodiscard]] int ScaleY(int value, bool onlyAboveThreshold = false);

// How one direction of a screen is scaled.
struct ScalingRule {
    bool doubleSize = false;
    int density = 96; // dpi
};

// A measure times a density, in pixels.
template <typename Integer>
[[nodiscard]] constexpr int PixelsOf(Integer scaled) {
    return static_cast<int>(scaled >= 0 ? (scaled + 48) / 96 : -((48 - scaled) / 96));
}

// Measures may come from the registry, so any value must be safe: what exceeds an int wraps.
[[nodiscard]] constexpr int ScaleBy(ScalingRule rule, int value, bool onlyAboveThreshold = false) {
    constexpr int kThreshold = 136;
    if (rule.doubleSize) return static_cast<int>(int64_t{2} * value);
    if (onlyAboveThreshold && rule.density < kThreshold) return value;
    // The device's processors divide by a routine, 64 bits much more slowly than 32.
    constexpr int kSmall = 0x7FFF;
    const bool isSmall = value >= -kSmall && value <= kSmall && rule.density <= kSmall;
    return isSmall ? PixelsOf(value * rule.density) : PixelsOf(int64_t{value} * rule.density);
}
