// The device's imaging service: decodes picture files and draws them.
#pragma once

#include <windows.h>

#include <objbase.h>

// {327ABDA8-072B-11D3-9D7B-0000F81EF32E} and its neighbours.
inline constexpr GUID CLSID_ImagingFactory = {
    0x327ABDA8, 0x072B, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID IID_IImagingFactory = {
    0x327ABDA7, 0x072B, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID IID_IImage = {
    0x327ABDA9, 0x072B, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID IID_IBitmapImage = {
    0x327ABDAA, 0x072B, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

typedef UINT PixelFormatID;

#define PixelFormatDontCare 0
#define PixelFormat16bppRGB565 0x00021006
#define PixelFormat24bppRGB 0x00021808
#define PixelFormat32bppRGB 0x00022009
#define PixelFormat32bppARGB 0x0026200A // Blue, green, red, alpha; colours not multiplied by alpha.
#define PixelFormat32bppPARGB 0x000E200B // Colours multiplied by alpha.

typedef enum {
    InterpolationHintDefault,
    InterpolationHintNearestNeighbor,
    InterpolationHintBilinear,
    InterpolationHintAveraging,
    InterpolationHintBicubic
} InterpolationHint;

typedef enum { BufferDisposalFlagNone } BufferDisposalFlag;

typedef enum { ImageFlagsNone = 0, ImageFlagsScalable = 1, ImageFlagsHasAlpha = 2 } ImageFlags;

typedef enum {
    ImageLockModeRead = 1,
    ImageLockModeWrite = 2,
    ImageLockModeUserInputBuf = 4
} ImageLockMode;

typedef struct {
    GUID RawDataFormat;
    PixelFormatID PixelFormat;
    UINT Width;
    UINT Height;
    UINT TileWidth;
    UINT TileHeight;
    double Xdpi;
    double Ydpi;
    UINT Flags; // ImageFlags*
} ImageInfo;

typedef struct {
    UINT Width;
    UINT Height;
    INT Stride; // Bytes from row to row.
    PixelFormatID PixelFormat;
    VOID* Scan0;
    UINT_PTR Reserved;
} BitmapData;

struct ColorPalette;
struct ImageCodecInfo;
struct IImageDecoder;
struct IImageEncoder;
struct IImageSink;
typedef int DecoderInitFlag;

// A picture as it came from a file.
struct IImage : IUnknown {
    // In units of 0.01 mm.
    virtual HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetImageFlags(UINT flags) = 0;
    // Stretches `source` (units of 0.01 mm; null: the whole picture) to `target` (in pixels) and
    // blends it with what is there.
    virtual HRESULT STDMETHODCALLTYPE Draw(HDC dc, const RECT* target, const RECT* source) = 0;
    virtual HRESULT STDMETHODCALLTYPE PushIntoSink(IImageSink* sink) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetThumbnail(UINT width, UINT height, IImage** thumbnail) = 0;
};

// Pixels in memory.
struct IBitmapImage : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetSize(SIZE* size) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetPixelFormatID(PixelFormatID* format) = 0;
    // `area` null: the whole. Scan0 stays good until UnlockBits.
    virtual HRESULT STDMETHODCALLTYPE LockBits(const RECT* area, UINT flags, PixelFormatID format,
                                               BitmapData* data) = 0;
    virtual HRESULT STDMETHODCALLTYPE UnlockBits(const BitmapData* data) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetPalette(ColorPalette** palette) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetPalette(const ColorPalette* palette) = 0;
};

struct IImagingFactory : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromStream(IStream* stream, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromFile(const WCHAR* path, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const VOID* buffer, UINT size,
                                                            BufferDisposalFlag disposal,
                                                            IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateNewBitmap(UINT width, UINT height, PixelFormatID format,
                                                      IBitmapImage** bitmap) = 0;
    // Width or height 0: the picture's own.
    virtual HRESULT STDMETHODCALLTYPE CreateBitmapFromImage(IImage* image, UINT width, UINT height,
                                                            PixelFormatID format,
                                                            InterpolationHint hint,
                                                            IBitmapImage** bitmap) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateBitmapFromBuffer(const BitmapData* data,
                                                             IBitmapImage** bitmap) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageDecoder(IStream* stream, DecoderInitFlag flag,
                                                         IImageDecoder** decoder) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageEncoderToStream(const CLSID* codec,
                                                                 IStream* stream,
                                                                 IImageEncoder** encoder) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageEncoderToFile(const CLSID* codec,
                                                               const WCHAR* path,
                                                               IImageEncoder** encoder) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetInstalledDecoders(UINT* count,
                                                           ImageCodecInfo** decoders) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetInstalledEncoders(UINT* count,
                                                           ImageCodecInfo** encoders) = 0;
    virtual HRESULT STDMETHODCALLTYPE InstallImageCodec(const ImageCodecInfo* codec) = 0;
    virtual HRESULT STDMETHODCALLTYPE UninstallImageCodec(const WCHAR* name, UINT flags) = 0;
};
