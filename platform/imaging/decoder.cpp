#include "decoder.h"

#include "com_object.h"

#include <algorithm>
#include <span>

namespace {

// The last part of the ids that name file formats is theirs in common: 0728-11D3-9D7B-0000F81EF32E.
constexpr GUID FileFormat(unsigned long first) {
    return {first, 0x0728, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}

struct FormatName {
    const GUID& container;
    GUID fileFormat;
};

const FormatName kFormatNames[] = {
    {GUID_ContainerFormatBmp, FileFormat(0xB96B3CAB)},
    {GUID_ContainerFormatJpeg, FileFormat(0xB96B3CAE)},
    {GUID_ContainerFormatPng, FileFormat(0xB96B3CAF)},
    {GUID_ContainerFormatGif, FileFormat(0xB96B3CB0)},
    {GUID_ContainerFormatTiff, FileFormat(0xB96B3CB1)},
    {GUID_ContainerFormatIco, FileFormat(0xB96B3CB5)},
};

GUID FileFormatOf(IWICBitmapDecoder* decoder) {
    GUID container;
    if (FAILED(decoder->GetContainerFormat(&container))) return {};
    for (const FormatName& name : kFormatNames)
        if (name.container == container) return name.fileFormat;
    return {};
}

// The format in which the device hands pixels out: alpha, not multiplied into the colours.
HRESULT ConvertToArgb(IWICImagingFactory* codecs, IWICBitmapSource* source,
                      ComRef<IWICFormatConverter>& converter) {
    const HRESULT result = codecs->CreateFormatConverter(converter.Receive());
    if (FAILED(result)) return result;
    return converter->Initialize(source, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                 nullptr, 0, WICBitmapPaletteTypeCustom);
}

HRESULT CopyPixels(IWICBitmapSource* source, Picture& picture) {
    UINT width = 0;
    UINT height = 0;
    const HRESULT result = source->GetSize(&width, &height);
    if (FAILED(result)) return result;
    picture = AllocatePicture(width, height);
    if (!picture.pixels) return E_OUTOFMEMORY;
    const UINT rowBytes = width * sizeof(std::uint32_t);
    return source->CopyPixels(nullptr, rowBytes, rowBytes * height,
                              reinterpret_cast<BYTE*>(picture.pixels.get()));
}

void ReadResolution(IWICBitmapSource* source, Picture& picture) {
    double x = 0;
    double y = 0;
    // Files without a resolution answer 0, or 1 for pixels as high as wide.
    if (FAILED(source->GetResolution(&x, &y)) || !(x >= 10 && y >= 10)) return;
    picture.xDpi = x;
    picture.yDpi = y;
}

} // namespace

HRESULT DecodePicture(IWICImagingFactory* codecs, IStream* stream, Picture& picture) {
    ComRef<IWICBitmapDecoder> decoder;
    HRESULT result = codecs->CreateDecoderFromStream(
        stream, nullptr, WICDecodeMetadataCacheOnDemand, decoder.Receive());
    if (FAILED(result)) return result;
    ComRef<IWICBitmapFrameDecode> frame;
    result = decoder->GetFrame(0, frame.Receive());
    if (FAILED(result)) return result;
    ComRef<IWICFormatConverter> argb;
    result = ConvertToArgb(codecs, frame.Get(), argb);
    if (FAILED(result)) return result;
    Picture decoded;
    result = CopyPixels(argb.Get(), decoded);
    if (FAILED(result)) return result;
    decoded.fileFormat = FileFormatOf(decoder.Get());
    ReadResolution(frame.Get(), decoded);
    picture = std::move(decoded);
    return S_OK;
}
