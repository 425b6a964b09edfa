#include "ui/picture.h"

#include <algorithm>

#include "shell/services/scaling.h"

namespace {
constexpr COLORREF kWhite = RGB(255, 255, 255);

struct Fraction {
    int64_t numerator;
    int64_t denominator;
};

// By how much a picture has to shrink so that it fits.
Fraction Shrinking(SIZE picture, SIZE place) {
    const Fraction across{place.cx, picture.cx};
    const Fraction down{place.cy, picture.cy};
    const bool isWide = across.numerator * down.denominator < down.numerator * across.denominator;
    const Fraction least = isWide ? across : down;
    return least.numerator < least.denominator ? least : Fraction{1, 1};
}
} // namespace

void DrawPicture(HDC dc, const RECT& place, HBITMAP picture) {
    BITMAP bitmap{};
    if (!picture || !GetObject(picture, sizeof(bitmap), &bitmap)) return;
    const SIZE room{place.right - place.left, place.bottom - place.top};
    const SIZE natural{std::max(1, Scale(bitmap.bmWidth)), std::max(1, ScaleY(bitmap.bmHeight))};
    const Fraction shrinking = Shrinking(natural, room);
    const auto shrunk = [shrinking](int64_t length) {
        return static_cast<int>(
            std::max<int64_t>(1, length * shrinking.numerator / shrinking.denominator));
    };
    const int width = shrunk(natural.cx);
    const int height = shrunk(natural.cy);
    TransparentImage(dc, place.left + (room.cx - width) / 2, place.top + (room.cy - height) / 2,
                     width, height, picture, 0, 0, bitmap.bmWidth, bitmap.bmHeight, kWhite);
}
