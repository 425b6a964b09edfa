#pragma once

#include <cstdint>

#include "shell/services/wide_string.h"

struct SettingsStore;

// Defaults that depend on the device or on settings loaded before.
namespace computed_defaults {

[[nodiscard]] uint32_t HeightLimit(const SettingsStore& store);
[[nodiscard]] uint32_t MonthIconSize(const SettingsStore& store);
[[nodiscard]] uint32_t FontHeight(const SettingsStore& store);
// By the user's locale: 0 is Monday, 6 is Sunday.
[[nodiscard]] uint32_t FirstDayOfWeek(const SettingsStore& store);

[[nodiscard]] WideString PocketInformantVolume(const SettingsStore& store);
[[nodiscard]] WideString InstallFolder(const SettingsStore& store);
[[nodiscard]] WideString CategoryIconsFolder(const SettingsStore& store);

} // namespace computed_defaults
