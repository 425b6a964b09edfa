#include "files/tga_image.h"

namespace {

constexpr size_t kHeaderSize = 18;
constexpr uint8_t kTrueColour = 2;
constexpr uint8_t kTrueColourRuns = 10;
// Of the descriptor byte.
constexpr uint8_t kAlphaBits = 0x0F;
constexpr uint8_t kFromRight = 0x10;
constexpr uint8_t kFromTop = 0x20;
constexpr uint8_t kInterleaving = 0xC0;
// Of a packet's first byte.
constexpr uint8_t kIsRun = 0x80;
constexpr size_t kLongestPacket = 128; // Pixels.

struct TgaHeader {
    uint32_t width;
    uint32_t height;
    size_t pixelSize; // Bytes.
    size_t firstPixel;
    bool hasRuns;
    uint8_t descriptor;
};

uint32_t WordAt(std::span<const uint8_t> file, size_t place) {
    return file[place] | static_cast<uint32_t>(file[place + 1]) << 8;
}

std::optional<TgaHeader> ReadHeader(std::span<const uint8_t> file) {
    if (file.size() < kHeaderSize) return std::nullopt;
    const uint8_t kind = file[2];
    const uint8_t bits = file[16];
    if ((kind != kTrueColour && kind != kTrueColourRuns) || (bits != 24 && bits != 32))
        return std::nullopt;
    // Lines that are not one after the other, as long-forgotten programs wrote them.
    if (file[17] & kInterleaving) return std::nullopt;
    // True colours need no palette, but one may stand before them all the same.
    const bool hasPalette = file[1] == 1;
    const size_t paletteSize = hasPalette ? WordAt(file, 5) * ((file[7] + 7U) / 8) : 0;
    const size_t textSize = file[0];
    return TgaHeader{.width = WordAt(file, 12),
                     .height = WordAt(file, 14),
                     .pixelSize = bits / 8U,
                     .firstPixel = kHeaderSize + textSize + paletteSize,
                     .hasRuns = kind == kTrueColourRuns,
                     .descriptor = file[17]};
}

bool IsSizeSound(uint32_t side) {
    return side > 0 && side <= kMaxImageSide;
}

// Whether so many pixels can come from so many bytes at all; nothing is allocated before.
bool CanHold(const TgaHeader& header, size_t byteCount) {
    const size_t count = size_t{header.width} * header.height;
    if (!header.hasRuns) return byteCount / header.pixelSize >= count;
    const size_t packets = (count + kLongestPacket - 1) / kLongestPacket;
    return byteCount / (1 + header.pixelSize) >= packets;
}

// Places the pixels of a file, in the file's order, in the image.
class PixelPlacer {
  public:
    PixelPlacer(const TgaHeader& header, PixelImage& image)
        : header_(header), image_(image), left_(image.pixels.size()) {}

    [[nodiscard]] size_t Left() const { return left_; }
    void Put(const uint8_t* bytes);

  private:
    const TgaHeader& header_;
    PixelImage& image_;
    size_t left_;
    uint32_t x_ = 0;
    uint32_t y_ = 0;
};

void PixelPlacer::Put(const uint8_t* bytes) {
    const bool hasAlpha = header_.pixelSize == 4 && (header_.descriptor & kAlphaBits) != 0;
    const uint32_t alpha = hasAlpha ? bytes[3] : 0xFFU;
    const uint32_t column = header_.descriptor & kFromRight ? image_.width - 1 - x_ : x_;
    const uint32_t row = header_.descriptor & kFromTop ? y_ : image_.height - 1 - y_;
    image_.pixels[size_t{row} * image_.width + column] =
        alpha << 24 | static_cast<uint32_t>(bytes[2]) << 16 | static_cast<uint32_t>(bytes[1]) << 8 |
        bytes[0];
    --left_;
    if (++x_ < image_.width) return;
    x_ = 0;
    ++y_;
}

void PlaceRaw(std::span<const uint8_t> bytes, size_t pixelSize, PixelPlacer& placer) {
    for (const uint8_t* pixel = bytes.data(); placer.Left() > 0; pixel += pixelSize)
        placer.Put(pixel);
}

// False when the bytes end before the picture does, or a packet reaches beyond the picture.
bool PlaceRuns(std::span<const uint8_t> bytes, size_t pixelSize, PixelPlacer& placer) {
    while (placer.Left() > 0) {
        if (bytes.empty()) return false;
        const bool isRun = (bytes[0] & kIsRun) != 0;
        const size_t count = (bytes[0] & ~kIsRun) + size_t{1};
        const size_t size = 1 + (isRun ? 1 : count) * pixelSize;
        if (size > bytes.size() || count > placer.Left()) return false;
        for (size_t index = 0; index < count; ++index)
            placer.Put(bytes.data() + 1 + (isRun ? 0 : index * pixelSize));
        bytes = bytes.subspan(size);
    }
    return true;
}

} // namespace

std::optional<PixelImage> ReadTga(std::span<const uint8_t> file) {
    const std::optional<TgaHeader> header = ReadHeader(file);
    if (!header || !IsSizeSound(header->width) || !IsSizeSound(header->height) ||
        header->firstPixel > file.size())
        return std::nullopt;
    const std::span<const uint8_t> bytes = file.subspan(header->firstPixel);
    if (!CanHold(*header, bytes.size())) return std::nullopt;
    PixelImage image{header->width, header->height, {}};
    image.pixels.resize(size_t{image.width} * image.height);
    PixelPlacer placer(*header, image);
    if (!header->hasRuns)
        PlaceRaw(bytes, header->pixelSize, placer);
    else if (!PlaceRuns(bytes, header->pixelSize, placer))
        return std::nullopt;
    return image;
}
