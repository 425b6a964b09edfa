#include "settings/computed_defaults.h"

#include <iterator>

#include "settings/settings_store.h"
#include "shell/services/number_text.h"
#include "shell/services/scaling.h"

namespace computed_defaults {

uint32_t HeightLimit(const SettingsStore& /*store*/) {
    return static_cast<uint32_t>(ScaleY(160));
}

uint32_t MonthIconSize(const SettingsStore& /*store*/) {
    return static_cast<uint32_t>(Scale(6));
}

uint32_t FontHeight(const SettingsStore& /*store*/) {
    return static_cast<uint32_t>(Scale(12));
}

uint32_t FirstDayOfWeek(const SettingsStore& /*store*/) {
    wchar_t text[5] = {};
    GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_IFIRSTDAYOFWEEK, text,
                  static_cast<int>(std::size(text)));
    return NumberFromDecimalText(text);
}

WideString PocketInformantVolume(const SettingsStore& store) {
    WideString path(store.WebIS_Folder.value);
    path.Append(L"\\WebIS\\PocketInformant.vol");
    return path;
}

WideString InstallFolder(const SettingsStore& store) {
    return store.installFolder;
}

WideString CategoryIconsFolder(const SettingsStore& store) {
    WideString path(store.installFolder);
    path.Append(L"\\CategoryIcons");
    return path;
}

} // namespace computed_defaults
