#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <variant>

#include "settings/settings_store.h"

// The settings of the store as data: a table per registry key (three for the key that also holds
// the tab list), a row per setting, in load order.

// Defaults are fixed, or worked out from what the store has loaded before them.
struct NumberDefault {
    uint32_t fixed = 0;
    uint32_t (*compute)(const SettingsStore& store) = nullptr;

    constexpr NumberDefault(std::integral auto number) : fixed(static_cast<uint32_t>(number)) {}
    constexpr NumberDefault(uint32_t (*function)(const SettingsStore&)) : compute(function) {}
    [[nodiscard]] uint32_t Of(const SettingsStore& store) const {
        return compute == nullptr ? fixed : compute(store);
    }
};

struct TextDefault {
    const wchar_t* fixed = nullptr;
    WideString (*compute)(const SettingsStore& store) = nullptr;

    constexpr TextDefault(const wchar_t* text) : fixed(text) {}
    constexpr TextDefault(WideString (*function)(const SettingsStore&)) : compute(function) {}
    [[nodiscard]] WideString Of(const SettingsStore& store) const {
        return compute == nullptr ? WideString(fixed) : compute(store);
    }
};

struct DwordRow {
    DwordSetting SettingsStore::*member;
    const wchar_t* name;
    NumberDefault defaultNumber;
};

struct TextRow {
    StringSetting SettingsStore::*member;
    const wchar_t* name;
    TextDefault defaultText;
};

struct BitsRow {
    BitsSetting SettingsStore::*member;
    const wchar_t* name;
    uint32_t bitCount;
};

struct FontRow {
    FontSetting SettingsStore::*member;
    const wchar_t* name; // Begins the names of the font's six values.
    uint32_t weight;
    bool strikeOut;
};

// Whether and when a row is written: never at 0, else by rank and, of equal ranks, in load order.
using SaveRank = uint8_t;

struct SettingRow {
    std::variant<DwordRow, TextRow, BitsRow, FontRow> what;
    SaveRank saveRank;
};

struct SettingTable {
    SettingGroup group;
    std::span<const SettingRow> rows;
    std::span<const uint8_t> saveOrder; // The numbers of the rows that are written.

    // A null key, one that could not be opened, gives every setting its default.
    void Load(SettingsStore& store, HKEY key) const;
    void Save(const SettingsStore& store, HKEY key) const;
};

extern const SettingTable kTodayItemTable;
extern const SettingTable kPocketInformantTable;
extern const SettingTable kAgendaFusionTable;
extern const SettingTable kRootTable;
extern const SettingTable kCalendarTable;
extern const SettingTable kTasksTable;
extern const SettingTable kNotesTable;
extern const SettingTable kContactsTable;
extern const SettingTable kMessagesTable;
extern const SettingTable kSpecialEventsTable;
extern const SettingTable kFontsTable;
extern const SettingTable kColoursTable;
extern const SettingTable kPimTable;
extern const SettingTable kTabModeTable;
extern const SettingTable kOwnTabTable;
extern const SettingTable kDefaultTabTable;
extern const SettingTable kCategoriesTable;

// All of them, in load order.
[[nodiscard]] std::span<const SettingTable* const> AllSettingTables();
