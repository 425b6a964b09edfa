#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <vector>

#include "settings/setting.h"
#include "shell/services/wide_string.h"

// Lists of texts, each kept in a key of its own below a group's key, as texts (REG_SZ) that are
// named by their position: "0", "1", … No registry failure is reported.

// The texts of the subkey in the order in which the platform enumerates its values, whatever their
// names (up to 256 characters); values of other types are passed over. A subkey that is missing
// holds an empty list. None when the platform cannot tell: such a list is not to be replaced.
[[nodiscard]] std::optional<std::vector<WideString>> ReadTextList(SettingGroup group,
                                                                  const wchar_t* subkey);

// Replaces the subkey, with all that it holds; an empty text leaves out its position.
void WriteTextList(SettingGroup group, const wchar_t* subkey, std::span<const WideString> texts);

// A list that is loaded and saved with the store. One that could not be read is empty, and stays as
// it is in the registry.
class TextListSetting {
  public:
    void Load(SettingGroup group, const wchar_t* subkey);
    [[nodiscard]] const std::vector<WideString>& Texts() const { return texts_; }
    // Whether it could be read: otherwise what is set is not saved.
    [[nodiscard]] bool IsKnown() const { return isKnown_; }
    void Set(std::vector<WideString> texts);
    // Writes the list when it was set since the load.
    void Save() const;

  private:
    SettingGroup group_ = SettingGroup::Root;
    const wchar_t* subkey_ = nullptr;
    std::vector<WideString> texts_;
    bool isKnown_ = false;
    bool changed_ = false;
};
