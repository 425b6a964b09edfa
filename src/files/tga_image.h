#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// The pixels of a picture, row by row from its upper left corner: 0xAARRGGBB, with the colours not
// multiplied by alpha.
struct PixelImage {
    uint32_t width = 0;
    uint32_t height = 0;
    std::vector<uint32_t> pixels;
};

// Larger pictures, in pixels a side, are refused: symbols are a few dozen pixels wide, and a device
// of 64 MB must not spend itself on one that claims to be huge.
inline constexpr uint32_t kMaxImageSide = 1024;

// Reads a TGA file of 24 or 32 bits a pixel, raw or run-length encoded, whichever of its corners
// comes first. None for another kind, a damaged or truncated file, and a picture that is too large.
// A file that does not say how many of its 32 bits are alpha is opaque.
[[nodiscard]] std::optional<PixelImage> ReadTga(std::span<const uint8_t> file);
