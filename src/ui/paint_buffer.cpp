#include "ui/paint_buffer.h"

PaintBuffer::PaintBuffer(HDC target, const RECT& place)
    : target_(target),
      place_(place),
      bitmap_(CreateCompatibleBitmap(target, place.right - place.left, place.bottom - place.top)),
      dc_(CreateCompatibleDC(target)),
      previous_(SelectObject(dc_.Get(), bitmap_.Get())) {
    PatBlt(Dc(), 0, 0, place.right - place.left, place.bottom - place.top, WHITENESS);
}

PaintBuffer::~PaintBuffer() {
    BitBlt(target_, place_.left, place_.top, place_.right - place_.left, place_.bottom - place_.top,
           Dc(), 0, 0, SRCCOPY);
    SelectObject(Dc(), previous_);
}
