#pragma once

#include <windows.h>

#include "settings/calendar_settings.h"
#include "settings/category_settings.h"
#include "settings/colour_settings.h"
#include "settings/contacts_settings.h"
#include "settings/font_setting.h"
#include "settings/font_settings.h"
#include "settings/general_settings.h"
#include "settings/messages_settings.h"
#include "settings/notes_settings.h"
#include "settings/pim_settings.h"
#include "settings/setting.h"
#include "settings/sevents_settings.h"
#include "settings/tab_list.h"
#include "settings/tab_settings.h"
#include "settings/tasks_settings.h"
#include "settings/text_list.h"

// The program's one model of everything it keeps in the registry. It is loaded at start-up and
// after the registry was replaced below it, changed by the pages, and saved when the user confirms.
//
// Every setting is a member named as its registry value, declared by the list of its key; where
// two keys hold a value of the same name, the member's name begins with the key's.
struct SettingsStore {
#define DECLARE_DWORD(member, ...) DwordSetting member;
#define DECLARE_TEXT(member, ...) StringSetting member;
#define DECLARE_BITS(member, ...) BitsSetting member;
#define DECLARE_FONT(member, ...) FontSetting member;
    TODAY_ITEM_SETTINGS(DECLARE_TEXT)
    POCKET_INFORMANT_SETTINGS(DECLARE_DWORD, DECLARE_TEXT)
    AGENDA_FUSION_SETTINGS(DECLARE_TEXT)
    ROOT_SETTINGS(DECLARE_DWORD, DECLARE_TEXT)
    CALENDAR_SETTINGS(DECLARE_DWORD, DECLARE_TEXT, DECLARE_DWORD, DECLARE_BITS)
    TASKS_SETTINGS(DECLARE_DWORD, DECLARE_TEXT, DECLARE_BITS)
    NOTES_SETTINGS(DECLARE_DWORD, DECLARE_TEXT, DECLARE_DWORD)
    CONTACTS_SETTINGS(DECLARE_DWORD, DECLARE_TEXT, DECLARE_DWORD)
    MESSAGES_SETTINGS(DECLARE_DWORD, DECLARE_TEXT)
    SEVENTS_SETTINGS(DECLARE_DWORD, DECLARE_TEXT, DECLARE_DWORD)
    FONT_OPTION_SETTINGS(DECLARE_DWORD, DECLARE_TEXT)
    FONT_SETTINGS(DECLARE_FONT)
    COLOUR_SETTINGS(DECLARE_DWORD)
    PIM_SETTINGS(DECLARE_DWORD)
    TAB_MODE_SETTINGS(DECLARE_DWORD)
    OWN_TAB_SETTINGS(DECLARE_DWORD)
    DEFAULT_TAB_SETTINGS(DECLARE_DWORD)
    CATEGORY_SETTINGS(DECLARE_TEXT)
#undef DECLARE_DWORD
#undef DECLARE_TEXT
#undef DECLARE_BITS
#undef DECLARE_FONT

    TabList tabs;
    TextListSetting customAlphabets; // The active ones, by the names of their files.
    WideString installFolder;        // Without a backslash at its end.
    COLORREF systemColours[6] = {};  // Of the device's colour scheme.
    bool twelveHourClock = true;     // By the user's locale.

    // Reads everything, repairing what is out of range; what is repaired counts as set. The
    // language library is part of what is loaded: the one in the slot is freed, and the slot takes
    // the chosen one, or null where neither it nor the English one can be loaded.
    void Load(HMODULE& languageLibrary);
    // Writes what was set since the last load, and all plug-in tabs.
    void Save();

    // Which other applications are on the device.
    [[nodiscard]] static bool IsTeskelCalendarInstalled();
    [[nodiscard]] static bool IsPocketInformantInstalled();
    [[nodiscard]] static bool IsAgendaFusionInstalled();
    [[nodiscard]] static bool IsAgendaOneInstalled();

  private:
    void LoadInstallFolder();
    void LoadSystemColours();
    void LoadLanguageLibrary(HMODULE& languageLibrary) const;
    void LoadTabs(HMODULE languageLibrary);
    void LoadOwnTabs(HMODULE languageLibrary);
    void SaveTabs();
    void CopyOwnTabsToSettings();

    void RepairLoadedCalendar();
    void RepairTitleOrder();
    void RepairActiveTab();
    void StartOnDefaultTab();
    void RepairBeforeSave();
};

extern SettingsStore settingsStore;

// The places of the Calendar tab's titles, from the top; each holds a title's number.
inline constexpr DwordSetting SettingsStore::*kCalendarTitlePlaces[] = {
    &SettingsStore::CalTitlesOrder0, &SettingsStore::CalTitlesOrder1,
    &SettingsStore::CalTitlesOrder2, &SettingsStore::CalTitlesOrder3,
    &SettingsStore::CalTitlesOrder4, &SettingsStore::CalTitlesOrder5,
};
