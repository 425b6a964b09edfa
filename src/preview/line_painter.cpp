#include "preview/line_painter.h"

#include "shell/services/scaling.h"

namespace {

constexpr int kLeadingRectSize = 9; // Units.

int ScaleAcross(int units) {
    return Scale(units);
}

} // namespace

int TextWidth(HDC dc, const WideString& text) {
    if (text.IsEmpty()) return 0;
    RECT box{0, 0, 200, 200};
    DrawText(dc, text.CStr(), -1, &box, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    return box.right - box.left;
}

int LineHeight(HDC dc) {
    TEXTMETRIC metrics{};
    GetTextMetrics(dc, &metrics);
    return metrics.tmHeight;
}

LinePainter::LinePainter(HDC dc, const TextStyle& style, int top)
    : dc_(dc), style_(style), top_(top), height_(LineHeight(dc)) {}

void LinePainter::Text(const WideString& text, int left, int right) const {
    const RECT box{left, top_, right, top_ + height_};
    if (style_.hasShadow) {
        RECT shadow = box;
        OffsetRect(&shadow, Scale(1), ScaleY(1));
        Letters(text, shadow, style_.shadowColour);
    }
    Letters(text, box, style_.colour);
}

void LinePainter::Letters(const WideString& text, RECT box, COLORREF colour) const {
    const int previousMode = SetBkMode(dc_, TRANSPARENT);
    const COLORREF previousColour = SetTextColor(dc_, colour);
    DrawText(dc_, text.CStr(), -1, &box, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SetTextColor(dc_, previousColour);
    SetBkMode(dc_, previousMode);
}

void LinePainter::LeadingRect(int left, COLORREF colour) const {
    const UniqueBrush brush(CreateSolidBrush(colour));
    const int top = MiddleFor(ScaleY(kLeadingRectSize));
    const RECT rect{left, top, left + Scale(kLeadingRectSize), top + ScaleY(kLeadingRectSize)};
    FillRect(dc_, &rect, brush.Get());
}

void LinePainter::LeftIconRow(SymbolImages& symbols, int left, const LeftIcons& icons) const {
    int number = 0;
    for (const uint32_t flag : icons) {
        if (flag == 0) continue;
        symbols.Draw(dc_, LeftIconPlace(left, number++, ScaleAcross),
                     MiddleFor(ScaleY(kSymbolSize)), flag);
    }
}

void LinePainter::RightIconRow(SymbolImages& symbols, int right, uint32_t icons) const {
    int number = 0;
    for (uint32_t rest = icons; rest != 0; rest &= rest - 1) {
        const uint32_t lowest = rest & (0 - rest);
        symbols.Draw(dc_, RightIconPlace(right, number++, ScaleAcross),
                     MiddleFor(ScaleY(kSymbolSize)), lowest);
    }
}
