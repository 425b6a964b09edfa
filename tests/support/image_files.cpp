#include "tests/support/image_files.h"

#include "shell/services/handles.h"

namespace {

// A number as files hold it, the low byte first.
std::string Number(uint32_t number, size_t size) {
    std::string bytes;
    for (size_t place = 0; place < size; ++place)
        bytes.push_back(static_cast<char>(number >> (8 * place)));
    return bytes;
}

std::string BlueGreenRed(COLORREF colour) {
    return {static_cast<char>(GetBValue(colour)), static_cast<char>(GetGValue(colour)),
            static_cast<char>(GetRValue(colour))};
}

std::string TgaHeader(uint16_t width, uint16_t height, char bits, char descriptor) {
    std::string header(18, '\0');
    header[2] = 2;
    header.replace(12, 4, Number(width, 2) + Number(height, 2));
    header[16] = bits;
    header[17] = descriptor;
    return header;
}

} // namespace

std::string BmpFile(uint16_t width, uint16_t height, COLORREF colour) {
    std::string row;
    for (int x = 0; x < width; ++x)
        row += BlueGreenRed(colour);
    row.resize((row.size() + 3) / 4 * 4);
    const auto size = static_cast<uint32_t>(row.size() * height);
    std::string file = "BM" + Number(54 + size, 4) + Number(0, 4) + Number(54, 4) + Number(40, 4) +
                       Number(width, 4) + Number(height, 4) + Number(1, 2) + Number(24, 2) +
                       std::string(24, '\0');
    for (int y = 0; y < height; ++y)
        file += row;
    return file;
}

std::string TgaFile(uint16_t width, uint16_t height, COLORREF colour) {
    std::string file = TgaHeader(width, height, 24, 0);
    for (int pixel = 0; pixel < width * height; ++pixel)
        file += BlueGreenRed(colour);
    return file;
}

std::string TgaPixel(uint32_t argb) {
    return TgaHeader(1, 1, 32, 8) + Number(argb, 4);
}

std::string PngFile() {
    static const char bytes[] =
        "\x89PNG\x0D\x0A\x1A\x0A\x00\x00\x00\x0DIHDR\x00\x00\x00\x01\x00\x00\x00\x01\x08\x02\x00"
        "\x00\x00\x90wS\xDE\x00\x00\x00\x0CIDATx\x9C"
        "cPph\x00\x00\x01"
        "d\x00\xE1\xC7\x13\xC9\xF6\x00\x00\x00\x00IEND\xAE"
        "B`\x82";
    return {bytes, sizeof(bytes) - 1};
}

COLORREF PixelOf(HBITMAP bitmap, int x, int y) {
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const SelectScope selected(dc.Get(), bitmap);
    return GetPixel(dc.Get(), x, y);
}
