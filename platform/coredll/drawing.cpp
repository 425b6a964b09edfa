#include "file_bytes.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <span>

namespace {

constexpr LONG kMaxPictureSide = 16384;
constexpr std::size_t kMaxBitmapFile = 64U << 20;

// A memory context on a bitmap; false when another context holds the bitmap.
class BitmapDc {
  public:
    explicit BitmapDc(HBITMAP bitmap)
        : dc_(CreateCompatibleDC(nullptr)), holdsBitmap_(dc_ && SelectObject(dc_, bitmap)) {}
    BitmapDc(const BitmapDc&) = delete;
    BitmapDc& operator=(const BitmapDc&) = delete;
    ~BitmapDc() {
        if (dc_) DeleteDC(dc_);
    }

    explicit operator bool() const { return holdsBitmap_; }
    [[nodiscard]] HDC Get() const { return dc_; }

  private:
    HDC dc_;
    bool holdsBitmap_;
};

// 32-bit pixels that GDI draws to and that can be read.
class PixelCanvas {
  public:
    PixelCanvas(LONG width, LONG height)
        : bitmap_(Create(width, height, &bits_)),
          dc_(bitmap_.get()),
          count_(static_cast<std::size_t>(width) * height) {}

    explicit operator bool() const { return bitmap_ && dc_; }
    [[nodiscard]] HDC Dc() const { return dc_.Get(); }
    [[nodiscard]] std::span<DWORD> Pixels() const { return {static_cast<DWORD*>(bits_), count_}; }

  private:
    static HBITMAP Create(LONG width, LONG height, void** bits) {
        BITMAPINFO info = {};
        BITMAPINFOHEADER& header = info.bmiHeader;
        header.biSize = sizeof header;
        header.biWidth = width;
        header.biHeight = -height;
        header.biPlanes = 1;
        header.biBitCount = 32;
        return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, bits, nullptr, 0);
    }

    struct Delete {
        void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    };

    void* bits_ = nullptr;
    // Above the context that holds it, so that it goes after that.
    std::unique_ptr<std::remove_pointer_t<HBITMAP>, Delete> bitmap_;
    BitmapDc dc_;
    std::size_t count_;
};

constexpr DWORD kRgbMask = 0x00FFFFFF;

DWORD PixelOfColor(COLORREF color) {
    return static_cast<DWORD>(RGB(GetBValue(color), GetGValue(color), GetRValue(color)));
}

struct Area {
    LONG x, y, width, height;
};

bool IsDrawable(const Area& area) {
    return area.width > 0 && area.height > 0 && area.width <= kMaxPictureSide &&
           area.height <= kMaxPictureSide;
}

// Wine's TransparentBlt compares all 32 bits of a pixel, so that a picture whose fourth byte is
// not 0 keeps its background: hence an own mask, by colour alone.
BOOL DrawWithoutColor(HDC target, const Area& to, HDC source, const Area& from,
                      COLORREF transparent) {
    PixelCanvas picture(to.width, to.height);
    PixelCanvas result(to.width, to.height);
    if (!picture || !result) return FALSE;
    // Any other mode mixes the transparent colour into its neighbours.
    SetStretchBltMode(picture.Dc(), COLORONCOLOR);
    if (!StretchBlt(picture.Dc(), 0, 0, to.width, to.height, source, from.x, from.y, from.width,
                    from.height, SRCCOPY) ||
        !BitBlt(result.Dc(), 0, 0, to.width, to.height, target, to.x, to.y, SRCCOPY))
        return FALSE;
    GdiFlush();
    const DWORD left = PixelOfColor(transparent);
    std::ranges::transform(
        picture.Pixels(), result.Pixels(), result.Pixels().begin(),
        [left](DWORD pixel, DWORD below) { return (pixel & kRgbMask) == left ? below : pixel; });
    return BitBlt(target, to.x, to.y, to.width, to.height, result.Dc(), 0, 0, SRCCOPY);
}

// A .bmp file in memory, uncompressed, with all its parts inside the file.
class BitmapFile {
  public:
    explicit BitmapFile(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
        isWhole_ = ReadHeaders() && HeaderIsSound() && ReadColors() && HasAllPixels();
    }

    explicit operator bool() const { return isWhole_; }

