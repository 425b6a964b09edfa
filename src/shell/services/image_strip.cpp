#include "shell/services/image_strip.h"

#include "shell/services/application.h"

namespace {
// The strip, each of its images as large as asked for; empty when the platform refuses.
UniqueBitmap Stretch(HBITMAP strip, const BITMAP& from, SIZE to, COLORREF mask) {
    HDC screen = GetDC(nullptr);
    UniqueBitmap stretched(CreateCompatibleBitmap(screen, to.cx, to.cy));
    const UniqueDc dc(CreateCompatibleDC(screen));
    ReleaseDC(nullptr, screen);
    if (!stretched || !dc) return UniqueBitmap();
    const SelectScope selected(dc.Get(), stretched.Get());
    const UniqueBrush ground(CreateSolidBrush(mask));
    const RECT all{0, 0, to.cx, to.cy};
    FillRect(dc.Get(), &all, ground.Get());
    TransparentImage(dc.Get(), 0, 0, to.cx, to.cy, strip, 0, 0, from.bmWidth, from.bmHeight, mask);
    return stretched;
}
} // namespace

UniqueImageList LoadImageStrip(UINT bitmap, int size, COLORREF mask) {
    // A null module would mean the platform's own bitmaps.
    if (!application.displayLibrary) return UniqueImageList();
    UniqueBitmap strip(LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(bitmap)));
    BITMAP loaded{};
    if (!strip || !GetObject(strip.Get(), sizeof(loaded), &loaded)) return UniqueImageList();
    const int count = static_cast<int>(loaded.bmWidth / loaded.bmHeight);
    if (size != loaded.bmHeight)
        strip = Stretch(strip.Get(), loaded, {count * LONG{size}, size}, mask);
    // In the screen's own depth: the default is sixteen colours.
    UniqueImageList images(ImageList_Create(size, size, ILC_COLORDDB | ILC_MASK, count, 0));
    ImageList_AddMasked(images.Get(), strip.Get(), mask);
    return images;
}
