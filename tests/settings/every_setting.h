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

// The names of a row's values: six of a font, else one.
inline std::vector<std::wstring> NamesOf(const SettingRow& row) {
    const std::wstring name = std::visit([](const auto& what) { return what.name; }, row.what);
    if (!std::holds_alternative<FontRow>(row.what)) return {name};
    std::vector<std::wstring> names;
    for (const auto& [suffix, number] : kFontNumbers)
        names.push_back(name + suffix);
    return names;
}

// The dashboard's tab follows from other settings at each load, whatever was saved.
inline bool IsChosenAtLoad(const SettingRow& row) {
    const auto* number = std::get_if<DwordRow>(&row.what);
    return number && number->member == &SettingsStore::ActiveTab;
}

// A row's numbers and its text in a store: none where it is of another kind.
template <typename Store>
auto NumbersIn(Store& store, const SettingRow& row) {
    std::vector<decltype(&store.OnClick)> numbers;
    if (const auto* number = std::get_if<DwordRow>(&row.what)) {
        numbers.push_back(&(store.*number->member));
    } else if (const auto* font = std::get_if<FontRow>(&row.what)) {
        for (const auto& [suffix, member] : kFontNumbers)
            numbers.push_back(&(store.*font->member.*member));
    }
    return numbers;
}

template <typename Store>
auto TextIn(Store& store, const SettingRow& row) {
    const auto* text = std::get_if<TextRow>(&row.what);
    return text ? &(store.*text->member) : nullptr;
}

// Sets every setting of a loaded store to something that is not its default and that no repair
// touches.
inline void SetAllToOthers(SettingsStore& store) {
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        for (DwordSetting* number : NumbersIn(store, row)) {
            const std::wstring name = number->name.CStr();
            uint32_t other = number->defaultValue + 1;
            if (name.starts_with(L"CalTitlesOrder")) other = 5 - number->defaultValue;
            if (name == L"dHeightLimitLandscape") other = 100;
            if (name == L"TimelinesLength") other = number->defaultValue - 1;
            if (name == L"PinnedMonthlyClr") other = number->defaultValue + 2;
            number->Set(other);
        }
        if (StringSetting* text = TextIn(store, row))
            text->Set((std::wstring(text->defaultValue.CStr()) + L" other").c_str());
    });
}

inline void SetAllToDefaults(SettingsStore& store) {
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        for (DwordSetting* number : NumbersIn(store, row))
            number->Set(number->defaultValue);
        if (StringSetting* text = TextIn(store, row)) text->Set(text->defaultValue.CStr());
    });
}

// A row's value in a store, as text to compare.
inline std::wstring ShownIn(const SettingsStore& store, const SettingRow& row) {
    if (const auto* bits = std::get_if<BitsRow>(&row.what)) {
        const BitsSetting& setting = store.*bits->member;
        return {setting.bits.get(), setting.bits.get() + setting.byteCount};
    }
    if (const StringSetting* text = TextIn(store, row)) return text->value.CStr();
    std::wstring shown;
    for (const DwordSetting* number : NumbersIn(store, row))
        shown += std::to_wstring(number->value) + L" ";
    return shown;
}
