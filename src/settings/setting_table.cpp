#include "settings/setting_table.h"

#include "settings/computed_defaults.h"

namespace {

// Brings one row's setting from the registry into the store; of overloads, one per kind of row.
struct RowLoader {
    SettingsStore& store;
    SettingGroup group;
    HKEY key; // Null where every setting takes its default.

    void operator()(const DwordRow& row) const {
        const uint32_t number = row.defaultNumber.Of(store);
        DwordSetting& setting = store.*row.member;
        if (key == nullptr) {
            setting.TakeDefault(number, row.name, group);
        } else {
            setting.Load(key, number, row.name, group);
        }
    }

    void operator()(const TextRow& row) const {
        const WideString text = row.defaultText.Of(store);
        StringSetting& setting = store.*row.member;
        if (key == nullptr) {
            setting.TakeDefault(text.CStr(), row.name, group);
        } else {
            setting.Load(key, text.CStr(), row.name, group);
        }
    }

    void operator()(const BitsRow& row) const {
        BitsSetting& setting = store.*row.member;
        if (key == nullptr) {
            setting.TakeDefault(row.bitCount, false, row.name, group);
        } else {
            setting.Load(key, row.bitCount, false, row.name, group);
        }
    }

    void operator()(const FontRow& row) const {
        const FontDefaults defaults = {row.weight, computed_defaults::FontHeight(store),
                                       row.strikeOut};
        const wchar_t* face = store.FontFaceToUse.value.CStr();
        const bool clearType = store.ForceClearType.value != 0;
        FontSetting& setting = store.*row.member;
        if (key == nullptr) {
            setting.TakeDefault(defaults, face, clearType, row.name, group);
        } else {
            setting.Load(key, defaults, face, clearType, row.name, group);
        }
    }
};

struct RowSaver {
    const SettingsStore& store;
    HKEY key;

    void operator()(const DwordRow& row) const { (store.*row.member).Save(key); }
    void operator()(const TextRow& row) const { (store.*row.member).Save(key); }
    void operator()(const FontRow& row) const { (store.*row.member).Save(key); }
    void operator()(const BitsRow& /*row*/) const {} // Never written, see BitsSetting.
};

} // namespace

void SettingTable::Load(SettingsStore& store, HKEY key) const {
    for (const SettingRow& row : rows)
        std::visit(RowLoader{store, group, key}, row.what);
}

void SettingTable::Save(const SettingsStore& store, HKEY key) const {
    if (key == nullptr) return;
    for (const uint8_t number : saveOrder)
        std::visit(RowSaver{store, key}, rows[number].what);
}
