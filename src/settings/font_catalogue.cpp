#include "settings/font_catalogue.h"

namespace {

constexpr FontSetting SettingsStore::*kFonts[] = {
#define FONT_MEMBER(member, weight, strikeOut) &SettingsStore::member,
    FONT_SETTINGS(FONT_MEMBER)
#undef FONT_MEMBER
};

} // namespace

FontSetting* FontOfStore(int fontId) {
    if (fontId < 0 || fontId >= static_cast<int>(FontId::Count)) return nullptr;
    return &(settingsStore.*kFonts[fontId]);
}

LOGFONT FontCatalogueEntry(int fontId) {
    const FontSetting* font = FontOfStore(fontId);
    return font == nullptr ? LOGFONT{} : font->logFont;
}
