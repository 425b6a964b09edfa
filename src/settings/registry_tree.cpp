#include "settings/registry_tree.h"

#include <iterator>

#include "settings/registry_values.h"
#include "shell/services/handles.h"

LSTATUS SubkeyName(HKEY key, DWORD index, WideString& name) {
    wchar_t buffer[256];
    auto length = static_cast<DWORD>(std::size(buffer));
    const LSTATUS status =
        RegEnumKeyEx(key, index, buffer, &length, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_SUCCESS) name.Assign(buffer, length);
    return status;
}

namespace {

// From the last value to the first, as with the subkeys below.
void DeleteValues(HKEY key) {
    DWORD count = 0;
    RegQueryInfoKey(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, nullptr,
                    nullptr, nullptr, nullptr);
    for (; count > 0; --count) {
        wchar_t name[256];
        auto length = static_cast<DWORD>(std::size(name));
        if (RegEnumValue(key, count - 1, name, &length, nullptr, nullptr, nullptr, nullptr) ==
            ERROR_SUCCESS) {
            RegDeleteValue(key, name);
        }
    }
}

} // namespace

bool DeleteKeyTree(HKEY parent, const wchar_t* path) {
    LSTATUS status = RegDeleteKey(parent, path);
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) {
        {
            const UniqueKey key(OpenExistingKey(parent, path));
            if (key) DeleteSubkeys(key.Get());
            if (key) DeleteValues(key.Get());
        }
        status = RegDeleteKey(parent, path);
    }
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

// From the last subkey to the first: whether one goes or stays, the next number is never
// affected, so a key that will not go cannot be met twice.
void DeleteSubkeys(HKEY key, const wchar_t* keptName) {
    DWORD count = 0;
    RegQueryInfoKey(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                    nullptr, nullptr, nullptr);
    for (WideString name; count > 0; --count) {
        if (SubkeyName(key, count - 1, name) != ERROR_SUCCESS) continue;
        if (keptName != nullptr && name == keptName) continue;
        DeleteKeyTree(key, name.CStr());
    }
}
