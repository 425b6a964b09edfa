#pragma once

#include "com_object.h"
#include "picture.h"

// Pixels in one format, which is the only one that they can be locked in.
class BitmapImage final : public ComObject<IBitmapImage, IID_IBitmapImage> {
  public:
    // E_INVALIDARG for a format that BytesPerPixel does not know, E_OUTOFMEMORY for an empty
    // picture.
    static HRESULT Create(const Picture& picture, PixelFormatID format, IBitmapImage** bitmap);

    HRESULT STDMETHODCALLTYPE GetSize(SIZE* size) override;
    HRESULT STDMETHODCALLTYPE GetPixelFormatID(PixelFormatID* format) override;
    HRESULT STDMETHODCALLTYPE LockBits(const RECT* area, UINT flags, PixelFormatID format,
                                       BitmapData* data) override;
    HRESULT STDMETHODCALLTYPE UnlockBits(const BitmapData* data) override;
    HRESULT STDMETHODCALLTYPE GetPalette(ColorPalette**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetPalette(const ColorPalette*) override { return E_NOTIMPL; }

  private:
    BitmapImage(UINT width, UINT height, PixelFormatID format);

    UINT width_;
    UINT height_;
    PixelFormatID format_;
    UINT stride_;
    std::unique_ptr<BYTE[]> bytes_;
    bool isLocked_ = false;
};
