#include "files/image_loader.h"

#include <imaging.h>

#include <cwchar>
#include <optional>
#include <vector>

#include "files/file_stream.h"
#include "files/tga_image.h"
#include "shell/services/application.h"

namespace {

// A raw picture of the largest size, with its header, comment and palette.
constexpr size_t kMaxTgaFile = size_t{4} * kMaxImageSide * kMaxImageSide + 0x10000;

constexpr uint32_t kWhite = 0x00FFFFFF;
// The white of what is not clear, by so much darker that it differs on a screen of 16 bits as well.
constexpr uint32_t kNearlyWhite = 0x00F8F8F8;

// A pixel (0xAARRGGBB) as it looks on white.
uint32_t OverWhite(uint32_t pixel) {
    const uint32_t alpha = pixel >> 24;
    if (alpha == 0) return kWhite;
    uint32_t laid = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        const uint32_t channel = pixel >> shift & 0xFF;
        laid |= ((channel * alpha + 0xFF * (0xFF - alpha) + 127) / 255) << shift;
    }
    return laid == kWhite ? kNearlyWhite : laid;
}

// Pixels of an open picture, 32 bits each and the upper row first.
struct PixelRows {
    uint32_t width;
    uint32_t height;
    const uint8_t* first;
    ptrdiff_t stride; // Bytes from a row to the next.

    [[nodiscard]] const uint32_t* Row(uint32_t y) const {
        const void* row = first + stride * y; // Aligned as pixels are.
        return static_cast<const uint32_t*>(row);
    }
};

UniqueBitmap MakeBitmap(const PixelRows& rows) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = static_cast<LONG>(rows.width);
    info.bmiHeader.biHeight = -static_cast<LONG>(rows.height);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap) return bitmap;
    auto* pixel = static_cast<uint32_t*>(bits);
    for (uint32_t y = 0; y < rows.height; ++y) {
        const uint32_t* row = rows.Row(y);
        for (uint32_t x = 0; x < rows.width; ++x)
            *pixel++ = OverWhite(row[x]);
    }
    return bitmap;
}

// Holds a COM object for a scope.
template <typename Interface>
class ComScope {
  public:
    ComScope() = default;
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;
    ~ComScope() {
        if (object_) object_->Release();
    }
    Interface** Receive() { return &object_; }
    [[nodiscard]] Interface* Get() const { return object_; }
    Interface* operator->() const { return object_; }

  private:
    Interface* object_ = nullptr;
};

bool IsSizeSound(UINT width, UINT height) {
    return width > 0 && height > 0 && width <= kMaxImageSide && height <= kMaxImageSide;
}

UniqueBitmap LoadPng(const wchar_t* path) {
    IImagingFactory* factory = application.imagingFactory;
    ComScope<IImage> image;
    ComScope<IBitmapImage> pixels;
    ImageInfo info{};
    // The size is asked first: the pixels of a huge picture are never made.
    if (!factory || FAILED(factory->CreateImageFromFile(path, image.Receive())) ||
        FAILED(image->GetImageInfo(&info)) || !IsSizeSound(info.Width, info.Height) ||
        FAILED(factory->CreateBitmapFromImage(image.Get(), info.Width, info.Height,
                                              PixelFormat32bppARGB, InterpolationHintDefault,
                                              pixels.Receive())))
        return UniqueBitmap();
    BitmapData data{};
    if (FAILED(pixels->LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data)))
        return UniqueBitmap();
    UniqueBitmap bitmap =
        MakeBitmap({data.Width, data.Height, static_cast<const uint8_t*>(data.Scan0), data.Stride});
    pixels->UnlockBits(&data);
    return bitmap;
}

// The bytes of a file as far as the limit, and one more of a file that is longer.
std::vector<uint8_t> ReadBytes(FileSource& file, size_t limit) {
    constexpr size_t kStep = 8192;
    std::vector<uint8_t> bytes;
    size_t size = 0;
    for (size_t count = 1; count > 0 && size <= limit; size += count) {
        bytes.resize(size + kStep);
        count = file.Read(bytes.data() + size, kStep);
    }
    bytes.resize(size);
    return bytes;
}

UniqueBitmap LoadTga(const wchar_t* path) {
    FileSource file(path);
    if (!file.IsOpen()) return UniqueBitmap();
    const std::vector<uint8_t> bytes = ReadBytes(file, kMaxTgaFile);
    if (bytes.size() > kMaxTgaFile) return UniqueBitmap();
    const std::optional<PixelImage> image = ReadTga(bytes);
    if (!image) return UniqueBitmap();
    return MakeBitmap({image->width, image->height,
                       reinterpret_cast<const uint8_t*>(image->pixels.data()),
                       static_cast<ptrdiff_t>(image->width * sizeof(uint32_t))});
}

} // namespace

UniqueBitmap LoadImageFile(const wchar_t* path) {
    const wchar_t* extension = wcsrchr(path, L'.');
    if (!extension) return UniqueBitmap();
    if (_wcsicmp(extension, L".png") == 0) return LoadPng(path);
    if (_wcsicmp(extension, L".tga") == 0) return LoadTga(path);
    if (_wcsicmp(extension, L".bmp") == 0) return UniqueBitmap(SHLoadDIBitmap(path));
    return UniqueBitmap();
}
