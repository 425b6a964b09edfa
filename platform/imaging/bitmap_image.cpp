#include "bitmap_image.h"

#include <new>

BitmapImage::BitmapImage(UINT width, UINT height, PixelFormatID format)
    : width_(width),
      height_(height),
      format_(format),
      stride_((width * BytesPerPixel(format) + 3) / 4 * 4),
      bytes_(new (std::nothrow) BYTE[std::size_t{stride_} * height]()) {}

HRESULT BitmapImage::Create(const Picture& picture, PixelFormatID format, IBitmapImage** bitmap) {
    if (BytesPerPixel(format) == 0) return E_INVALIDARG;
    if (!picture.pixels) return E_OUTOFMEMORY;
    ComRef<BitmapImage> created(new (std::nothrow)
                                    BitmapImage(picture.width, picture.height, format));
    if (!created.Get() || !created->bytes_) return E_OUTOFMEMORY;
    for (UINT y = 0; y < picture.height; ++y)
        WriteRow(&picture.pixels[std::size_t{y} * picture.width], picture.width, format,
                 &created->bytes_[std::size_t{y} * created->stride_]);
    return created->QueryInterface(IID_IBitmapImage, reinterpret_cast<void**>(bitmap));
}

HRESULT BitmapImage::GetSize(SIZE* size) {
    if (!size) return E_INVALIDARG;
    *size = {static_cast<LONG>(width_), static_cast<LONG>(height_)};
    return S_OK;
}

HRESULT BitmapImage::GetPixelFormatID(PixelFormatID* format) {
    if (!format) return E_INVALIDARG;
    *format = format_;
    return S_OK;
}

HRESULT BitmapImage::LockBits(const RECT* area, UINT flags, PixelFormatID format,
                              BitmapData* data) {
    const RECT all = {0, 0, static_cast<LONG>(width_), static_cast<LONG>(height_)};
    const RECT wanted = area ? *area : all;
    RECT inside;
    if (!data || !IntersectRect(&inside, &wanted, &all) || !EqualRect(&inside, &wanted))
        return E_INVALIDARG;
    if ((flags & ImageLockModeUserInputBuf) || format != format_) return E_NOTIMPL;
    if (isLocked_) return E_ACCESSDENIED;
    isLocked_ = true;
    *data = {.Width = static_cast<UINT>(wanted.right - wanted.left),
             .Height = static_cast<UINT>(wanted.bottom - wanted.top),
             .Stride = static_cast<INT>(stride_),
             .PixelFormat = format_,
             .Scan0 = &bytes_[std::size_t{stride_} * wanted.top +
                              std::size_t{BytesPerPixel(format_)} * wanted.left],
             .Reserved = 0};
    return S_OK;
}

HRESULT BitmapImage::UnlockBits(const BitmapData* data) {
    if (!data) return E_INVALIDARG;
    if (!isLocked_) return E_ACCESSDENIED;
    isLocked_ = false;
    return S_OK;
}
