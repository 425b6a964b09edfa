#include "tests/support/registry_fixture.h"

#include "shell/services/handles.h"

namespace {

UniqueKey Open(HKEY root, const std::wstring& path) {
    UniqueKey key;
    RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, key.Receive());
    return key;
}

UniqueKey Create(HKEY root, const std::wstring& path) {
    UniqueKey key;
    const LSTATUS status = RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                           nullptr, key.Receive(), nullptr);
    EXPECT_EQ(status, ERROR_SUCCESS);
    return key;
}

// Behind a text of a single byte a PC writes a terminator that it has no room for.
void Resize(std::vector<BYTE>& bytes, DWORD size) {
    bytes.reserve(size + 2 * sizeof(wchar_t));
    bytes.resize(size);
}

std::optional<StoredValue> ReadValue(HKEY root, const std::wstring& path,
                                     const std::wstring& name) {
    const UniqueKey key = Open(root, path);
    DWORD size = 0;
    StoredValue value;
    if (RegQueryValueExW(key.Get(), name.c_str(), nullptr, nullptr, nullptr, &size) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    Resize(value.bytes, size);
    RegQueryValueExW(key.Get(), name.c_str(), nullptr, &value.type, value.bytes.data(), &size);
    return value;
}

void AddTree(HKEY key, const std::wstring& path, RegistryTree& tree) {
    constexpr DWORD kLongestName = 16384;
    std::wstring name(kLongestName, L'\0');
    for (DWORD index = 0;; ++index) {
        DWORD length = kLongestName;
        DWORD size = 0;
        StoredValue value;
        if (RegEnumValueW(key, index, name.data(), &length, nullptr, nullptr, nullptr, &size) !=
            ERROR_SUCCESS) {
            break;
        }
        length = kLongestName;
        Resize(value.bytes, size);
        RegEnumValueW(key, index, name.data(), &length, nullptr, &value.type, value.bytes.data(),
                      &size);
        tree[path + name.substr(0, length)] = value;
    }
    for (DWORD index = 0;; ++index) {
        DWORD length = kLongestName;
        if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        const std::wstring below = name.substr(0, length);
        tree[path + below + L"\\"] = {};
        AddTree(Open(key, below).Get(), path + below + L"\\", tree);
    }
}

} // namespace

std::wstring RegistryOfThisProcess() {
    return L"Software\\OVOptions tests\\" + std::to_wstring(GetCurrentProcessId());
}

void ShareRegistry(const std::wstring& path) {
    const UniqueKey user = Create(HKEY_CURRENT_USER, path + L"\\User");
    const UniqueKey machine = Create(HKEY_CURRENT_USER, path + L"\\Machine");
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, user.Get()), ERROR_SUCCESS);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine.Get()), ERROR_SUCCESS);
}

void RegistryFixture::SetUp() {
    // What a process of the same number left when it crashed.
    RegDeleteKeyW(HKEY_CURRENT_USER, RegistryOfThisProcess().c_str());
    ShareRegistry(RegistryOfThisProcess());
    ASSERT_TRUE(GetTree(HKEY_CURRENT_USER).empty());
    ASSERT_TRUE(GetTree(HKEY_LOCAL_MACHINE).empty());
}

void RegistryFixture::TearDown() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    // The device's call, which takes what is below along.
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, RegistryOfThisProcess().c_str()), ERROR_SUCCESS);
}

void SetValue(HKEY root, const std::wstring& path, const std::wstring& name, DWORD type,
              const void* bytes, size_t size) {
    // A PC looks behind a text without a terminator, and stores one along that happens to be there.
    std::vector<BYTE> guarded(size + sizeof(wchar_t), 0xFF);
    if (size != 0) memcpy(guarded.data(), bytes, size);
    const UniqueKey key = Create(root, path);
    EXPECT_EQ(
        RegSetValueExW(key.Get(), name.c_str(), 0, type, guarded.data(), static_cast<DWORD>(size)),
        ERROR_SUCCESS);
}

void SetNumber(HKEY root, const std::wstring& path, const std::wstring& name, uint32_t number) {
    SetValue(root, path, name, REG_DWORD, &number, sizeof number);
}

void SetText(HKEY root, const std::wstring& path, const std::wstring& name,
             const std::wstring& text) {
    SetValue(root, path, name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

std::optional<uint32_t> GetNumber(HKEY root, const std::wstring& path, const std::wstring& name) {
    const auto value = ReadValue(root, path, name);
    if (!value || value->type != REG_DWORD || value->bytes.size() != 4) return std::nullopt;
    uint32_t number = 0;
    memcpy(&number, value->bytes.data(), sizeof number);
    return number;
}

std::optional<std::wstring> GetText(HKEY root, const std::wstring& path, const std::wstring& name) {
    const auto value = ReadValue(root, path, name);
    if (!value || value->type != REG_SZ) return std::nullopt;
    std::wstring text(value->bytes.size() / sizeof(wchar_t), L'\0');
    memcpy(text.data(), value->bytes.data(), text.size() * sizeof(wchar_t));
    // The terminator is part of what is stored; a text without one shows.
    if (text.empty() || text.back() != L'\0') return std::nullopt;
    text.pop_back();
    return text;
}

bool HasValue(HKEY root, const std::wstring& path, const std::wstring& name) {
    return ReadValue(root, path, name).has_value();
}

bool HasKey(HKEY root, const std::wstring& path) {
    return static_cast<bool>(Open(root, path));
}

RegistryTree GetTree(HKEY root) {
    RegistryTree tree;
    AddTree(root, L"", tree);
    return tree;
}
