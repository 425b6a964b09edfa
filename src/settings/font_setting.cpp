#include "settings/font_setting.h"

#include <cwchar>
#include <iterator>

namespace {

// One of a font's settings: the end of its name, and its default.
struct FontValue {
    DwordSetting FontSetting::*setting;
    const wchar_t* suffix;
    uint32_t (*defaultOf)(const FontDefaults& font);
};

// In load and save order.
constexpr FontValue kFontValues[] = {
    {&FontSetting::weight, L"lfWeight", [](const FontDefaults& font) { return font.weight; }},
    {&FontSetting::italic, L"lfItalic", [](const FontDefaults&) { return uint32_t{0}; }},
    {&FontSetting::underline, L"lfUnderline", [](const FontDefaults&) { return uint32_t{0}; }},
    {&FontSetting::strikeOut, L"lfStrikeOut",
     [](const FontDefaults& font) { return uint32_t{font.strikeOut}; }},
    {&FontSetting::height, L"lfHeight", [](const FontDefaults& font) { return font.height; }},
    {&FontSetting::colour, L"lfColor", [](const FontDefaults&) { return kNoColour; }},
};

WideString NameOf(const wchar_t* prefix, const FontValue& value) {
    WideString name(prefix);
    name.Append(value.suffix);
    return name;
}

} // namespace

void FontSetting::Load(HKEY key, const FontDefaults& defaults, const wchar_t* faceName,
                       bool clearType, const wchar_t* prefix, SettingGroup group) {
    for (const FontValue& value : kFontValues) {
        (this->*value.setting)
            .Load(key, value.defaultOf(defaults), NameOf(prefix, value).CStr(), group);
    }
    FillLogFont(faceName, clearType);
}

void FontSetting::TakeDefault(const FontDefaults& defaults, const wchar_t* faceName, bool clearType,
                              const wchar_t* prefix, SettingGroup group) {
    for (const FontValue& value : kFontValues) {
        (this->*value.setting)
            .TakeDefault(value.defaultOf(defaults), NameOf(prefix, value).CStr(), group);
    }
    FillLogFont(faceName, clearType);
}

void FontSetting::FillLogFont(const wchar_t* faceName, bool clearType) {
    constexpr BYTE kClearTypeQuality = 5;
    logFont = {};
    logFont.lfHeight = static_cast<LONG>(height.value);
    logFont.lfWeight = static_cast<LONG>(weight.value);
    logFont.lfItalic = static_cast<BYTE>(italic.value);
    logFont.lfUnderline = static_cast<BYTE>(underline.value);
    logFont.lfStrikeOut = static_cast<BYTE>(strikeOut.value);
    logFont.lfQuality = clearType ? kClearTypeQuality : BYTE{DEFAULT_QUALITY};
    std::wcsncpy(logFont.lfFaceName, faceName, std::size(logFont.lfFaceName) - 1);
}

uint32_t FontSetting::Set(const LOGFONT* newFont, uint32_t newColour) {
    if (newFont != nullptr) {
        logFont.lfHeight = newFont->lfHeight;
        logFont.lfItalic = newFont->lfItalic;
        logFont.lfStrikeOut = newFont->lfStrikeOut;
        logFont.lfUnderline = newFont->lfUnderline;
        logFont.lfWeight = newFont->lfWeight;
        height.Set(static_cast<uint32_t>(logFont.lfHeight));
        italic.Set(logFont.lfItalic);
        strikeOut.Set(logFont.lfStrikeOut);
        underline.Set(logFont.lfUnderline);
        weight.Set(static_cast<uint32_t>(logFont.lfWeight));
    }
    return colour.Set(newColour);
}

void FontSetting::Save(HKEY key) const {
    for (const FontValue& value : kFontValues)
        (this->*value.setting).Save(key);
}
