#pragma once

#include <windows.h>

#include <vector>

#include "shell/services/wide_string.h"

// The Today screen's items: one subkey each of HKEY_LOCAL_MACHINE
// "SOFTWARE\Microsoft\Today\Items", with the values "Type", "Enabled" and "DLL".

// The names of the plug-in items but the dashboard's own, as the registry lists them.
[[nodiscard]] std::vector<WideString> TodayPlugins();

// An item on the Today screen has 1; one that does not say has it too.
[[nodiscard]] bool IsTodayItemEnabled(const wchar_t* name);
// Takes an item off the Today screen, which shows it until it loads its items anew.
void DisableTodayItem(const wchar_t* name);

// The path of an item's library; empty where the item names none.
[[nodiscard]] WideString TodayItemDll(const wchar_t* name);
