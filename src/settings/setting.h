#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>

#include "shell/services/handles.h"
#include "shell/services/wide_string.h"

// The registry key that a setting lives in.
enum class SettingGroup : uint32_t {
    TodayItem = 0, // HKEY_LOCAL_MACHINE; groups 0 to 2 are only read.
    PocketInformant = 1,
    AgendaFusion = 2, // HKEY_LOCAL_MACHINE
    Root = 3,
    Calendar = 4,
    Tasks = 5,
    Notes = 6,
    Contacts = 7,
    Messages = 8,
    SpecialEvents = 9,
    Fonts = 10,
    Colours = 11,
    Pim = 12,
    Tabs = 13,
    Categories = 14,
};

// Where a group is kept: a root of 0 and a null path for a group that has no key.
struct GroupKey {
    HKEY root;
    const wchar_t* path;
};
[[nodiscard]] GroupKey KeyOfGroup(SettingGroup group);

// A colour setting of this value has no colour of its own: the built-in colour is used.
inline constexpr uint32_t kNoColour = 0xFFFFFFFF;

// What every setting knows: its value's name, its key, and whether it was set during this run.
// The registry holds only deviations: saving a value that equals its default deletes it, and only
// a value that was set is saved. No registry failure is reported; a failed read gives the default.
struct Setting {
    bool changed = false;
    WideString name;
    SettingGroup group = SettingGroup::Root;

    // Names the setting, as one that was not set yet.
    void Bind(const wchar_t* valueName, SettingGroup settingGroup);
};

// Opens, creating it where needed, the key of a group; null on failure. The caller
// closes.
[[nodiscard]] HKEY OpenGroupKey(SettingGroup group);

// In all loads and saves: a null key makes the operation open its group's key itself; a key that
// is passed is used and left open. TakeDefault is the load for a key that is known not to open.
struct DwordSetting : Setting {
    uint32_t value = 0;
    uint32_t defaultValue = 0;

    // A value of any type counts, when it is no longer than four bytes; missing bytes are 0.
    uint32_t Load(HKEY key, uint32_t defaultNumber, const wchar_t* valueName,
                  SettingGroup settingGroup);
    void TakeDefault(uint32_t defaultNumber, const wchar_t* valueName, SettingGroup settingGroup);
    // Gives the old value.
    uint32_t Set(uint32_t newValue);
    void Save(HKEY key) const;
};

struct StringSetting : Setting {
    WideString value;
    WideString defaultValue;

    // The text loaded belongs to the setting. A value of any type and size counts, as the
    // characters before its first NUL.
    const wchar_t* Load(HKEY key, const wchar_t* defaultText, const wchar_t* valueName,
                        SettingGroup settingGroup);
    void TakeDefault(const wchar_t* defaultText, const wchar_t* valueName,
                     SettingGroup settingGroup);
    void Set(const wchar_t* text);
    void Save(HKEY key) const;
};

// A set of flags that the dashboard keeps; this program never writes it.
struct BitsSetting : Setting {
    std::unique_ptr<uint8_t[]> bits; // Flag n is bit n % 8 of byte n / 8.
    uint32_t byteCount = 0;

    // Only binary data of exactly the right size replaces the default. Without a key the flags
    // keep their default, whatever the registry holds; kept on purpose.
    void Load(HKEY key, uint32_t bitCount, bool allSet, const wchar_t* valueName,
              SettingGroup settingGroup);
    void TakeDefault(uint32_t bitCount, bool allSet, const wchar_t* valueName,
                     SettingGroup settingGroup);
};

// The key that a load or save works on: the caller's, or one opened for the occasion.
class WorkingKey {
  public:
    WorkingKey(HKEY callersKey, const Setting& setting)
        : opened_(callersKey == nullptr ? OpenGroupKey(setting.group) : nullptr),
          key_(callersKey == nullptr ? opened_.Get() : callersKey) {}
    // Null when the group's key cannot be opened.
    [[nodiscard]] HKEY Get() const { return key_; }

  private:
    UniqueKey opened_;
    HKEY key_;
};
