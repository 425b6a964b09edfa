#include "pages/font_size_list.h"

#include "shell/services/number_text.h"
#include "ui/controls.h"

namespace {
constexpr int32_t kSmallest = 10;
constexpr int32_t kLargest = 30;
} // namespace

void FillFontSizes(HWND combo, uint32_t size) {
    for (int32_t entry = kSmallest; entry <= kLargest; ++entry)
        AddEntry(combo, DecimalText(entry).CStr(), static_cast<uint32_t>(entry));
    SelectIndex(combo, size - kSmallest);
}

uint32_t ChosenFontSize(HWND combo) {
    return static_cast<uint32_t>(SendMessage(combo, CB_GETCURSEL, 0, 0) + kSmallest);
}
