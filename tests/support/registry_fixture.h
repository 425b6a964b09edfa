// A registry of the test's own: HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE lead into keys that are
// empty when a test starts and gone when it ends.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

struct StoredValue {
    DWORD type = REG_NONE;
    std::vector<BYTE> bytes;

    bool operator==(const StoredValue&) const = default;
};

// "path\name" of each value below a root; a key itself is "path\" with no type and no bytes.
using RegistryTree = std::map<std::wstring, StoredValue>;

class RegistryFixture : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
};

// The setters create the key where it is missing.
void SetValue(HKEY root, const std::wstring& path, const std::wstring& name, DWORD type,
              const void* bytes, size_t size);
void SetNumber(HKEY root, const std::wstring& path, const std::wstring& name, uint32_t number);
void SetText(HKEY root, const std::wstring& path, const std::wstring& name,
             const std::wstring& text);

// Empty where the key or the value is missing, or it is no REG_DWORD of four bytes or no REG_SZ
// with a terminator.
std::optional<uint32_t> GetNumber(HKEY root, const std::wstring& path, const std::wstring& name);
std::optional<std::wstring> GetText(HKEY root, const std::wstring& path, const std::wstring& name);
bool HasValue(HKEY root, const std::wstring& path, const std::wstring& name);
bool HasKey(HKEY root, const std::wstring& path);

RegistryTree GetTree(HKEY root);

// Where the fixture's registry really is, and how another process comes to share it.
std::wstring RegistryOfThisProcess();
void ShareRegistry(const std::wstring& path);
