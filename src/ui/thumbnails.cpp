#include "ui/thumbnails.h"

#include "files/image_loader.h"
#include "shell/services/scaling.h"
#include "ui/picture.h"

namespace {
constexpr int kSize = 20; // Units.

// A picture on white, in the size of a thumbnail.
UniqueBitmap MakeThumbnail(HBITMAP picture) {
    const RECT place{0, 0, Scale(kSize), ScaleY(kSize)};
    HDC screen = GetDC(nullptr);
    const UniqueDc dc(CreateCompatibleDC(screen));
    UniqueBitmap thumbnail(CreateCompatibleBitmap(screen, place.right, place.bottom));
    ReleaseDC(nullptr, screen);
    const SelectScope selected(dc.Get(), thumbnail.Get());
    FillRect(dc.Get(), &place, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    DrawPicture(dc.Get(), place, picture);
    return thumbnail;
}
} // namespace

Thumbnails::Thumbnails()
    // In the screen's own depth: the default is sixteen colours.
    : images_(ImageList_Create(Scale(kSize), ScaleY(kSize), ILC_COLORDDB, kKept, 0)) {
    rows_.fill(-1);
    ImageList_SetImageCount(images_.Get(), kKept);
}

int Thumbnails::ImageOf(int row, const wchar_t* path) {
    const int image = row % kKept;
    int& shown = rows_[static_cast<size_t>(image)];
    if (shown == row) return image;
    const UniqueBitmap picture = LoadImageFile(path);
    const UniqueBitmap thumbnail = MakeThumbnail(picture.Get());
    const bool isMade =
        thumbnail && ImageList_Replace(images_.Get(), image, thumbnail.Get(), nullptr);
    // Never another row's picture; one that failed is tried again when it is next seen.
    shown = isMade ? row : -1;
    return isMade ? image : I_IMAGENONE;
}
