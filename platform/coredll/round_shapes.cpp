#include "round_shapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

double Distance(const Stroke& stroke, double x, double y) {
    const double dx = stroke.x2 - stroke.x1;
    const double dy = stroke.y2 - stroke.y1;
    const double length = dx * dx + dy * dy;
    const double along = ((x - stroke.x1) * dx + (y - stroke.y1) * dy) / std::max(length, 1e-9);
    const double t = std::clamp(along, 0.0, 1.0);
    return std::hypot(x - (stroke.x1 + t * dx), y - (stroke.y1 + t * dy));
}

RECT Bounds(const Stroke& stroke) {
    const double reach = stroke.radius + 1;
    return {static_cast<LONG>(std::floor(std::min(stroke.x1, stroke.x2) - reach)),
            static_cast<LONG>(std::floor(std::min(stroke.y1, stroke.y2) - reach)),
            static_cast<LONG>(std::ceil(std::max(stroke.x1, stroke.x2) + reach)),
            static_cast<LONG>(std::ceil(std::max(stroke.y1, stroke.y2) + reach))};
}

// The colour at an opacity from 0 to 1, multiplied by it as AlphaBlend expects.
uint32_t Premultiplied(COLORREF colour, double opacity) {
    const auto part = [&](BYTE value) {
        return static_cast<uint32_t>(std::lround(value * opacity));
    };
    return part(255) << 24 | part(GetRValue(colour)) << 16 | part(GetGValue(colour)) << 8 |
           part(GetBValue(colour));
}

void Render(const Stroke& stroke, COLORREF colour, const RECT& bounds, uint32_t* pixel) {
    for (LONG y = bounds.top; y < bounds.bottom; ++y)
        for (LONG x = bounds.left; x < bounds.right; ++x) {
            const double inside = stroke.radius - Distance(stroke, x + 0.5, y + 0.5) + 0.5;
            *pixel++ = Premultiplied(colour, std::clamp(inside, 0.0, 1.0));
        }
}

} // namespace

void FillStroke(HDC dc, const Stroke& stroke, COLORREF colour) {
    const RECT bounds = Bounds(stroke);
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap) return;
    Render(stroke, colour, bounds, static_cast<uint32_t*>(pixels));

    HDC memory = CreateCompatibleDC(dc);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    GdiAlphaBlend(dc, bounds.left, bounds.top, width, height, memory, 0, 0, width, height,
                  {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(bitmap);
}
