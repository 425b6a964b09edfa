#pragma once

#include <windows.h>

#include "settings/settings_store.h"
#include "shell/services/handles.h"

// The colour of a setting; the built-in one where it has none. Without the high byte, which would
// give a colour another meaning to the platform.
[[nodiscard]] COLORREF ColourOr(uint32_t value, COLORREF builtIn);

// A font that the platform makes in no time: with heights and weights that the registry may hold,
// but no letters can have, brought to what can be seen.
[[nodiscard]] LOGFONT BoundedFont(LOGFONT font);

// How a kind of item writes its texts, by the font and colour settings.
struct TextStyle {
    LOGFONT font{};
    COLORREF colour = 0;
    bool hasShadow = false;
    COLORREF shadowColour = 0;
};

// `own` is the item's own font: its colour always counts, its shape only where every item has its
// own font.
[[nodiscard]] TextStyle TextStyleOf(const SettingsStore& store, const FontSetting& own);

[[nodiscard]] bool IsSameFont(const LOGFONT& left, const LOGFONT& right);

// A font that is made anew only when another one is asked for.
class CachedFont {
  public:
    // Belongs to this object; null when the platform cannot make it.
    [[nodiscard]] HFONT Get(const LOGFONT& description);

  private:
    LOGFONT description_{};
    UniqueFont font_;
};
