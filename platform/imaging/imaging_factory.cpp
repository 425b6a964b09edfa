#include "imaging_factory.h"

#include "bitmap_image.h"
#include "decoder.h"
#include "image.h"

#include <new>

HRESULT ImagingFactory::Create(REFIID id, void** factory) {
    const ComRef<ImagingFactory> created(new (std::nothrow) ImagingFactory);
    return created.Get() ? created->QueryInterface(id, factory) : E_OUTOFMEMORY;
}

HRESULT ImagingFactory::LoadCodecs() {
    if (codecs_.Get()) return S_OK;
    return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                            IID_IWICImagingFactory, reinterpret_cast<void**>(codecs_.Receive()));
}

HRESULT ImagingFactory::CreateImageFromStream(IStream* stream, IImage** image) {
    if (!stream || !image) return E_INVALIDARG;
    *image = nullptr;
    HRESULT result = LoadCodecs();
    if (FAILED(result)) return result;
    Picture picture;
    result = DecodePicture(codecs_.Get(), stream, picture);
    if (FAILED(result)) return result;
    *image = new (std::nothrow) Image(std::move(picture));
    return *image ? S_OK : E_OUTOFMEMORY;
}

HRESULT ImagingFactory::CreateImageFromFile(const WCHAR* path, IImage** image) {
    if (!path || !image) return E_INVALIDARG;
    *image = nullptr;
    HRESULT result = LoadCodecs();
    if (FAILED(result)) return result;
    ComRef<IWICStream> stream;
    result = codecs_->CreateStream(stream.Receive());
    if (FAILED(result)) return result;
    result = stream->InitializeFromFilename(path, GENERIC_READ);
    return FAILED(result) ? result : CreateImageFromStream(stream.Get(), image);
}

HRESULT ImagingFactory::CreateImageFromBuffer(const VOID* buffer, UINT size,
                                              BufferDisposalFlag disposal, IImage** image) {
    if (!buffer || !image) return E_INVALIDARG;
    *image = nullptr;
    if (disposal != BufferDisposalFlagNone) return E_NOTIMPL;
    HRESULT result = LoadCodecs();
    if (FAILED(result)) return result;
    ComRef<IWICStream> stream;
    result = codecs_->CreateStream(stream.Receive());
    if (FAILED(result)) return result;
    result = stream->InitializeFromMemory(static_cast<BYTE*>(const_cast<void*>(buffer)), size);
    return FAILED(result) ? result : CreateImageFromStream(stream.Get(), image);
}

HRESULT ImagingFactory::CreateBitmapFromImage(IImage* image, UINT width, UINT height,
                                              PixelFormatID format, InterpolationHint hint,
                                              IBitmapImage** bitmap) {
    if (!image || !bitmap) return E_INVALIDARG;
    *bitmap = nullptr;
    ComRef<Image> source;
    const HRESULT result =
        image->QueryInterface(kImageClassId, reinterpret_cast<void**>(source.Receive()));
    if (FAILED(result)) return result;
    if (format == PixelFormatDontCare) format = PixelFormat32bppARGB;
    const Picture& picture = source->GetPicture();
    const RECT all = {0, 0, static_cast<LONG>(picture.width), static_cast<LONG>(picture.height)};
    const Picture scaled =
        ScalePicture(picture, all, width ? width : picture.width, height ? height : picture.height,
                     hint == InterpolationHintNearestNeighbor);
    return BitmapImage::Create(scaled, format, bitmap);
}
