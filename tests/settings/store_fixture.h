#pragma once

#include <memory>
#include <string>

#include "platform/include/stand_in.h"
#include "settings/settings_store.h"
#include "shell/services/handles.h"
#include "tests/support/registry_fixture.h"

// The keys of the store.
inline constexpr wchar_t kRoot[] = L"Software\\Teskel\\Orvane";
inline constexpr wchar_t kCalendar[] = L"Software\\Teskel\\Orvane\\Calendar";
inline constexpr wchar_t kTabs[] = L"Software\\Teskel\\Orvane\\TabSettings";
inline constexpr wchar_t kTodayItem[] = L"Software\\Microsoft\\today\\items\\Orvane";

// A registry of its own and stores of its own over it.
class StoreFixture : public RegistryFixture {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        StandInSetOsVersion(5, 1);
        StandInResetCalls();
    }
    void TearDown() override {
        StandInSetOsVersion(0, 0);
        StandInResetCalls();
        RegistryFixture::TearDown();
    }

    // A store as the program has it after its start.
    std::unique_ptr<SettingsStore> LoadStore() {
        auto store = std::make_unique<SettingsStore>();
        LoadInto(*store);
        return store;
    }
    void LoadInto(SettingsStore& store) {
        HMODULE library = languageLibrary_.Release();
        store.Load(library);
        languageLibrary_.Reset(library);
    }
    void LoadAndSave() { LoadStore()->Save(); }

    static void SetUserNumber(const wchar_t* key, const std::wstring& name, uint32_t number) {
        SetNumber(HKEY_CURRENT_USER, key, name, number);
    }
    static std::optional<uint32_t> GetUserNumber(const std::wstring& key,
                                                 const std::wstring& name) {
        return GetNumber(HKEY_CURRENT_USER, key, name);
    }

    UniqueModule languageLibrary_;
};
