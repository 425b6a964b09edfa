#pragma once

#include <string>
#include <variant>
#include <vector>

#include "settings/setting_table.h"

// What tests do to every setting of every table.

template <typename Visit>
void ForEachRow(Visit visit) {
    for (const SettingTable* table : AllSettingTables()) {
        for (const SettingRow& row : table->rows)
            visit(*table, row);
    }
}

// A font's numbers, in the order of their names.
inline constexpr std::pair<const wchar_t*, DwordSetting FontSetting::*> kFontNumbers[] = {
    {L"lfWeight", &FontSetting::weight},       {L"lfItalic", &FontSetting::italic},
    {L"lfUnderline", &FontSetting::underline}, {L"lfStrikeOut", &FontSetting::strikeOut},
    {L"lfHeight", &FontSetting::height},       {L"lfColor", &FontSetting::colour}};

struct ValueNames {
    std::vector<std::wstring> operator()(const FontRow& row) const {
        std::vector<std::wstring> names;
        for (const auto& [suffix, number] : kFontNumbers)
            names.push_back(std::wstring(row.name) + suffix);
        return names;
    }
    std::vector<std::wstring> operator()(const auto& row) const { return {row.name}; }
};

// The names of a row's values: six of a font, else one.
inline std::vector<std::wstring> NamesOf(const SettingRow& row) {
    return std::visit(ValueNames{}, row.what);
}

// The dashboard's tab follows from other settings at each load, whatever was saved.
inline bool IsChosenAtLoad(const SettingRow& row) {
    const auto* number = std::get_if<DwordRow>(&row.what);
    return number && number->member == &SettingsStore::ActiveTab;
}

// Sets a row's setting to something that is not its default and that no repair touches, when all
// rows are set so together.
struct SetOther {
    SettingsStore& store;

    void operator()(const DwordRow& row) const {
        DwordSetting& setting = store.*row.member;
        const std::wstring name(row.name);
        if (name.starts_with(L"CalTitlesOrder")) {
            setting.Set(5 - setting.defaultValue);
        } else if (name == L"dHeightLimitLandscape") {
            setting.Set(100);
        } else if (name == L"TimelinesLength") {
            setting.Set(setting.defaultValue - 1);
        } else {
            setting.Set(setting.defaultValue + (name == L"PinnedMonthlyClr" ? 2 : 1));
        }
    }
    void operator()(const TextRow& row) const {
        StringSetting& setting = store.*row.member;
        setting.Set((std::wstring(setting.defaultValue.CStr()) + L" other").c_str());
    }
    void operator()(const FontRow& row) const {
        LOGFONT font = (store.*row.member).logFont;
        ++font.lfHeight;
        ++font.lfWeight;
        font.lfItalic = 1;
        font.lfUnderline = 1;
        font.lfStrikeOut ^= 1;
        (store.*row.member).Set(&font, 0x123456);
    }
    void operator()(const BitsRow&) const {}
};

struct SetDefault {
    SettingsStore& store;

    static void Reset(DwordSetting& setting) { setting.Set(setting.defaultValue); }
    void operator()(const DwordRow& row) const { Reset(store.*row.member); }
    void operator()(const TextRow& row) const {
        StringSetting& setting = store.*row.member;
        setting.Set(setting.defaultValue.CStr());
    }
    void operator()(const FontRow& row) const {
        for (const auto& [name, number] : kFontNumbers)
            Reset(store.*row.member.*number);
    }
    void operator()(const BitsRow&) const {}
};

// A row's value in two stores, as text to compare.
struct Shown {
    const SettingsStore& store;

    std::wstring operator()(const DwordRow& row) const {
        return std::to_wstring((store.*row.member).value);
    }
    std::wstring operator()(const TextRow& row) const { return (store.*row.member).value.CStr(); }
    std::wstring operator()(const FontRow& row) const {
        const FontSetting& font = store.*row.member;
        std::wstring shown;
        for (const auto& [name, number] : kFontNumbers)
            shown += std::to_wstring((font.*number).value) + L" ";
        const LOGFONT& log = font.logFont;
        return shown + std::to_wstring(log.lfWeight) + L" " + std::to_wstring(log.lfItalic) + L" " +
               std::to_wstring(log.lfUnderline) + L" " + std::to_wstring(log.lfStrikeOut) + L" " +
               std::to_wstring(log.lfHeight);
    }
    std::wstring operator()(const BitsRow& row) const {
        const BitsSetting& bits = store.*row.member;
        return std::wstring(bits.bits.get(), bits.bits.get() + bits.byteCount);
    }
};

inline std::wstring ShownIn(const SettingsStore& store, const SettingRow& row) {
    return std::visit(Shown{store}, row.what);
}
