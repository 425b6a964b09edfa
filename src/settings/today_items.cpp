#include "settings/today_items.h"

#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"

namespace {
constexpr wchar_t kItems[] = L"SOFTWARE\\Microsoft\\Today\\Items";
constexpr wchar_t kEnabled[] = L"Enabled";
constexpr wchar_t kDashboard[] = L"Orvane";
constexpr uint32_t kPluginType = 4; // Lower types are the platform's own items.

UniqueKey OpenItem(const wchar_t* name) {
    WideString path(kItems);
    path.Append(L"\\");
    path.Append(name);
    return UniqueKey(OpenOrCreateKey(HKEY_LOCAL_MACHINE, path.CStr()));
}
} // namespace

std::vector<WideString> TodayPlugins() {
    std::vector<WideString> plugins;
    const UniqueKey items(OpenExistingKey(HKEY_LOCAL_MACHINE, kItems));
    WideString name;
    for (DWORD index = 0; items && SubkeyName(items.Get(), index, name) == ERROR_SUCCESS; ++index) {
        const UniqueKey item(OpenExistingKey(items.Get(), name.CStr()));
        if (ReadNumber(item.Get(), L"Type", 0) == kPluginType && name != kDashboard)
            plugins.push_back(name);
    }
    return plugins;
}

bool IsTodayItemEnabled(const wchar_t* name) {
    return ReadNumber(OpenItem(name).Get(), kEnabled, 1) == 1;
}

void DisableTodayItem(const wchar_t* name) {
    SetNumberValue(OpenItem(name).Get(), kEnabled, 0);
}

WideString TodayItemDll(const wchar_t* name) {
    WideString path;
    ReadText(OpenItem(name).Get(), L"DLL", path);
    return path;
}
