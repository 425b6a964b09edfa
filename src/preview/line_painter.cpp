#include "preview/line_painter.h"

#include "preview/item_icons.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"

namespace {

constexpr int kLeadingRectSize = 9; // Units.

int ScaleAcross(int units) {
    return Scale(units);
}

} // namespace

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

void LinePainter::LeftIconRow(int left, const LeftIcons& icons) const {
    int number = 0;
    for (const uint32_t flag : icons) {
        if (flag == 0) continue;
        DrawItemIcon(dc_, LeftIconPlace(left, number++, ScaleAcross),
                     MiddleFor(ScaleY(kItemIconSize)), flag);
    }
}

void LinePainter::RightIconRow(int right, uint32_t icons) const {
    int number = 0;
    for (uint32_t rest = icons; rest != 0; rest &= rest - 1) {
        const uint32_t lowest = rest & (0 - rest);
        DrawItemIcon(dc_, RightIconPlace(right, number++, ScaleAcross),
                     MiddleFor(ScaleY(kItemIconSize)), lowest);
    }
}
