#include "ui/colour_box.h"

#include "resource_ids.h"
#include "settings/setting.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"

void DrawColourBox(HDC dc, RECT box, uint32_t colour, HFONT font) {
    FillRect(dc, &box, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    InflateRect(&box, -Scale(1), -Scale(1));
    if (colour != kNoColour) {
        // The high byte would give the colour another meaning to the platform.
        const UniqueBrush brush(CreateSolidBrush(colour & 0xFFFFFF));
        FillRect(dc, &box, brush.Get());
        return;
    }
    FillRect(dc, &box, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    const SelectScope selected(dc, font);
    const int previousMode = SetBkMode(dc, TRANSPARENT);
    DrawText(dc, LanguageText(IDS_COLOUR_NONE).CStr(), -1, &box,
             DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SetBkMode(dc, previousMode);
}
