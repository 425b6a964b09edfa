#include "preview/text_style.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

#include "shell/services/scaling.h"

namespace {

constexpr int kHighestLetters = 42; // Units.
constexpr uint32_t kShadowModes = 5;
constexpr COLORREF kBuiltInShadow = RGB(192, 192, 192);
constexpr BYTE kClearTypeQuality = 5;

// The registry may hold any number. Letters higher than a sample are never seen whole, and take the
// platform long to make.
LONG SafeHeight(uint32_t height) {
    const LONG highest = ScaleY(kHighestLetters);
    return std::clamp(static_cast<LONG>(height), -highest, highest);
}

LOGFONT FontOf(const SettingsStore& store, const FontSetting& own) {
    LOGFONT font{};
    font.lfWeight = FW_NORMAL;
    font.lfHeight = SafeHeight(store.FontGnrlSize.value);
    if (store.FontGnrlUseAdvncd.value == 1) font = BoundedFont(own.logFont);
    // The settings themselves, since the fonts took them when they were loaded.
    font.lfQuality =
        store.ForceClearType.value != 0 ? kClearTypeQuality : static_cast<BYTE>(DEFAULT_QUALITY);
    std::memset(font.lfFaceName, 0, sizeof font.lfFaceName);
    std::wcsncpy(font.lfFaceName, store.FontFaceToUse.value.CStr(), std::size(font.lfFaceName) - 1);
    return font;
}

} // namespace

LOGFONT BoundedFont(LOGFONT font) {
    constexpr LONG kHeaviest = 1000;
    font.lfHeight = SafeHeight(static_cast<uint32_t>(font.lfHeight));
    font.lfWeight = std::clamp(font.lfWeight, LONG{0}, kHeaviest);
    return font;
}

COLORREF ColourOr(uint32_t value, COLORREF builtIn) {
    return value == kNoColour ? builtIn : value & 0xFFFFFF;
}

TextStyle TextStyleOf(const SettingsStore& store, const FontSetting& own) {
    const uint32_t shadow = store.UseShadowColor.value;
    return {.font = FontOf(store, own),
            .colour = ColourOr(own.colour.value,
                               ColourOr(store.GeneralFontColor.value, store.systemColours[0])),
            .hasShadow = shadow > 0 && shadow < kShadowModes,
            .shadowColour = ColourOr(store.ShadowFontColor.value, kBuiltInShadow)};
}

bool IsSameFont(const LOGFONT& left, const LOGFONT& right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

HFONT CachedFont::Get(const LOGFONT& description) {
    if (!font_ || !IsSameFont(description_, description)) {
        font_.Reset(CreateFontIndirect(&description));
        description_ = description;
    }
    return font_.Get();
}
