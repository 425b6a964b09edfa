#include "picture.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace {

constexpr std::uint32_t Channel(std::uint32_t argb, unsigned shift) {
    return argb >> shift & 0xFF;
}
constexpr std::uint32_t Alpha(std::uint32_t argb) {
    return argb >> 24;
}

// Where the pixels of a span of `to` come from in a span of `from` that starts at `start`.
struct Range {
    UINT begin, end;
};
Range SourceRange(UINT index, UINT from, UINT to, LONG start) {
    const auto scaled = [&](UINT i) {
        return static_cast<UINT>(std::uint64_t{i} * from / to) + static_cast<UINT>(start);
    };
    return {scaled(index), std::max(scaled(index + 1), scaled(index) + 1)};
}

// Colours count by their alpha, so that what is transparent does not darken an edge.
std::uint32_t Average(const Picture& picture, Range columns, Range rows) {
    std::array<std::uint64_t, 3> colors = {};
    std::uint64_t alpha = 0;
    for (UINT y = rows.begin; y < rows.end; ++y) {
        for (UINT x = columns.begin; x < columns.end; ++x) {
            const std::uint32_t pixel = picture.pixels[std::size_t{y} * picture.width + x];
            alpha += Alpha(pixel);
            for (unsigned i = 0; i < 3; ++i)
                colors[i] += std::uint64_t{Channel(pixel, 8 * i)} * Alpha(pixel);
        }
    }
    if (alpha == 0) return 0;
    const std::uint64_t count =
        std::uint64_t{columns.end - columns.begin} * (rows.end - rows.begin);
    auto result = static_cast<std::uint32_t>((alpha + count / 2) / count) << 24;
    for (unsigned i = 0; i < 3; ++i)
        result |= static_cast<std::uint32_t>((colors[i] + alpha / 2) / alpha) << (8 * i);
    return result;
}

std::uint32_t ToRgb565(std::uint32_t argb) {
    return Channel(argb, 16) >> 3 << 11 | Channel(argb, 8) >> 2 << 5 | Channel(argb, 0) >> 3;
}

// The bytes of a pixel, low byte first.
std::uint32_t Encode(std::uint32_t argb, PixelFormatID format) {
    switch (format) {
    case PixelFormat16bppRGB565:
        return ToRgb565(argb);
    case PixelFormat32bppPARGB:
        return Premultiply(argb);
    case PixelFormat32bppARGB:
        return argb;
    default:
        return argb & 0x00FFFFFF;
    }
}

} // namespace

bool Picture::HasAlpha() const {
    return std::any_of(pixels.get(), pixels.get() + PixelCount(),
                       [](std::uint32_t pixel) { return Alpha(pixel) != 0xFF; });
}

Picture AllocatePicture(UINT width, UINT height) {
    Picture picture;
    if (width == 0 || height == 0 || width > kMaxPictureSide || height > kMaxPictureSide ||
        std::size_t{width} * height > kMaxPicturePixels)
        return picture;
    picture.width = width;
    picture.height = height;
    picture.pixels.reset(new (std::nothrow) std::uint32_t[picture.PixelCount()]);
    return picture;
}

Picture ScalePicture(const Picture& picture, const RECT& area, UINT width, UINT height,
                     bool nearest) {
    Picture scaled = AllocatePicture(width, height);
    if (!scaled.pixels) return scaled;
    const UINT areaWidth = static_cast<UINT>(area.right - area.left);
    const UINT areaHeight = static_cast<UINT>(area.bottom - area.top);
    std::uint32_t* out = scaled.pixels.get();
    for (UINT y = 0; y < height; ++y) {
        const Range rows = SourceRange(y, areaHeight, height, area.top);
        for (UINT x = 0; x < width; ++x) {
            const Range columns = SourceRange(x, areaWidth, width, area.left);
            *out++ = nearest
                         ? picture.pixels[std::size_t{rows.begin} * picture.width + columns.begin]
                         : Average(picture, columns, rows);
        }
    }
    return scaled;
}

std::uint32_t Premultiply(std::uint32_t argb) {
    const std::uint32_t alpha = Alpha(argb);
    std::uint32_t result = alpha << 24;
    for (unsigned shift = 0; shift < 24; shift += 8)
        result |= (Channel(argb, shift) * alpha + 127) / 255 << shift;
    return result;
}

UINT BytesPerPixel(PixelFormatID format) {
    switch (format) {
    case PixelFormat16bppRGB565:
        return 2;
    case PixelFormat24bppRGB:
        return 3;
    case PixelFormat32bppRGB:
    case PixelFormat32bppARGB:
    case PixelFormat32bppPARGB:
        return 4;
    default:
        return 0;
    }
}

void WriteRow(const std::uint32_t* row, UINT width, PixelFormatID format, BYTE* out) {
    const UINT size = BytesPerPixel(format);
    for (UINT x = 0; x < width; ++x, out += size) {
        const std::uint32_t pixel = Encode(row[x], format);
        std::memcpy(out, &pixel, size);
    }
}
