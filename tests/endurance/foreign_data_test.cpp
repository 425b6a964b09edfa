// A registry that something else filled: values of every type and size under the program's own
// names, and values and keys of others beside them. OV_SEED chooses other values, OV_ROUNDS how
// many times.

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <random>
#include <string>
#include <vector>

#include "settings/settings_store.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "tests/endurance/environment.h"
#include "tests/settings/every_setting.h"
#include "tests/support/every_window.h"
#include "tests/support/registry_fixture.h"

namespace {
constexpr wchar_t kForeign[] = L"foreign дом"; // A value that is nothing of ours.

// What the store repairs when it is loaded or saved, in relation to other values.
bool IsRepaired(const std::wstring& name) {
    return name.starts_with(L"CalTitlesOrder") || name == L"dNumOfDays" ||
           name == L"TimelinesLength" || name == L"ActiveTab" || name == L"dHeightLimitLandscape" ||
           name == L"PinnedMonthlyClr" || name.ends_with(L"TabOrder");
}

// A value's place, as the registry compares it.
std::wstring PlaceOf(HKEY root, std::wstring path) {
    std::ranges::transform(path, path.begin(), towlower);
    return (root == HKEY_CURRENT_USER ? L"user " : L"machine ") + path;
}

RegistryTree AllValues() {
    RegistryTree all;
    for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        for (const auto& [path, value] : GetTree(root))
            all[PlaceOf(root, path)] = value;
    }
    return all;
}

class ForeignData : public RegistryFixture {
  protected:
    void TearDown() override {
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        RegistryFixture::TearDown();
    }

    uint32_t Below(uint32_t limit) { return static_cast<uint32_t>(random_()) % limit; }

    StoredValue SomeValue() {
        constexpr DWORD kTypes[] = {REG_NONE,     REG_SZ,    REG_EXPAND_SZ, REG_BINARY,
                                    REG_DWORD,    REG_DWORD, REG_DWORD,     REG_DWORD_BIG_ENDIAN,
                                    REG_MULTI_SZ, REG_QWORD, 0xFFFFFFF0};
        constexpr size_t kSizes[] = {0, 1, 2, 3, 4, 4, 4, 4, 5, 8, 9, 16, 37, 300, 5001};
        constexpr uint32_t kNumbers[] = {0,  1,   2,          3,          9,         18,
                                         60, 121, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        StoredValue value{kTypes[Below(std::size(kTypes))], {}};
        value.bytes.resize(kSizes[Below(std::size(kSizes))]);
        for (BYTE& byte : value.bytes)
            byte = static_cast<BYTE>(Below(256));
        if (value.bytes.size() == sizeof(uint32_t) && Below(4) != 0)
            memcpy(value.bytes.data(), &kNumbers[Below(std::size(kNumbers))], sizeof(uint32_t));
        return value;
    }
    void Plant(HKEY root, const std::wstring& path, const std::wstring& name) {
        const StoredValue value = SomeValue();
        SetValue(root, path, name, value.type, value.bytes.data(), value.bytes.size());
    }

    void Fill() {
        ForEachRow([&](const SettingTable& table, const SettingRow& row) {
            const GroupKey key = KeyOfGroup(table.group);
            for (const std::wstring& name : NamesOf(row)) {
                // Without the folder of the program there are no texts and no pictures.
                if (name == L"ProgramFiles" ? Below(3) == 0 : Below(8) != 0)
                    Plant(key.root, key.path, name);
            }
            Plant(key.root, key.path, kForeign);
            // A key below the tabs is a tab of the user's.
            const bool isTabs = table.group == SettingGroup::Tabs;
            Plant(key.root, std::wstring(key.path) + (isTabs ? L"\\Contacts" : L"\\Foreign"),
                  kForeign);
        });
        const std::wstring own = KeyOfGroup(SettingGroup::Root).path;
        for (const wchar_t* name :
             {L"Order", L"Enabled", L"Type", L"DLL", L"InstallPath", L"CustomIconName"})
            Plant(HKEY_CURRENT_USER, own + L"\\TabSettings\\Weather", name);
        for (const wchar_t* name : {L"0", L"1", L"2", L"x"}) {
            Plant(HKEY_CURRENT_USER, own + L"\\Notes\\Folders", name);
            Plant(HKEY_CURRENT_USER, own + L"\\Contacts\\Alphabets", name);
            Plant(HKEY_CURRENT_USER, own + L"\\Categories", std::wstring(L"CatColor.") + name);
        }
        for (const wchar_t* name : {L"Type", L"Enabled", L"DLL"})
            Plant(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Today\\Items\\Weather", name);
    }

    std::mt19937 random_;
};

void LoadAndSave() {
    SettingsStore store;
    HMODULE library = nullptr;
    store.Load(library);
    store.Save();
    FreeLibrary(library);
}

// A save leaves alone what the user did not change, and repairs what is to be repaired at once.
void ExpectSavedAsItIs() {
    const RegistryTree before = AllValues();
    LoadAndSave();
    RegistryTree after = AllValues();
    ForEachRow([&](const SettingTable& table, const SettingRow& row) {
        const GroupKey key = KeyOfGroup(table.group);
        for (const std::wstring& name : NamesOf(row)) {
            const std::wstring place = PlaceOf(key.root, key.path + (L"\\" + name));
            if (IsRepaired(name) || !before.contains(place)) continue;
            EXPECT_EQ(after[place], before.at(place)) << name;
        }
    });
    LoadAndSave();
    const RegistryTree settled = AllValues();
    LoadAndSave();
    EXPECT_EQ(AllValues(), settled);
}

TEST_F(ForeignData, IsLoadedShownAndKept) {
    const int first = NumberFrom("OV_SEED", 1);
    const int rounds = NumberFrom("OV_ROUNDS", 2);
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        SCOPED_TRACE("seed " + std::to_string(first + round));
        if (round > 0) {
            RegistryFixture::TearDown();
            RegistryFixture::SetUp();
        }
        random_.seed(static_cast<uint32_t>(first + round));
        Fill();
        const RegistryTree planted = AllValues();

        application.instance = GetModuleHandle(nullptr);
        HWND window = CreateMainWindow(application.instance);
        ASSERT_NE(window, nullptr);
        ExpectSavedAsItIs();
        const MessageBoxAnswer answer(IDOK);
        for (int page = 0; page < kPageCount; ++page)
            VisitPage(window, page, [](HWND) {});
        SendMessage(window, WM_COMMAND, IDOK, 0);
        ASSERT_FALSE(IsWindow(window));
        PumpMessages();

        ExpectStoredAsHeld();
        RegistryTree kept = AllValues();
        for (const auto& [path, value] : planted) {
            if (!path.ends_with(kForeign)) continue;
            EXPECT_EQ(kept[path], value) << path;
        }
    }
}

} // namespace
