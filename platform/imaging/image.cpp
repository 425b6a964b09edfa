#include "image.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kUnitsPerInch = 2540; // 0.01 mm

LONG ToUnits(UINT pixels, double dpi) {
    return std::lround(pixels * kUnitsPerInch / dpi);
}

// Inside 0 to `limit` whatever the units.
LONG ToPixels(LONG units, double dpi, UINT limit) {
    return std::lround(std::clamp(units * dpi / kUnitsPerInch, 0.0, double(limit)));
}

// A bitmap of the picture's pixels, premultiplied as AlphaBlend wants them; null without memory.
HBITMAP CreateBlendBitmap(const Picture& picture) {
    BITMAPINFO info = {};
    BITMAPINFOHEADER& header = info.bmiHeader;
    header.biSize = sizeof header;
    header.biWidth = static_cast<LONG>(picture.width);
    header.biHeight = -static_cast<LONG>(picture.height);
    header.biPlanes = 1;
    header.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap)
        std::transform(picture.pixels.get(), picture.pixels.get() + picture.PixelCount(),
                       static_cast<std::uint32_t*>(bits), Premultiply);
    return bitmap;
}

bool Blend(HDC dc, const RECT& target, HBITMAP bitmap, const Picture& picture) {
    const HDC source = CreateCompatibleDC(nullptr);
    if (!source) return false;
    const HGDIOBJ previous = SelectObject(source, bitmap);
    const BOOL drawn =
        AlphaBlend(dc, target.left, target.top, target.right - target.left,
                   target.bottom - target.top, source, 0, 0, static_cast<int>(picture.width),
                   static_cast<int>(picture.height), {AC_SRC_OVER, 0, 0xFF, AC_SRC_ALPHA});
    SelectObject(source, previous);
    DeleteDC(source);
    return drawn;
}

} // namespace

HRESULT Image::QueryInterface(REFIID id, void** object) {
    if (id != kImageClassId) return ComObject::QueryInterface(id, object);
    *object = this;
    AddRef();
    return S_OK;
}

HRESULT Image::GetPhysicalDimension(SIZE* size) {
    if (!size) return E_INVALIDARG;
    *size = {ToUnits(picture_.width, picture_.xDpi), ToUnits(picture_.height, picture_.yDpi)};
    return S_OK;
}

HRESULT Image::GetImageInfo(ImageInfo* info) {
    if (!info) return E_INVALIDARG;
    const bool hasAlpha = picture_.HasAlpha();
    *info = {.RawDataFormat = picture_.fileFormat,
             .PixelFormat = hasAlpha ? PixelFormatID{PixelFormat32bppARGB} : PixelFormat24bppRGB,
             .Width = picture_.width,
             .Height = picture_.height,
             .TileWidth = picture_.width,
             .TileHeight = 1,
             .Xdpi = picture_.xDpi,
             .Ydpi = picture_.yDpi,
             .Flags = static_cast<UINT>(hasAlpha ? ImageFlagsHasAlpha : ImageFlagsNone)};
    return S_OK;
}

RECT Image::PixelArea(const RECT* source) const {
    const Picture& p = picture_;
    if (!source) return {0, 0, static_cast<LONG>(p.width), static_cast<LONG>(p.height)};
    return {ToPixels(source->left, p.xDpi, p.width), ToPixels(source->top, p.yDpi, p.height),
            ToPixels(source->right, p.xDpi, p.width), ToPixels(source->bottom, p.yDpi, p.height)};
}

// Shrunk here, for quality, and grown by GDI, which clips.
HRESULT Image::Draw(HDC dc, const RECT* target, const RECT* source) {
    if (!dc || !target) return E_INVALIDARG;
    const RECT area = PixelArea(source);
    if (IsRectEmpty(target) || IsRectEmpty(&area)) return S_OK;
    const LONG width = std::min(target->right - target->left, area.right - area.left);
    const LONG height = std::min(target->bottom - target->top, area.bottom - area.top);
    const Picture shown =
        ScalePicture(picture_, area, static_cast<UINT>(width), static_cast<UINT>(height), false);
    const HBITMAP bitmap = shown.pixels ? CreateBlendBitmap(shown) : nullptr;
    if (!bitmap) return E_OUTOFMEMORY;
    const bool drawn = Blend(dc, *target, bitmap, shown);
    DeleteObject(bitmap);
    return drawn ? S_OK : E_FAIL;
}
