#pragma once

#include "com_object.h"

#include <imaging.h>

#include <wincodec.h>

// Decodes through the Windows Imaging Component, at once: a file that is not whole is refused when
// the image is created.
class ImagingFactory final : public ComObject<IImagingFactory, IID_IImagingFactory> {
  public:
    // Fails only for want of memory; without codecs each image does.
    static HRESULT Create(REFIID id, void** factory);

    HRESULT STDMETHODCALLTYPE CreateImageFromStream(IStream* stream, IImage** image) override;
    HRESULT STDMETHODCALLTYPE CreateImageFromFile(const WCHAR* path, IImage** image) override;
    HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const VOID* buffer, UINT size,
                                                    BufferDisposalFlag disposal,
                                                    IImage** image) override;
    HRESULT STDMETHODCALLTYPE CreateBitmapFromImage(IImage* image, UINT width, UINT height,
                                                    PixelFormatID format, InterpolationHint hint,
                                                    IBitmapImage** bitmap) override;

    HRESULT STDMETHODCALLTYPE CreateNewBitmap(UINT, UINT, PixelFormatID, IBitmapImage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateBitmapFromBuffer(const BitmapData*, IBitmapImage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateImageDecoder(IStream*, DecoderInitFlag,
                                                 IImageDecoder**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateImageEncoderToStream(const CLSID*, IStream*,
                                                         IImageEncoder**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateImageEncoderToFile(const CLSID*, const WCHAR*,
                                                       IImageEncoder**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetInstalledDecoders(UINT*, ImageCodecInfo**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetInstalledEncoders(UINT*, ImageCodecInfo**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE InstallImageCodec(const ImageCodecInfo*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE UninstallImageCodec(const WCHAR*, UINT) override { return E_NOTIMPL; }

  private:
    // Makes codecs_ with the first image: the libraries behind it take longer to load than most of
    // what a program does at its start. Fails when the system has no codecs or COM was not started
    // on this thread.
    HRESULT LoadCodecs();

    ComRef<IWICImagingFactory> codecs_;
};
