// The registry as the device has it: rights are not asked about, and a key is deleted with
// everything below it. Everything else passes through, counted.

#include "calls.h"

namespace {

// As deep as Windows lets a tree of keys grow.
constexpr unsigned kMaxKeyDepth = 512;
constexpr DWORD kMaxKeyName = 256;

template <typename Call>
LONG Counted(StandInCalls kind, Call call) {
    const LONG planned = CountCall(kind);
    return planned != ERROR_SUCCESS ? planned : call();
}

// The device lets every program do everything with every key; a PC refuses some keys full access.
// `open` takes the access to ask for.
template <typename Open>
LONG WithMostAccess(Open open) {
    const LONG result = open(KEY_ALL_ACCESS);
    return result == ERROR_ACCESS_DENIED ? open(MAXIMUM_ALLOWED) : result;
}

LONG OpenKey(HKEY key, LPCWSTR subKey, DWORD options, HKEY* result) {
    return WithMostAccess(
        [&](REGSAM access) { return RegOpenKeyExW(key, subKey, options, access, result); });
}

LONG DeleteTree(HKEY parent, LPCWSTR name, unsigned depth);

// Every pass either removes the key at `index` or steps over it, so that it ends even when some
// key will not go.
void DeleteChildren(HKEY key, unsigned depth) {
    DWORD index = 0;
    for (;;) {
        wchar_t name[kMaxKeyName];
        DWORD length = kMaxKeyName;
        const LONG result =
            RegEnumKeyExW(key, index, name, &length, nullptr, nullptr, nullptr, nullptr);
        if (result != ERROR_SUCCESS) return;
        if (DeleteTree(key, name, depth) != ERROR_SUCCESS) ++index;
    }
}

LONG DeleteTree(HKEY parent, LPCWSTR name, unsigned depth) {
    if (depth == kMaxKeyDepth) return ERROR_STACK_OVERFLOW;
    HKEY key = nullptr;
    const LONG result = OpenKey(parent, name, 0, &key);
    if (result != ERROR_SUCCESS) return result;
    DeleteChildren(key, depth + 1);
    RegCloseKey(key);
    return RegDeleteKeyW(parent, name);
}

} // namespace

extern "C" {

LONG WINAPI CoreRegCreateKeyExW(HKEY key, LPCWSTR subKey, DWORD reserved, LPWSTR keyClass,
                                DWORD options, REGSAM, LPSECURITY_ATTRIBUTES security, PHKEY result,
                                LPDWORD disposition) {
    return Counted(kRegCreateKeyCalls, [&] {
        return WithMostAccess([&](REGSAM access) {
            return RegCreateKeyExW(key, subKey, reserved, keyClass, options, access, security,
                                   result, disposition);
        });
    });
}

LONG WINAPI CoreRegOpenKeyExW(HKEY key, LPCWSTR subKey, DWORD options, REGSAM, PHKEY result) {
    return Counted(kRegOpenKeyCalls, [&] { return OpenKey(key, subKey, options, result); });
}

LONG WINAPI CoreRegCloseKey(HKEY key) {
    return Counted(kRegCloseKeyCalls, [&] { return RegCloseKey(key); });
}

LONG WINAPI CoreRegFlushKey(HKEY key) {
    return Counted(kRegFlushKeyCalls, [&] { return RegFlushKey(key); });
}

LONG WINAPI CoreRegDeleteKeyW(HKEY key, LPCWSTR subKey) {
    return Counted(kRegDeleteKeyCalls, [&]() -> LONG {
        // A PC takes an empty name for the key itself, which would empty a whole root.
        if (!subKey || !*subKey) return ERROR_INVALID_PARAMETER;
        return DeleteTree(key, subKey, 0);
    });
}

LONG WINAPI CoreRegEnumKeyExW(HKEY key, DWORD index, LPWSTR name, LPDWORD nameLength,
                              LPDWORD reserved, LPWSTR keyClass, LPDWORD classLength,
                              PFILETIME written) {
    return Counted(kRegEnumKeyCalls, [&] {
        return RegEnumKeyExW(key, index, name, nameLength, reserved, keyClass, classLength,
                             written);
    });
}

LONG WINAPI CoreRegQueryValueExW(HKEY key, LPCWSTR name, LPDWORD reserved, LPDWORD type,
                                 LPBYTE data, LPDWORD size) {
    return Counted(kRegQueryValueCalls,
                   [&] { return RegQueryValueExW(key, name, reserved, type, data, size); });
}

LONG WINAPI CoreRegSetValueExW(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data,
                               DWORD size) {
    return Counted(kRegSetValueCalls,
                   [&] { return RegSetValueExW(key, name, reserved, type, data, size); });
}

LONG WINAPI CoreRegDeleteValueW(HKEY key, LPCWSTR name) {
    return Counted(kRegDeleteValueCalls, [&] { return RegDeleteValueW(key, name); });
}

LONG WINAPI CoreRegEnumValueW(HKEY key, DWORD index, LPWSTR name, LPDWORD nameLength,
                              LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size) {
    return Counted(kRegEnumValueCalls, [&] {
        return RegEnumValueW(key, index, name, nameLength, reserved, type, data, size);
    });
}

LONG WINAPI CoreRegQueryInfoKeyW(HKEY key, LPWSTR keyClass, LPDWORD classLength, LPDWORD reserved,
                                 LPDWORD subkeys, LPDWORD longestSubkey, LPDWORD longestClass,
                                 LPDWORD values, LPDWORD longestName, LPDWORD longestData,
                                 LPDWORD securitySize, PFILETIME written) {
    return Counted(kRegQueryInfoCalls, [&] {
        return RegQueryInfoKeyW(key, keyClass, classLength, reserved, subkeys, longestSubkey,
                                longestClass, values, longestName, longestData, securitySize,
                                written);
    });
}

} // extern "C"
