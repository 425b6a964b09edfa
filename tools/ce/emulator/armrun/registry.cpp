// The registry, in memory: the device's calls with its errors. Keys are given out by name, as on a
// PC; values in the order in which they came.
#include <algorithm>
#include <cstring>
#include <map>

#include "handles.h"
#include "host.h"
#include "planned_faults.h"

namespace {

constexpr uint32_t kUserRoot = 0x80000001;
constexpr uint32_t kMachineRoot = 0x80000002;
constexpr uint32_t kCreated = 1;
constexpr uint32_t kOpened = 2;
constexpr size_t kLongestName = 255; // Of a key.

using Text = const char16_t*;

struct Value {
    std::u16string name;
    uint32_t type = 0;
    std::vector<uint8_t> data;
};

struct Key {
    std::u16string name;
    std::vector<std::shared_ptr<Key>> keys;
    std::vector<Value> values;
    bool deleted = false;
};

struct OpenKey final : Object {
    static constexpr Kind kKind = Kind::Key;
    explicit OpenKey(std::shared_ptr<Key> opened) : Object(kKind), key(std::move(opened)) {}

    std::shared_ptr<Key> key;
};

std::map<uint32_t, std::shared_ptr<Key>> roots = {{kUserRoot, std::make_shared<Key>()},
                                                  {kMachineRoot, std::make_shared<Key>()}};
std::map<uint32_t, std::shared_ptr<Key>> overrides;

template <class List>
auto FindNamed(List& list, std::u16string_view name) {
    return std::find_if(list.begin(), list.end(), [lower = Lower(name)](const auto& entry) {
        if constexpr (requires { entry->name; })
            return Lower(entry->name) == lower;
        else
            return Lower(entry.name) == lower;
    });
}

std::shared_ptr<Key> KeyOf(uint32_t handle) {
    if (const auto found = overrides.find(handle); found != overrides.end()) return found->second;
    if (const auto found = roots.find(handle); found != roots.end()) return found->second;
    const auto* open = Opened<OpenKey>(handle);
    return open ? open->key : nullptr;
}

// Calls work(key) for the handle's key, unless the call is planned to fail or the key is gone.
template <class Work>
uint32_t WithKey(CallKind kind, uint32_t handle, Work work) {
    if (const uint32_t planned = CountCall(kind)) return planned;
    const std::shared_ptr<Key> key = KeyOf(handle);
    if (!key) return kInvalidHandleError;
    return key->deleted ? kKeyDeleted : work(*key);
}

// The key at a path below another; missing ones are made when `created` is given, which tells.
std::shared_ptr<Key> Walk(const std::shared_ptr<Key>& from, std::u16string_view path,
                          bool* created) {
    std::shared_ptr<Key> key = from;
    while (!path.empty()) {
        const size_t end = std::min(path.find(u'\\'), path.size());
        const std::u16string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name.empty()) continue;
        const auto found = FindNamed(key->keys, name);
        if (found != key->keys.end()) {
            key = *found;
            continue;
        }
        if (!created || name.size() > kLongestName) return nullptr;
        auto made = std::make_shared<Key>();
        made->name = name;
        const auto after =
            std::ranges::find_if(key->keys, [lower = Lower(name)](const auto& other) {
                return Lower(other->name) > lower;
            });
        key->keys.insert(after, made);
        key = made;
        *created = true;
    }
    return key;
}

uint32_t HandOut(std::shared_ptr<Key> key, uint32_t* result) {
    *result = handles.Add(std::make_shared<OpenKey>(std::move(key)));
    return kSuccess;
}

void MarkDeleted(Key& key) {
    key.deleted = true;
    for (const auto& below : key.keys)
        MarkDeleted(*below);
}

// Copies data to where there is room for *size bytes, and says how many there are.
uint32_t PutData(const std::vector<uint8_t>& data, uint8_t* buffer, uint32_t* size) {
    if (!size) return buffer ? kInvalidParameter : kSuccess;
    const uint32_t room = *size;
    *size = static_cast<uint32_t>(data.size());
    if (!buffer) return kSuccess;
    if (room < data.size()) return kMoreData;
    memcpy(buffer, data.data(), data.size());
    return kSuccess;
}

// The same for a name, whose length in characters is told without its end.
uint32_t PutName(std::u16string_view name, char16_t* buffer, uint32_t* length) {
    if (*length <= name.size()) return kMoreData;
    PutText(buffer, *length, name);
    *length = static_cast<uint32_t>(name.size());
    return kSuccess;
}

uint32_t RegCreateKeyExW(uint32_t parent, Text path, uint32_t, Text, uint32_t, uint32_t, void*,
                         uint32_t* result, uint32_t* disposition) {
    return WithKey(kCreateKey, parent, [&](Key&) -> uint32_t {
        bool created = false;
        auto key = Walk(KeyOf(parent), path, &created);
        if (!key) return kInvalidParameter;
        if (disposition) *disposition = created ? kCreated : kOpened;
        return HandOut(std::move(key), result);
    });
}

uint32_t RegOpenKeyExW(uint32_t parent, Text path, uint32_t, uint32_t, uint32_t* result) {
    return WithKey(kOpenKey, parent, [&](Key&) -> uint32_t {
        auto key = Walk(KeyOf(parent), path ? path : u"", nullptr);
        return key ? HandOut(std::move(key), result) : kFileNotFound;
    });
}

