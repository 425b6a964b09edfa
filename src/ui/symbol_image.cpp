#include "ui/symbol_image.h"

#include "shell/services/application.h"
#include "shell/services/handles.h"

namespace {
constexpr COLORREF kClear = RGB(255, 255, 255); // What symbols have where they are not drawn.
constexpr DWORD kPatternOrTarget = 0x00FA0089;  // The raster operation "pattern or target".

// Every second pixel turns white.
void Dim(HDC dc, int x, int y, int width, int height) {
    constexpr WORD kChecks[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
    const UniqueBitmap pattern(CreateBitmap(8, 8, 1, 1, kChecks));
    const UniqueBrush brush(CreatePatternBrush(pattern.Get()));
    const SelectScope selected(dc, brush.Get());
    // The set bits of a pattern take the background's colour, the others the text's.
    SetBkColor(dc, RGB(255, 255, 255));
    SetTextColor(dc, RGB(0, 0, 0));
    PatBlt(dc, x, y, width, height, kPatternOrTarget);
}
} // namespace

void DrawSymbol(HDC dc, UINT bitmap, const RECT& place, bool isDimmed) {
    // A null module would mean the platform's own bitmaps.
    if (!application.displayLibrary) return;
    const UniqueBitmap symbol(LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(bitmap)));
    BITMAP size{};
    if (!symbol || !GetObject(symbol.Get(), sizeof(size), &size)) return;
    const int x = (place.left + place.right - size.bmWidth) / 2;
    const int y = (place.top + place.bottom - size.bmHeight) / 2;
    TransparentImage(dc, x, y, size.bmWidth, size.bmHeight, symbol.Get(), 0, 0, size.bmWidth,
                     size.bmHeight, kClear);
    if (isDimmed) Dim(dc, x, y, size.bmWidth, size.bmHeight);
}
