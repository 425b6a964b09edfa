#include "pages/sample_band.h"

#include <commctrl.h>

#include <algorithm>

#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
// In units.
constexpr int kTop = 8;
constexpr int kMargin = 10;
constexpr int kSampleTop = kTop + 22;
constexpr int kSwatchTop = kTop + 42;
constexpr int kRowHeight = 20;
constexpr int kBandHeight = 80;
constexpr int kListTop = kTop + 68;
constexpr int kListEnd = 28; // From the page's lower edge.
constexpr int kListRowHeight = 18;
constexpr int kButtonFromRight = 50;
constexpr int kButtonWidth = 40;

void InvalidateBand(HWND page) {
    const RECT band{0, 0, ClientSize(page).cx, ScaleY(kBandHeight)};
    InvalidateRect(page, &band, TRUE);
}
} // namespace

SampleBand::SampleBand(HWND page) : width_(ClientSize(page).cx) {}

RECT SampleBand::Header() const {
    return {0, ScaleY(kTop), width_, ScaleY(kSampleTop)};
}

RECT SampleBand::Sample() const {
    return {0, ScaleY(kSampleTop), width_, ScaleY(kSwatchTop)};
}

RECT SampleBand::Description() const {
    return {Scale(kMargin), ScaleY(kTop), width_ - Scale(kMargin), ScaleY(kSwatchTop)};
}

RECT SampleBand::Swatch() const {
    return {0, ScaleY(kSwatchTop), width_, ScaleY(kSwatchTop + kRowHeight)};
}

void PlaceSampleList(HWND page, UINT id, HFONT font, int roomBelow) {
    HWND list = Item(page, id);
    const bool isNew = !list;
    if (isNew) list = CreateList(page, id, font, kListRowHeight);
    const SIZE size = ClientSize(page);
    const int top = ScaleY(kListTop);
    // Above the input panel a screen turned to its side leaves no height at all.
    const int height = std::max<int>(size.cy - ScaleY(kListEnd + roomBelow) - top, 0);
    PlaceControl(list, {Scale(kMargin), top, size.cx - Scale(2 * kMargin), height});
    if (!isNew) FitColumn(list); // A new one has yet to be filled.
}

void PlaceSampleButton(HWND page, UINT id, const wchar_t* text, HFONT font) {
    PutControl(page, L"BUTTON", text, WS_TABSTOP, id,
               {ClientSize(page).cx - Scale(kButtonFromRight), ScaleY(kSwatchTop),
                Scale(kButtonWidth), ScaleY(kRowHeight)},
               font);
}

void RedrawSampleBand(HWND page) {
    if (!IsWindow(page)) return;
    InvalidateBand(page);
    UpdateWindow(page);
}

void RedrawOnSelection(HWND page, UINT listId, const NMHDR& header) {
    if (header.idFrom != listId || header.code != LVN_ITEMCHANGED) return;
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    if (!(change.uChanged & LVIF_STATE)) return;
    if (!((change.uNewState ^ change.uOldState) & LVIS_SELECTED)) return;
    // After a row was deselected another mostly follows.
    if (change.uNewState & LVIS_SELECTED)
        RedrawSampleBand(page);
    else
        InvalidateBand(page);
}
