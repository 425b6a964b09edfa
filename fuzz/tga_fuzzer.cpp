#include "files/tga_image.h"
#include "fuzz/fuzzing.h"

namespace {

// Raw, 32 bits, the upper left corner first: what every image reads back from as itself.
std::vector<uint8_t> AsFile(const PixelImage& image) {
    std::vector<uint8_t> file(18);
    file[2] = 2;
    file[12] = static_cast<uint8_t>(image.width);
    file[13] = static_cast<uint8_t>(image.width >> 8);
    file[14] = static_cast<uint8_t>(image.height);
    file[15] = static_cast<uint8_t>(image.height >> 8);
    file[16] = 32;
    file[17] = 0x28;
    for (const uint32_t pixel : image.pixels) {
        for (unsigned shift = 0; shift < 32; shift += 8)
            file.push_back(static_cast<uint8_t>(pixel >> shift));
    }
    return file;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // Of exactly its size, so that a look behind its end shows.
    const std::vector<uint8_t> file(data, data + size);
    const auto image = ReadTga(file);
    if (!image) return 0;
    Require(image->pixels.size() == size_t{image->width} * image->height, "all pixels are there");
    Require(image->pixels.size() <= 128 * size, "no more pixels than the input can say");
    const auto again = ReadTga(AsFile(*image));
    Require(again && again->width == image->width && again->pixels == image->pixels,
            "what was read is kept");
    return 0;
}
