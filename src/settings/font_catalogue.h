#pragma once

#include "settings/font_settings.h"
#include "settings/settings_store.h"

// The number of each of the program's configurable fonts: its place in the list of fonts.
enum class FontId : int {
#define FONT_ID(member, weight, strikeOut) member,
    FONT_SETTINGS(FONT_ID)
#undef FONT_ID
        Count
};

// The store's font of a number; null for a number that has none.
[[nodiscard]] FontSetting* FontOfStore(int fontId);

// What a font looks like, as SetFontCatalogue wants it; all zero for a number that has none.
[[nodiscard]] LOGFONT FontCatalogueEntry(int fontId);
