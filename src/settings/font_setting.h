#pragma once

#include "settings/setting.h"

// What a font is like until the registry says otherwise; every font starts upright, without an
// underline and without a colour of its own.
struct FontDefaults {
    uint32_t weight;
    uint32_t height; // Pixels.
    bool strikeOut;
};

// A font: a LOGFONT, of which five members are settings, and a colour. The face and the quality
// are the same for all fonts and settings of their own, so they are not stored here.
struct FontSetting {
    LOGFONT logFont = {};
    DwordSetting weight;
    DwordSetting italic;
    DwordSetting underline;
    DwordSetting strikeOut;
    DwordSetting height;
    DwordSetting colour;

    // `prefix` begins the six value names. A face name is cut at what a LOGFONT holds.
    void Load(HKEY key, const FontDefaults& defaults, const wchar_t* faceName, bool clearType,
              const wchar_t* prefix, SettingGroup group);
    void TakeDefault(const FontDefaults& defaults, const wchar_t* faceName, bool clearType,
                     const wchar_t* prefix, SettingGroup group);
    // Takes the five members of a LOGFONT, where one is given, and the colour; gives the old
    // colour.
    uint32_t Set(const LOGFONT* newFont, uint32_t newColour);
    void Save(HKEY key) const;

  private:
    void FillLogFont(const wchar_t* faceName, bool clearType);
};
