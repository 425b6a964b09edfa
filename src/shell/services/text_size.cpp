#include "shell/services/text_size.h"

int TextWidth(HDC dc, const WideString& text) {
    if (text.IsEmpty()) return 0;
    RECT box{};
    DrawText(dc, text.CStr(), -1, &box, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    return box.right;
}

int LineHeight(HDC dc) {
    TEXTMETRIC metrics{};
    GetTextMetrics(dc, &metrics);
    return metrics.tmHeight;
}

FontMeasure::FontMeasure(HFONT font)
    : screen_(GetDC(nullptr)), previous_(SelectObject(screen_, font)) {}

FontMeasure::~FontMeasure() {
    SelectObject(screen_, previous_);
    ReleaseDC(nullptr, screen_);
}

int FontMeasure::TextWidth(const WideString& text) const {
    return ::TextWidth(screen_, text);
}

int FontMeasure::LineHeight() const {
    return ::LineHeight(screen_);
}
