#include <gtest/gtest.h>

#include <stand_in.h>

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
    static HKEY Open(HKEY parent, const wchar_t* name) {
        HKEY key = nullptr;
        return RegOpenKeyExW(parent, name, 0, 0, &key) == ERROR_SUCCESS ? key : nullptr;
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
}

TEST_F(RegistryTest, CallsAreCountedByKind) {
    const HKEY key = Create(root_, L"A");
    SetNumber(key, L"x", 1);
    SetNumber(key, L"y", 2);
    Number(key, L"x");
    RegCloseKey(key);
    EXPECT_EQ(StandInCallCount(kRegSetValueCalls), 2u);
    EXPECT_EQ(StandInCallCount(kRegCreateKeyCalls | kRegCloseKeyCalls), 2u);
    EXPECT_EQ(StandInCallCount(kRegistryCalls), 5u);
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
}

} // namespace
