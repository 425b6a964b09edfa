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