    // Null when the system has no room for it.
    [[nodiscard]] HBITMAP CreateBitmap() const {
        void* bits = nullptr;
        const HBITMAP bitmap =
            CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info_), DIB_RGB_COLORS,
                             &bits, nullptr, 0);
        if (bitmap) std::memcpy(bits, bytes_.data() + file_.bfOffBits, PixelBytes());
        return bitmap;
    }

  private:
    // Colours of an indexed picture, or three masks.
    struct Info {
        BITMAPINFOHEADER header;
        DWORD colors[256];
    };

    bool Read(std::size_t offset, void* to, std::size_t size) const {
        if (offset > bytes_.size() || size > bytes_.size() - offset) return false;
        std::memcpy(to, bytes_.data() + offset, size);
        return true;
    }

    bool ReadHeaders() {
        return Read(0, &file_, sizeof file_) &&
               Read(sizeof file_, &info_.header, sizeof info_.header);
    }

    [[nodiscard]] bool HeaderIsSound() const {
        const BITMAPINFOHEADER& header = info_.header;
        const auto isOneOf = [](auto value, auto... choices) {
            return ((value == choices) || ...);
        };
        const bool hasMasks = header.biCompression == BI_BITFIELDS;
        return file_.bfType == 0x4D42 && header.biSize >= sizeof header && header.biPlanes == 1 &&
               header.biWidth > 0 && header.biWidth <= kMaxPictureSide && header.biHeight != 0 &&
               header.biHeight >= -kMaxPictureSide && header.biHeight <= kMaxPictureSide &&
               (hasMasks ? isOneOf(header.biBitCount, 16, 32)
                         : header.biCompression == BI_RGB &&
                               isOneOf(header.biBitCount, 1, 4, 8, 16, 24, 32));
    }

    // Later forms of the header are longer and hold the masks where the first form has them behind.
    bool ReadColors() {
        BITMAPINFOHEADER& header = info_.header;
        const std::size_t behind = sizeof file_ + std::size_t{header.biSize};
        const DWORD usedColors = header.biClrUsed;
        header.biSize = sizeof header;
        header.biSizeImage = 0;
        header.biClrUsed = 0;
        if (header.biCompression == BI_BITFIELDS)
            return Read(sizeof file_ + sizeof header, info_.colors, 3 * sizeof(DWORD));
        if (header.biBitCount > 8) return true;
        const DWORD most = 1U << header.biBitCount;
        header.biClrUsed = usedColors == 0 ? most : std::min(usedColors, most);
        return Read(behind, info_.colors, header.biClrUsed * sizeof(DWORD));
    }

    [[nodiscard]] std::size_t PixelBytes() const {
        const std::size_t rowBits = std::size_t{info_.header.biBitCount} * info_.header.biWidth;
        return (rowBits + 31) / 32 * 4 * std::abs(info_.header.biHeight);
    }

    [[nodiscard]] bool HasAllPixels() const {
        return file_.bfOffBits <= bytes_.size() && PixelBytes() <= bytes_.size() - file_.bfOffBits;
    }

    std::span<const std::uint8_t> bytes_;
    BITMAPFILEHEADER file_ = {};
    Info info_ = {};
    bool isWhole_;
};

} // namespace

extern "C" {

BOOL WINAPI TransparentImage(HDC target, LONG x, LONG y, LONG width, LONG height, HANDLE source,
                             LONG sourceX, LONG sourceY, LONG sourceWidth, LONG sourceHeight,
                             COLORREF transparent) {
    const Area to{x, y, width, height};
    const Area from{sourceX, sourceY, sourceWidth, sourceHeight};
    if (!IsDrawable(to) || !IsDrawable(from)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (GetObjectType(source) != OBJ_BITMAP)
        return DrawWithoutColor(target, to, static_cast<HDC>(source), from, transparent);
    const BitmapDc bitmap(static_cast<HBITMAP>(source));
    return bitmap && DrawWithoutColor(target, to, bitmap.Get(), from, transparent);
}

// Not by LoadImage: Wine's reads behind the end of a file that was cut off, and crashes.
HBITMAP WINAPI SHLoadDIBitmap(LPCWSTR path) {
    const auto bytes = ReadWholeFile(path, kMaxBitmapFile);
    if (!bytes) return nullptr;
    const BitmapFile file(*bytes);
    if (file) return file.CreateBitmap();
    SetLastError(ERROR_BAD_FORMAT);
    return nullptr;
}

} // extern "C"
