#include "settings/registry_values.h"

#include <cwchar>
#include <memory>
#include <new>

namespace {

// The device gives every access whatever is asked.
constexpr REGSAM kAnyAccess = 0;

} // namespace

HKEY OpenOrCreateKey(HKEY root, const wchar_t* path) {
    HKEY key = nullptr;
    RegCreateKeyEx(root, path, 0, nullptr, 0, kAnyAccess, nullptr, &key, nullptr);
    return key;
}

HKEY OpenExistingKey(HKEY root, const wchar_t* path) {
    HKEY key = nullptr;
    RegOpenKeyEx(root, path, 0, kAnyAccess, &key);
    return key;
}

uint32_t ReadNumber(HKEY key, const wchar_t* name, uint32_t fallback) {
    uint32_t number = 0;
    DWORD size = sizeof number;
    auto* bytes = reinterpret_cast<BYTE*>(&number);
    if (key == nullptr) return fallback;
    return RegQueryValueEx(key, name, nullptr, nullptr, bytes, &size) == ERROR_SUCCESS ? number
                                                                                       : fallback;
}

bool ReadText(HKEY key, const wchar_t* name, WideString& text) {
    DWORD size = 0;
    if (key == nullptr) return false;
    if (RegQueryValueEx(key, name, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) return false;

    // Rounded up, so that a value of an odd size fits; the odd byte is no character.
    const size_t room = size / sizeof(wchar_t) + 1;
    const std::unique_ptr<wchar_t[]> buffer(new (std::nothrow) wchar_t[room]);
    if (buffer == nullptr) return false;
    auto* bytes = reinterpret_cast<BYTE*>(buffer.get());
    if (RegQueryValueEx(key, name, nullptr, nullptr, bytes, &size) != ERROR_SUCCESS) return false;
    text.Assign(buffer.get(), size / sizeof(wchar_t));
    return true;
}

// Dropping a failed write is the rule of the whole model, so no result is looked at here.
void SetNumberValue(HKEY key, const wchar_t* name, uint32_t value) {
    if (key == nullptr) return;
    RegSetValueEx(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
}

void SetTextValue(HKEY key, const wchar_t* name, const wchar_t* text) {
    if (key == nullptr) return;
    const auto size = static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t));
    RegSetValueEx(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size);
}

void WriteNumber(HKEY key, const wchar_t* name, uint32_t value, uint32_t defaultValue) {
    if (key == nullptr) return;
    if (value == defaultValue) {
        RegDeleteValue(key, name);
    } else {
        SetNumberValue(key, name, value);
    }
}

void WriteText(HKEY key, const wchar_t* name, const wchar_t* text, const wchar_t* defaultText) {
    if (key == nullptr) return;
    if (std::wcscmp(text, defaultText) == 0) {
        RegDeleteValue(key, name);
    } else {
        SetTextValue(key, name, text);
    }
}
