#include "settings/setting.h"

#include <algorithm>
#include <iterator>

#include "settings/registry_values.h"

namespace {

struct GroupPlace {
    bool ofMachine; // Below HKEY_LOCAL_MACHINE, not HKEY_CURRENT_USER.
    const wchar_t* path;
};
constexpr GroupPlace kGroupPlaces[] = {
    {true, L"Software\\Microsoft\\today\\items\\Orvane"},
    {false, L"Software\\WebIS\\PocketInformant"},
    {true, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion"},
    {false, L"Software\\Teskel\\Orvane"},
    {false, L"Software\\Teskel\\Orvane\\Calendar"},
    {false, L"Software\\Teskel\\Orvane\\Tasks"},
    {false, L"Software\\Teskel\\Orvane\\Notes"},
    {false, L"Software\\Teskel\\Orvane\\Contacts"},
    {false, L"Software\\Teskel\\Orvane\\Messages"},
    {false, L"Software\\Teskel\\Orvane\\SEvents"},
    {false, L"Software\\Teskel\\Orvane\\Fonts"},
    {false, L"Software\\Teskel\\Orvane\\Colors"},
    {false, L"Software\\Teskel\\Orvane\\CustomPIM"},
    {false, L"Software\\Teskel\\Orvane\\TabSettings"},
    {false, L"Software\\Teskel\\Orvane\\Categories"},
};

} // namespace

GroupKey KeyOfGroup(SettingGroup group) {
    const auto index = static_cast<size_t>(group);
    if (index >= std::size(kGroupPlaces)) return {nullptr, nullptr};
    const GroupPlace& place = kGroupPlaces[index];
    return {place.ofMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, place.path};
}

HKEY OpenGroupKey(SettingGroup group) {
    const GroupKey where = KeyOfGroup(group);
    return where.path == nullptr ? nullptr : OpenOrCreateKey(where.root, where.path);
}

void Setting::Bind(const wchar_t* valueName, SettingGroup settingGroup) {
    name.Assign(valueName);
    group = settingGroup;
    changed = false;
}

void DwordSetting::TakeDefault(uint32_t defaultNumber, const wchar_t* valueName,
                               SettingGroup settingGroup) {
    Bind(valueName, settingGroup);
    defaultValue = defaultNumber;
    value = defaultNumber;
}

uint32_t DwordSetting::Load(HKEY key, uint32_t defaultNumber, const wchar_t* valueName,
                            SettingGroup settingGroup) {
    TakeDefault(defaultNumber, valueName, settingGroup);
    const WorkingKey working(key, *this);
    value = ReadNumber(working.Get(), name.CStr(), defaultValue);
    return value;
}

uint32_t DwordSetting::Set(uint32_t newValue) {
    changed = true;
    return std::exchange(value, newValue);
}

void DwordSetting::Save(HKEY key) const {
    if (!changed) return;
    const WorkingKey working(key, *this);
    WriteNumber(working.Get(), name.CStr(), value, defaultValue);
}

void StringSetting::TakeDefault(const wchar_t* defaultText, const wchar_t* valueName,
                                SettingGroup settingGroup) {
    Bind(valueName, settingGroup);
    defaultValue.Assign(defaultText);
    value = defaultValue;
}

const wchar_t* StringSetting::Load(HKEY key, const wchar_t* defaultText, const wchar_t* valueName,
                                   SettingGroup settingGroup) {
    TakeDefault(defaultText, valueName, settingGroup);
    const WorkingKey working(key, *this);
    ReadText(working.Get(), name.CStr(), value);
    return value.CStr();
}

void StringSetting::Set(const wchar_t* text) {
    value.Assign(text);
    changed = true;
}

void StringSetting::Save(HKEY key) const {
    if (!changed) return;
    const WorkingKey working(key, *this);
    WriteText(working.Get(), name.CStr(), value.CStr(), defaultValue.CStr());
}

void BitsSetting::TakeDefault(uint32_t bitCount, bool allSet, const wchar_t* valueName,
                              SettingGroup settingGroup) {
    Bind(valueName, settingGroup);
    byteCount = (bitCount + 7) / 8;
    bits = std::make_unique_for_overwrite<uint8_t[]>(byteCount);
    std::fill_n(bits.get(), byteCount, allSet ? uint8_t{0xFF} : uint8_t{0});
}

void BitsSetting::Load(HKEY key, uint32_t bitCount, bool allSet, const wchar_t* valueName,
                       SettingGroup settingGroup) {
    TakeDefault(bitCount, allSet, valueName, settingGroup);
    const WorkingKey working(key, *this);
    DWORD type = 0;
    DWORD size = 0;
    // On the caller's key, even where that is null and another one was opened.
    if (RegQueryValueEx(key, name.CStr(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) return;
    if (type != REG_BINARY || size != byteCount) return;

    auto stored = std::make_unique_for_overwrite<uint8_t[]>(byteCount);
    if (RegQueryValueEx(working.Get(), name.CStr(), nullptr, nullptr, stored.get(), &size) ==
            ERROR_SUCCESS &&
        size == byteCount) {
        bits = std::move(stored);
    }
}
