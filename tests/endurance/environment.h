#pragma once

#include <windows.h>

#include <cstdlib>
#include <string>

#include "settings/settings_store.h"
#include "tests/settings/every_setting.h"
#include "tests/support/registry_fixture.h"

// A number of the environment, by which a person makes a test longer or other than usual.
inline int NumberFrom(const char* variable, int fallback) {
    const char* text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : fallback;
}

// Two plug-ins of others on the Today screen.
inline void AddTodayPlugins() {
    for (const wchar_t* name : {L"Weather", L"Traffic"})
        SetNumber(HKEY_LOCAL_MACHINE, std::wstring(L"Software\\Microsoft\\Today\\Items\\") + name,
                  L"Type", 4);
}

// After an ok: what is loaded again is what the program had.
inline void ExpectStoredAsHeld() {
    SettingsStore again;
    HMODULE library = nullptr;
    again.Load(library);
    FreeLibrary(library);
    ForEachRow([&](const SettingTable&, const SettingRow& row) {
        if (row.saveRank == 0 || IsChosenAtLoad(row)) return;
        EXPECT_EQ(ShownIn(again, row), ShownIn(settingsStore, row)) << NamesOf(row)[0];
    });
}
