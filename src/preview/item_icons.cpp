#include "preview/item_icons.h"

#include <bit>
#include <iterator>

#include "files/icon_set.h"
#include "shell/services/scaling.h"

namespace {

// By the number of the flag's bit.
constexpr IconSymbol kSymbols[] = {
    IconSymbol::Note,      IconSymbol::Reminder,  IconSymbol::HighImportance,
    IconSymbol::Recurring, IconSymbol::Private,   IconSymbol::Regenerated,
    IconSymbol::Link,      IconSymbol::Attendees, IconSymbol::Category,
};

} // namespace

void DrawItemIcon(HDC dc, int x, int y, uint32_t flag) {
    if (!std::has_single_bit(flag)) return;
    const auto number = static_cast<size_t>(std::countr_zero(flag));
    if (number >= std::size(kSymbols)) return;
    iconSet.Draw(dc, kSymbols[number], x, y, Scale(kItemIconSize), ScaleY(kItemIconSize));
}

void DrawItemIconIn(HDC dc, const RECT& place, uint32_t flag) {
    DrawItemIcon(dc, (place.left + place.right - Scale(kItemIconSize)) / 2,
                 (place.top + place.bottom - ScaleY(kItemIconSize)) / 2, flag);
}
