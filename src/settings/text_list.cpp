#include "settings/text_list.h"

#include <iterator>
#include <utility>

#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"
#include "shell/services/number_text.h"

namespace {
constexpr size_t kMaxName = 256;
constexpr REGSAM kAnyAccess = 0; // The device gives every access whatever is asked.

WideString PathOf(SettingGroup group, const wchar_t* subkey) {
    WideString path(KeyOfGroup(group).path);
    path.Append(L"\\");
    path.Append(subkey);
    return path;
}
} // namespace

std::optional<std::vector<WideString>> ReadTextList(SettingGroup group, const wchar_t* subkey) {
    std::vector<WideString> texts;
    UniqueKey key;
    const LSTATUS opened = RegOpenKeyEx(KeyOfGroup(group).root, PathOf(group, subkey).CStr(), 0,
                                        kAnyAccess, key.Receive());
    if (opened == ERROR_FILE_NOT_FOUND) return texts;
    if (opened != ERROR_SUCCESS) return std::nullopt;
    for (DWORD index = 0;; ++index) {
        wchar_t name[kMaxName + 1];
        auto length = static_cast<DWORD>(std::size(name));
        DWORD type = REG_NONE;
        const LSTATUS status =
            RegEnumValue(key.Get(), index, name, &length, nullptr, &type, nullptr, nullptr);
        if (status == ERROR_MORE_DATA) continue; // A name too long to be one of a list's.
        if (status == ERROR_NO_MORE_ITEMS) return texts;
        if (status != ERROR_SUCCESS) return std::nullopt;
        if (type != REG_SZ) continue;
        if (!ReadText(key.Get(), name, texts.emplace_back())) return std::nullopt;
    }
}

void WriteTextList(SettingGroup group, const wchar_t* subkey, std::span<const WideString> texts) {
    const WideString path = PathOf(group, subkey);
    DeleteKeyTree(KeyOfGroup(group).root, path.CStr());
    const UniqueKey key(OpenOrCreateKey(KeyOfGroup(group).root, path.CStr()));
    for (size_t place = 0; place < texts.size(); ++place) {
        if (texts[place].IsEmpty()) continue;
        SetTextValue(key.Get(), DecimalText(static_cast<int32_t>(place)).CStr(),
                     texts[place].CStr());
    }
}

void TextListSetting::Load(SettingGroup group, const wchar_t* subkey) {
    group_ = group;
    subkey_ = subkey;
    auto texts = ReadTextList(group, subkey);
    isKnown_ = texts.has_value();
    texts_ = isKnown_ ? std::move(*texts) : std::vector<WideString>();
    changed_ = false;
}

void TextListSetting::Set(std::vector<WideString> texts) {
    texts_ = std::move(texts);
    changed_ = true;
}

void TextListSetting::Save() const {
    if (changed_ && isKnown_) WriteTextList(group_, subkey_, texts_);
}
