#include <gtest/gtest.h>

#include <stand_in.h>

#include <vector>

namespace {

constexpr wchar_t kRoot[] = L"Software\\StandInTest";

class RegistryTest : public testing::Test {
  protected:
    RegistryTest() {
        RegCreateKeyExW(HKEY_CURRENT_USER, kRoot, 0, nullptr, 0, 0, nullptr, &root_, nullptr);
        StandInResetCalls();
    }
    ~RegistryTest() override {
        StandInResetCalls();
        RegCloseKey(root_);
        RegDeleteKeyW(HKEY_CURRENT_USER, kRoot);
    }

    static HKEY Create(HKEY parent, const wchar_t* name) {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(parent, name, 0, nullptr, 0, 0, nullptr, &key, nullptr), 0);
        return key;
    }
    static HKEY Open(HKEY parent, const wchar_t* name, REGSAM access = 0) {
        HKEY key = nullptr;
        return RegOpenKeyExW(parent, name, 0, access, &key) == ERROR_SUCCESS ? key : nullptr;
    }
    static LONG SetNumber(HKEY key, const wchar_t* name, DWORD number) {
        return RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<BYTE*>(&number),
                              sizeof number);
    }
    static DWORD Number(HKEY key, const wchar_t* name) {
        DWORD number = 0xDEAD;
        DWORD size = sizeof number;
        RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&number), &size);
        return number;
    }

    HKEY root_ = nullptr;
};

TEST_F(RegistryTest, KeyGivesFullAccessWhateverIsAsked) {
    for (const HKEY key : {Create(root_, L"A"), Open(root_, L"A"), Open(root_, L"A", KEY_READ)}) {
        EXPECT_EQ(SetNumber(key, L"value", 7), ERROR_SUCCESS);
        EXPECT_EQ(Number(key, L"value"), 7u);
        EXPECT_EQ(RegDeleteValueW(key, L"value"), ERROR_SUCCESS);
        RegCloseKey(key);
    }
}

TEST_F(RegistryTest, DeleteTakesEverythingBelow) {
    for (const wchar_t* path : {L"Tree\\1\\a", L"Tree\\1\\b\\c", L"Tree\\2", L"Beside"})
        RegCloseKey(Create(root_, path));
    EXPECT_EQ(RegDeleteKeyW(root_, L"Tree"), ERROR_SUCCESS);
    EXPECT_EQ(Open(root_, L"Tree"), nullptr);
    const HKEY beside = Open(root_, L"Beside");
    EXPECT_NE(beside, nullptr);
    RegCloseKey(beside);

    EXPECT_EQ(RegDeleteKeyW(root_, L"Tree"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegDeleteKeyW(root_, L""), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegDeleteKeyW(root_, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(StandInCallCount(kRegDeleteKeyCalls), 4u);
}

// A chain beyond the depth that is gone down to, which Wine allows, stands for what will not go.
TEST_F(RegistryTest, DeleteEndsWhenAChildStays) {
    std::vector<HKEY> chain = {Create(root_, L"Tree")};
    RegCloseKey(Create(chain[0], L"a sibling before"));
    RegCloseKey(Create(chain[0], L"z sibling behind"));
    while (chain.size() < 600)
        chain.push_back(Create(chain.back(), L"k"));
    EXPECT_NE(RegDeleteKeyW(root_, L"Tree"), ERROR_SUCCESS);
    EXPECT_EQ(Open(chain[0], L"a sibling before"), nullptr);
    EXPECT_EQ(Open(chain[0], L"z sibling behind"), nullptr);
    EXPECT_EQ(RegDeleteKeyW(chain[300], L"k"), ERROR_SUCCESS);
    for (const HKEY key : chain)
        RegCloseKey(key);
    EXPECT_EQ(RegDeleteKeyW(root_, L"Tree"), ERROR_SUCCESS);
}

TEST_F(RegistryTest, CallsAreCountedByKind) {
    const HKEY key = Create(root_, L"A");
    SetNumber(key, L"x", 1);
    SetNumber(key, L"y", 2);
    Number(key, L"x");
    wchar_t name[8];
    DWORD length = 8;
    EXPECT_EQ(RegEnumValueW(key, 0, name, &length, nullptr, nullptr, nullptr, nullptr), 0);
    length = 8;
    EXPECT_EQ(RegEnumKeyExW(root_, 0, name, &length, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_STREQ(name, L"A");
    EXPECT_EQ(RegFlushKey(key), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(StandInCallCount(kRegSetValueCalls), 2u);
    for (const ULONG calls : {kRegCreateKeyCalls, kRegCloseKeyCalls, kRegFlushKeyCalls,
                              kRegEnumKeyCalls, kRegQueryValueCalls, kRegEnumValueCalls})
        EXPECT_EQ(StandInCallCount(calls), 1u) << calls;
    EXPECT_EQ(StandInCallCount(kRegSetValueCalls | kRegOpenKeyCalls | kRegFlushKeyCalls), 3u);
    EXPECT_EQ(StandInCallCount(kRegistryCalls), 8u);
    StandInResetCalls();
    EXPECT_EQ(StandInCallCount(kRegistryCalls), 0u);
}

TEST_F(RegistryTest, PlannedCallFailsAndDoesNothing) {
    StandInFailCall(kRegSetValueCalls, 2, ERROR_DISK_FULL);
    EXPECT_EQ(SetNumber(root_, L"x", 1), ERROR_SUCCESS);
    EXPECT_EQ(Number(root_, L"x"), 1u);
    EXPECT_EQ(SetNumber(root_, L"x", 2), ERROR_DISK_FULL);
    EXPECT_EQ(Number(root_, L"x"), 1u);
    EXPECT_EQ(SetNumber(root_, L"x", 3), ERROR_SUCCESS);

    StandInFailCall(kRegistryCalls, 1, ERROR_ACCESS_DENIED);
    EXPECT_EQ(Open(root_, nullptr), nullptr);
    StandInFailCall(kRegistryCalls, 1, ERROR_ACCESS_DENIED);
    StandInFailCall(kRegistryCalls, 0, ERROR_ACCESS_DENIED);
    EXPECT_EQ(Number(root_, L"x"), 3u);
}

} // namespace
