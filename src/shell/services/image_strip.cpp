#include "shell/services/image_strip.h"

#include "shell/services/application.h"

UniqueImageList LoadImageStrip(UINT bitmap, int width, COLORREF mask) {
    // A null module would mean the platform's own bitmaps.
    if (!application.displayLibrary) return UniqueImageList();
    const UniqueBitmap strip(LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(bitmap)));
    BITMAP size{};
    if (!strip || !GetObject(strip.Get(), sizeof(size), &size)) return UniqueImageList();
    // In the screen's own depth: the default is sixteen colours.
    UniqueImageList images(ImageList_Create(width, size.bmHeight, ILC_COLORDDB | ILC_MASK,
                                            static_cast<int>(size.bmWidth) / width, 0));
    ImageList_AddMasked(images.Get(), strip.Get(), mask);
    return images;
}
