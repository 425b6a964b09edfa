#include <aygshell.h>
#include <objbase.h>
#include <wincodec.h>

#include <climits>

namespace {

// Holds a COM interface for a scope.
template <typename Interface>
class ComPointer {
  public:
    ComPointer() = default;
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() {
        if (pointer_) pointer_->Release();
    }
    Interface** Receive() { return &pointer_; }
    [[nodiscard]] Interface* Get() const { return pointer_; }
    Interface* operator->() const { return pointer_; }

  private:
    Interface* pointer_ = nullptr;
};

// In 32 bits: Wine has no way from a picture of indexed colours to 24.
bool OpenPicture(LPCWSTR path, ComPointer<IWICFormatConverter>& picture) {
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICBitmapDecoder> decoder;
    ComPointer<IWICBitmapFrameDecode> frame;
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory,
                                      reinterpret_cast<void**>(factory.Receive()))) &&
           SUCCEEDED(factory->CreateDecoderFromFilename(
               path, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand, decoder.Receive())) &&
           SUCCEEDED(decoder->GetFrame(0, frame.Receive())) &&
           SUCCEEDED(factory->CreateFormatConverter(picture.Receive())) &&
           SUCCEEDED(picture->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGRA,
                                         WICBitmapDitherTypeNone, nullptr, 0,
                                         WICBitmapPaletteTypeCustom));
}

HBITMAP CopyPixels(IWICFormatConverter& picture) {
    UINT width = 0;
    UINT height = 0;
    if (FAILED(picture.GetSize(&width, &height)) || width == 0 || height == 0) return nullptr;
    const ULONGLONG stride = width * 4ULL;
    const ULONGLONG size = stride * height;
    if (stride > INT_MAX || size > INT_MAX) return nullptr;

    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER),
                      static_cast<LONG>(width),
                      -static_cast<LONG>(height),
                      1,
                      32,
                      BI_RGB,
                      0,
                      0,
                      0,
                      0,
                      0};
    void* pixels = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap) return nullptr;
    if (SUCCEEDED(picture.CopyPixels(nullptr, static_cast<UINT>(stride), static_cast<UINT>(size),
                                     static_cast<BYTE*>(pixels))))
        return bitmap;
    DeleteObject(bitmap);
    return nullptr;
}

HBITMAP Decode(LPCWSTR path) {
    ComPointer<IWICFormatConverter> picture;
    return OpenPicture(path, picture) ? CopyPixels(*picture.Get()) : nullptr;
}

} // namespace

extern "C" HBITMAP WINAPI SHLoadImageFile(LPCWSTR path) {
    if (!path) return nullptr;
    const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    HBITMAP bitmap = Decode(path);
    if (SUCCEEDED(started)) CoUninitialize();
    return bitmap;
}