uint32_t RegCloseKey(uint32_t handle) {
    if (const uint32_t planned = CountCall(kCloseKey)) return planned;
    if (roots.contains(handle)) return kSuccess;
    return Opened<OpenKey>(handle) && handles.Remove(handle) ? kSuccess : kInvalidHandleError;
}

uint32_t RegFlushKey(uint32_t handle) {
    return WithKey(kFlushKey, handle, [](Key&) -> uint32_t { return kSuccess; });
}

// The device's call, which deletes what is below as well.
uint32_t RegDeleteKeyW(uint32_t parent, Text path) {
    return WithKey(kDeleteKey, parent, [&](Key&) -> uint32_t {
        if (!path || !*path) return kInvalidParameter;
        const std::u16string_view whole(path);
        const size_t bar = whole.rfind(u'\\');
        const bool nested = bar != std::u16string_view::npos;
        const auto holder = Walk(KeyOf(parent), nested ? whole.substr(0, bar) : u"", nullptr);
        if (!holder) return kFileNotFound;
        const auto found = FindNamed(holder->keys, nested ? whole.substr(bar + 1) : whole);
        if (found == holder->keys.end()) return kFileNotFound;
        MarkDeleted(**found);
        holder->keys.erase(found);
        return kSuccess;
    });
}

uint32_t RegEnumKeyExW(uint32_t handle, uint32_t index, char16_t* name, uint32_t* length, uint32_t*,
                       char16_t*, uint32_t*, void*) {
    return WithKey(kEnumKey, handle, [&](Key& key) -> uint32_t {
        if (index >= key.keys.size()) return kNoMoreItems;
        return PutName(key.keys[index]->name, name, length);
    });
}

uint32_t RegQueryValueExW(uint32_t handle, Text name, uint32_t*, uint32_t* type, uint8_t* data,
                          uint32_t* size) {
    return WithKey(kQueryValue, handle, [&](Key& key) -> uint32_t {
        const auto found = FindNamed(key.values, name ? name : u"");
        if (found == key.values.end()) return kFileNotFound;
        if (type) *type = found->type;
        return PutData(found->data, data, size);
    });
}

uint32_t RegSetValueExW(uint32_t handle, Text name, uint32_t, uint32_t type, const uint8_t* data,
                        uint32_t size) {
    return WithKey(kSetValue, handle, [&](Key& key) -> uint32_t {
        auto found = FindNamed(key.values, name ? name : u"");
        if (found == key.values.end()) {
            found = key.values.emplace(found);
            found->name = name ? name : u"";
        }
        found->type = type;
        found->data.assign(data, data + (data ? size : 0));
        return kSuccess;
    });
}

uint32_t RegDeleteValueW(uint32_t handle, Text name) {
    return WithKey(kDeleteValue, handle, [&](Key& key) -> uint32_t {
        const auto found = FindNamed(key.values, name ? name : u"");
        if (found == key.values.end()) return kFileNotFound;
        key.values.erase(found);
        return kSuccess;
    });
}

uint32_t RegEnumValueW(uint32_t handle, uint32_t index, char16_t* name, uint32_t* length, uint32_t*,
                       uint32_t* type, uint8_t* data, uint32_t* size) {
    return WithKey(kEnumValue, handle, [&](Key& key) -> uint32_t {
        if (index >= key.values.size()) return kNoMoreItems;
        const Value& value = key.values[index];
        if (type) *type = value.type;
        const uint32_t named = PutName(value.name, name, length);
        const uint32_t given = PutData(value.data, data, size);
        return named != kSuccess ? named : given;
    });
}

// The longest of the sizes that `size` gives for a list's entries.
template <class List, class Size>
uint32_t Longest(const List& list, Size size) {
    size_t longest = 0;
    for (const auto& entry : list)
        longest = std::max(longest, size(entry));
    return static_cast<uint32_t>(longest);
}

uint32_t RegQueryInfoKeyW(uint32_t handle, char16_t*, uint32_t*, uint32_t*, uint32_t* keys,
                          uint32_t* longestKey, uint32_t*, uint32_t* values, uint32_t* longestName,
                          uint32_t* longestData, uint32_t*, void*) {
    return WithKey(kQueryInfo, handle, [&](Key& key) -> uint32_t {
        if (keys) *keys = static_cast<uint32_t>(key.keys.size());
        if (values) *values = static_cast<uint32_t>(key.values.size());
        if (longestKey)
            *longestKey = Longest(key.keys, [](auto& below) { return below->name.size(); });
        if (longestName)
            *longestName = Longest(key.values, [](auto& value) { return value.name.size(); });
        if (longestData)
            *longestData = Longest(key.values, [](auto& value) { return value.data.size(); });
        return kSuccess;
    });
}

// The tests' way to a registry of their own.
uint32_t RegOverridePredefKey(uint32_t root, uint32_t handle) {
    overrides.erase(root);
    if (handle != 0) overrides[root] = KeyOf(handle);
    return kSuccess;
}

} // namespace

const std::vector<HostEntry>& RegistryCalls() {
    static const std::vector<HostEntry> entries = {
        SERVE(RegCreateKeyExW),  SERVE(RegOpenKeyExW),    SERVE(RegCloseKey),
        SERVE(RegFlushKey),      SERVE(RegDeleteKeyW),    SERVE(RegEnumKeyExW),
        SERVE(RegQueryValueExW), SERVE(RegSetValueExW),   SERVE(RegDeleteValueW),
        SERVE(RegEnumValueW),    SERVE(RegQueryInfoKeyW), SERVE(RegOverridePredefKey),
    };
    return entries;
}
