#pragma once

#include "com_object.h"
#include "picture.h"

// Asked for as an interface, answers the Image itself: how the factory finds what stands behind an
// IImage that comes back to it.
inline constexpr GUID kImageClassId = {
    0x5B0C7F46, 0x2D1E, 0x4C62, {0x9A, 0x31, 0x7E, 0x0D, 0xC4, 0x58, 0xB2, 0x16}};

class Image final : public ComObject<IImage, IID_IImage> {
  public:
    explicit Image(Picture picture) : picture_(std::move(picture)) {}

    [[nodiscard]] const Picture& GetPicture() const { return picture_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) override;
    HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) override;
    HRESULT STDMETHODCALLTYPE SetImageFlags(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Draw(HDC dc, const RECT* target, const RECT* source) override;
    HRESULT STDMETHODCALLTYPE PushIntoSink(IImageSink*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetThumbnail(UINT, UINT, IImage**) override { return E_NOTIMPL; }

  private:
    RECT PixelArea(const RECT* source) const;

    Picture picture_;
};
