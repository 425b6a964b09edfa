#include "preview/symbol_images.h"

#include <bit>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/scaling.h"

namespace {

// By the number of the flag's bit.
constexpr UINT kBitmaps[] = {
    IDB_SYMBOL_NOTE,      IDB_SYMBOL_REMINDER,  IDB_SYMBOL_HIGH_IMPORTANCE,
    IDB_SYMBOL_RECURRING, IDB_SYMBOL_PRIVATE,   IDB_SYMBOL_REGENERATED,
    IDB_SYMBOL_LINK,      IDB_SYMBOL_ATTENDEES, IDB_SYMBOL_CATEGORY,
};

constexpr COLORREF kClear = RGB(255, 255, 255);

HBITMAP LoadSymbol(UINT bitmap) {
    // A null module would mean the platform's own bitmaps.
    if (application.displayLibrary == nullptr) return nullptr;
    return LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(bitmap));
}

} // namespace

void SymbolImages::Draw(HDC dc, int x, int y, uint32_t flag) {
    if (!std::has_single_bit(flag)) return;
    const auto number = static_cast<size_t>(std::countr_zero(flag));
    if (number >= images_.size()) return;
    UniqueBitmap& image = images_[number];
    if (!image) image.Reset(LoadSymbol(kBitmaps[number]));
    BITMAP size{};
    if (!image || !GetObject(image.Get(), sizeof size, &size)) return;
    TransparentImage(dc, x, y, Scale(kSymbolSize), ScaleY(kSymbolSize), image.Get(), 0, 0,
                     size.bmWidth, size.bmHeight, kClear);
}
