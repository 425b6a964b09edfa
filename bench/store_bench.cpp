// What loading and saving the settings store costs beyond the registry calls that it cannot spare.

#include <windows.h>

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "bench/own_registry.h"
#include "bench/timing.h"
#include "settings/registry_values.h"
#include "settings/setting_table.h"
#include "settings/settings_store.h"

namespace {

constexpr int kRounds = 101;
// A path, since one of the texts is that of a library, which would be searched for otherwise.
constexpr wchar_t kText[] = L"\\A folder\\a file";

// One value of the store, with its key kept open.
struct Value {
    HKEY key;
    std::wstring name;
    bool isNumber;
};

struct ValuesOfRow {
    HKEY key;
    std::vector<Value>& values;

    void operator()(const FontRow& row) const {
        for (const wchar_t* suffix :
             {L"lfWeight", L"lfItalic", L"lfUnderline", L"lfStrikeOut", L"lfHeight", L"lfColor"}) {
            values.push_back({key, std::wstring(row.name) + suffix, true});
        }
    }
    void operator()(const DwordRow& row) const { values.push_back({key, row.name, true}); }
    void operator()(const TextRow& row) const { values.push_back({key, row.name, false}); }
    void operator()(const BitsRow& row) const { values.push_back({key, row.name, false}); }
};

// The values of all tables, or of the rows that are written.
std::vector<Value> ValuesOf(std::vector<UniqueKey>& keys, bool onlyWritten) {
    std::vector<Value> values;
    for (const SettingTable* table : AllSettingTables()) {
        const GroupKey where = KeyOfGroup(table->group);
        keys.emplace_back(OpenOrCreateKey(where.root, where.path));
        for (const SettingRow& row : table->rows) {
            if (onlyWritten && row.saveRank == 0) continue;
            std::visit(ValuesOfRow{keys.back().Get(), values}, row.what);
        }
    }
    return values;
}

// The queries that a load cannot spare: one for a number, size and then data for all else that is
// there.
void QueryAll(const std::vector<Value>& values) {
    BYTE buffer[256];
    for (const Value& value : values) {
        DWORD size = sizeof buffer;
        BYTE* data = value.isNumber ? buffer : nullptr;
        const LSTATUS status =
            RegQueryValueEx(value.key, value.name.c_str(), nullptr, nullptr, data, &size);
        if (status != ERROR_SUCCESS || value.isNumber) continue;
        RegQueryValueEx(value.key, value.name.c_str(), nullptr, nullptr, buffer, &size);
    }
}

void WriteAll(const std::vector<Value>& values) {
    constexpr uint32_t kNumber = 4711;
    for (const Value& value : values) {
        if (value.isNumber) {
            RegSetValueEx(value.key, value.name.c_str(), 0, REG_DWORD,
                          reinterpret_cast<const BYTE*>(&kNumber), sizeof kNumber);
        } else {
            RegSetValueEx(value.key, value.name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(kText), sizeof kText);
        }
    }
}

struct ChangeRow {
    SettingsStore& store;

    void operator()(const DwordRow& row) const { (store.*row.member).Set(4711); }
    void operator()(const TextRow& row) const { (store.*row.member).Set(kText); }
    void operator()(const FontRow& row) const {
        LOGFONT other = {};
        other.lfHeight = 47;
        other.lfWeight = 11;
        other.lfItalic = other.lfUnderline = other.lfStrikeOut = 2;
        (store.*row.member).Set(&other, 0x4711);
    }
    void operator()(const BitsRow&) const {}
};

Comparison CompareLoad() {
    std::vector<UniqueKey> keys;
    const std::vector<Value> values = ValuesOf(keys, false);
    auto store = std::make_unique<SettingsStore>();
    HMODULE language = nullptr;
    const Comparison measured = Compare(
        kRounds, [&] { QueryAll(values); }, [&] { store->Load(language); });
    if (language != nullptr) FreeLibrary(language);
    return measured;
}

Comparison CompareSave() {
    std::vector<UniqueKey> keys;
    const std::vector<Value> values = ValuesOf(keys, true);
    auto store = std::make_unique<SettingsStore>();
    HMODULE language = nullptr;
    store->Load(language);
    for (const SettingTable* table : AllSettingTables()) {
        for (const SettingRow& row : table->rows)
            std::visit(ChangeRow{*store}, row.what);
    }
    const Comparison measured = Compare(
        kRounds, [&] { WriteAll(values); }, [&] { store->Save(); });
    if (language != nullptr) FreeLibrary(language);
    return measured;
}

} // namespace

int main() {
    const OwnRegistry registry;
    PrintHeading();
    PrintRow("load, nothing stored", CompareLoad(), 1.25);
    std::vector<UniqueKey> keys;
    WriteAll(ValuesOf(keys, false));
    PrintRow("load, everything stored", CompareLoad(), 1.25);
    PrintRow("save, everything changed", CompareSave(), 1.25);
    return 0;
}
