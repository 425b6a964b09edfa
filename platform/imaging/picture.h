#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include <imaging.h>

constexpr UINT kMaxPictureSide = 16384;
constexpr std::size_t kMaxPicturePixels = 16U << 20;

// Straight (not premultiplied) ARGB pixels, the top row first. Empty, without pixels, until
// allocated.
struct Picture {
    UINT width = 0;
    UINT height = 0;
    double xDpi = 96;
    double yDpi = 96;
    GUID fileFormat = {};
    std::unique_ptr<std::uint32_t[]> pixels;

    [[nodiscard]] std::size_t PixelCount() const { return std::size_t{width} * height; }
    [[nodiscard]] bool HasAlpha() const;
};

// A picture of that size with undefined pixels; empty when the size is 0 or beyond the limits, or
// there is no memory.
[[nodiscard]] Picture AllocatePicture(UINT width, UINT height);

// The part `area` (in pixels, inside the picture) in another size: averaged where it shrinks unless
// `nearest`, repeated where it grows. Empty as AllocatePicture.
[[nodiscard]] Picture ScalePicture(const Picture& picture, const RECT& area, UINT width,
                                   UINT height, bool nearest);

// A pixel with its colours multiplied by its alpha.
[[nodiscard]] std::uint32_t Premultiply(std::uint32_t argb);

// Bytes that a pixel takes in that format; 0 for formats that pixels cannot be written in.
[[nodiscard]] UINT BytesPerPixel(PixelFormatID format);

// Writes a row in such a format; formats without alpha drop it.
void WriteRow(const std::uint32_t* row, UINT width, PixelFormatID format, BYTE* out);
