// A registry that something else filled: values of every type and size under the program's own
// names, and values and keys of others beside them. OV_SEED chooses other values, OV_ROUNDS how
// many times.

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "files/category_store.h"
#include "settings/settings_store.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "tests/endurance/environment.h"
#include "tests/endurance/page_visit.h"
#include "tests/settings/every_setting.h"
#include "tests/support/registry_fixture.h"

namespace {
constexpr wchar_t kForeign[] = L"Foreign Дом";

// What a value counts as: a number of up to four bytes; a text to its first NUL.
uint32_t NumberIn(const std::optional<StoredValue>& stored, uint32_t fallback) {
    if (!stored || stored->bytes.size() > sizeof(uint32_t)) return fallback;
    uint32_t number = 0;
    std::copy(stored->bytes.begin(), stored->bytes.end(), reinterpret_cast<BYTE*>(&number));
    return number;
}

std::wstring TextIn(const std::optional<StoredValue>& stored, const WideString& fallback) {
    if (!stored) return fallback.CStr();
    std::wstring text(stored->bytes.size() / sizeof(wchar_t), L'\0');
    memcpy(text.data(), stored->bytes.data(), text.size() * sizeof(wchar_t));
    return text.c_str();
}

// What the store repairs as a whole, in relation to other values.
bool IsRepaired(const std::wstring& name) {
    return name.starts_with(L"CalTitlesOrder") || name == L"dNumOfDays" ||
           name == L"TimelinesLength" || name == L"ActiveTab";
}
// And what it repairs when it is saved.
bool IsRepairedBySaving(const std::wstring& name) {
    return name == L"dHeightLimitLandscape" || name == L"PinnedMonthlyClr" ||
           name.ends_with(L"TabOrder");
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
    StoredValue Plant(HKEY root, const std::wstring& path, const std::wstring& name) {
        StoredValue value = SomeValue();
        SetValue(root, path, name, value.type, value.bytes.data(), value.bytes.size());
        return value;
    }
    // Remembers it as nothing of ours.
    void PlantForeign(const GroupKey& key, const std::wstring& subkey) {
        const std::wstring path = key.path + subkey;
        foreign_[PlaceOf(key.root, path + L"\\" + kForeign)] = Plant(key.root, path, kForeign);
    }

    void Fill() {
        ForEachRow([&](const SettingTable& table, const SettingRow& row) {
            const GroupKey key = KeyOfGroup(table.group);
            for (const std::wstring& name : NamesOf(row)) {
                // Without the folder of the program there are no texts and no pictures.
                if (name == L"ProgramFiles" ? Below(3) == 0 : Below(8) != 0)
                    Plant(key.root, key.path, name);
            }
            PlantForeign(key, L"");
            // A key below the tabs is a tab of the user's.
            PlantForeign(key, table.group == SettingGroup::Tabs ? L"\\Contacts" : L"\\Foreign");
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
    RegistryTree foreign_;
};

// What each row of the store holds against what the registry does.
struct ExpectLoaded {
    const SettingsStore& store;
    GroupKey key;
    const RegistryTree& all;

    std::optional<StoredValue> Stored(const std::wstring& name) const {
        const auto found = all.find(PlaceOf(key.root, key.path + (L"\\" + name)));
        return found == all.end() ? std::nullopt : std::optional(found->second);
    }
    void Expect(const DwordSetting& setting) const {
        const std::wstring name = setting.name.CStr();
        if (IsRepaired(name)) return;
        EXPECT_EQ(setting.value, NumberIn(Stored(name), setting.defaultValue)) << name;
    }
    void operator()(const DwordRow& row) const { Expect(store.*row.member); }
    void operator()(const TextRow& row) const {
        const StringSetting& setting = store.*row.member;
        EXPECT_EQ(setting.value.CStr(), TextIn(Stored(row.name), setting.defaultValue)) << row.name;
    }
    void operator()(const FontRow& row) const {
        const FontSetting& font = store.*row.member;
        for (const DwordSetting* setting : {&font.weight, &font.italic, &font.underline,
                                            &font.strikeOut, &font.height, &font.colour})
            Expect(*setting);
    }
    void operator()(const BitsRow& row) const {
        const BitsSetting& setting = store.*row.member;
        const auto stored = Stored(row.name);
        const std::vector<BYTE> bits(setting.bits.get(), setting.bits.get() + setting.byteCount);
        const bool counts =
            stored && stored->type == REG_BINARY && stored->bytes.size() == bits.size();
        EXPECT_EQ(bits, counts ? stored->bytes : std::vector<BYTE>(bits.size())) << row.name;
    }
};

void ExpectRepaired(const SettingsStore& store) {
    EXPECT_GE(store.dNumOfDays.value, 1U);
    EXPECT_LE(store.dNumOfDays.value, 120U);
    EXPECT_LE(store.TimelinesStart.value + store.TimelinesLength.value + 6, 24U);
    const std::set<uint32_t> titles = {store.CalTitlesOrder0.value, store.CalTitlesOrder1.value,
                                       store.CalTitlesOrder2.value, store.CalTitlesOrder3.value,
                                       store.CalTitlesOrder4.value, store.CalTitlesOrder5.value};
    EXPECT_EQ(titles, (std::set<uint32_t>{0, 1, 2, 3, 4, 5}));
}

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
            if (IsRepaired(name) || IsRepairedBySaving(name) || !before.contains(place)) continue;
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
        foreign_.clear();
        Fill();
        const RegistryTree planted = AllValues();

        application.instance = GetModuleHandle(nullptr);
        HWND window = CreateMainWindow(application.instance);
        ASSERT_NE(window, nullptr);
        ForEachRow([&](const SettingTable& table, const SettingRow& row) {
            std::visit(ExpectLoaded{settingsStore, KeyOfGroup(table.group), planted}, row.what);
        });
        ExpectRepaired(settingsStore);
        ExpectSavedAsItIs();
        const MessageBoxAnswer answer(IDOK);
        for (int page = 0; page < kPageCount; ++page)
            VisitPage(window, page);
        SendMessage(window, WM_COMMAND, IDOK, 0);
        ASSERT_FALSE(IsWindow(window));
        PumpMessages();

        SettingsStore again;
        HMODULE library = nullptr;
        again.Load(library);
        FreeLibrary(library);
        ForEachRow([&](const SettingTable&, const SettingRow& row) {
            if (IsChosenAtLoad(row)) return;
            EXPECT_EQ(ShownIn(again, row), ShownIn(settingsStore, row)) << NamesOf(row)[0];
        });
        RegistryTree kept = AllValues();
        for (const auto& [path, value] : foreign_)
            EXPECT_EQ(kept[path], value) << path;
    }
}

} // namespace
