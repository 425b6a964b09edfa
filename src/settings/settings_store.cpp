#include "settings/settings_store.h"

#include <algorithm>
#include <iterator>

#include "resource_ids.h"
#include "settings/registry_values.h"
#include "settings/setting_table.h"
#include "settings/system_colour.h"
#include "shell/services/platform_version.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"

SettingsStore settingsStore;

namespace {

// The dashboard's own tabs, in load order.
struct OwnTab {
    TabType type;
    UINT captionId;
    DwordSetting SettingsStore::*enabled;
    DwordSetting SettingsStore::*order;
};
constexpr OwnTab kOwnTabs[] = {
    {TabType::Calendar, IDS_DASHBOARD_TAB_CALENDAR, &SettingsStore::CalendarTabEnabled,
     &SettingsStore::CalendarTabOrder},
    {TabType::Tasks, IDS_DASHBOARD_TAB_TASKS, &SettingsStore::TasksTabEnabled,
     &SettingsStore::TasksTabOrder},
    {TabType::Notes, IDS_DASHBOARD_TAB_NOTES, &SettingsStore::NotesTabEnabled,
     &SettingsStore::NotesTabOrder},
    {TabType::Contacts, IDS_DASHBOARD_TAB_CONTACTS, &SettingsStore::ContactsTabEnabled,
     &SettingsStore::ContactsTabOrder},
    {TabType::Mail, IDS_DASHBOARD_TAB_MAIL, &SettingsStore::MailTabEnabled,
     &SettingsStore::MailTabOrder},
    {TabType::SpecialEvents, IDS_DASHBOARD_TAB_SPECIAL_EVENTS, &SettingsStore::SEventsTabEnabled,
     &SettingsStore::SEventsTabOrder},
};

void LoadTable(const SettingTable& table, SettingsStore& store) {
    const UniqueKey key(OpenGroupKey(table.group));
    table.Load(store, key.Get());
}

void SaveTable(const SettingTable& table, const SettingsStore& store) {
    const UniqueKey key(OpenGroupKey(table.group));
    table.Save(store, key.Get());
}

// "1" stands for 24 hours; "49", the character code of "1", counts as the same answer.
bool LocaleHasTwelveHourClock() {
    wchar_t text[4] = {};
    GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_ITIME, text, static_cast<int>(std::size(text)));
    return text[0] != L'1' && !(text[0] == L'4' && text[1] == L'9');
}

bool HasValue(HKEY root, const wchar_t* path, const wchar_t* name) {
    const UniqueKey key(OpenExistingKey(root, path));
    return key &&
           RegQueryValueEx(key.Get(), name, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

} // namespace

void SettingsStore::Load(HMODULE& languageLibrary) {
    twelveHourClock = LocaleHasTwelveHourClock();
    LoadInstallFolder();
    LoadTable(kPocketInformantTable, *this);
    LoadTable(kAgendaFusionTable, *this);
    LoadSystemColours();
    LoadTable(kRootTable, *this);
    LoadLanguageLibrary(languageLibrary);
    LoadTable(kCalendarTable, *this);
    RepairLoadedCalendar();
    LoadTable(kTasksTable, *this);
    LoadTable(kNotesTable, *this);
    LoadTable(kContactsTable, *this);
    customAlphabets.Load(SettingGroup::Contacts, L"Alphabets");
    LoadTable(kMessagesTable, *this);
    LoadTable(kSpecialEventsTable, *this);
    LoadTable(kFontsTable, *this);
    LoadTable(kColoursTable, *this);
    LoadTable(kPimTable, *this);
    LoadTabs(languageLibrary);
    LoadTable(kCategoriesTable, *this);
    RepairActiveTab();
    StartOnDefaultTab();
}

// The dashboard's Today item is not ours to create: where it is missing, so is the key.
void SettingsStore::LoadInstallFolder() {
    const GroupKey where = KeyOfGroup(SettingGroup::TodayItem);
    const UniqueKey key(OpenExistingKey(where.root, where.path));
    kTodayItemTable.Load(*this, key.Get());
    installFolder = ProgramFiles.value;
    installFolder.Append(L"\\Teskel\\Orvane");
}

// Versions 3 and 4.20 of the platform have no colours 34 and 35 of their own.
void SettingsStore::LoadSystemColours() {
    constexpr COLORREF kBlue = 0x9C4D2C;
    constexpr COLORREF kWhite = 0xFFFFFF;
    const bool old = !IsNewerThanCe420();

    systemColours[0] = SystemColour(4, 0x000000);
    systemColours[1] = SystemColour(6, 0xEF8E73);
    systemColours[2] = SystemColour(8, kBlue);
    systemColours[3] = SystemColour(9, kWhite);
    systemColours[4] = old ? kBlue : SystemColour(34, kBlue);
    systemColours[5] = old ? kWhite : SystemColour(35, kWhite);
}

void SettingsStore::LoadLanguageLibrary(HMODULE& languageLibrary) const {
    if (languageLibrary != nullptr) FreeLibrary(languageLibrary);
    languageLibrary = LoadLibrary(SelectedLangResFile.value.CStr());
    if (languageLibrary != nullptr) return;
    WideString english(installFolder);
    english.Append(L"\\LangRes\\OVEngRc.dll");
    languageLibrary = LoadLibrary(english.CStr());
}

void SettingsStore::LoadTabs(HMODULE languageLibrary) {
    const UniqueKey key(OpenGroupKey(SettingGroup::Tabs));
    kTabModeTable.Load(*this, key.Get());
    kOwnTabTable.Load(*this, key.Get());
    tabs.Clear();
    LoadOwnTabs(languageLibrary);
    tabs.LoadHosted(key.Get());
    tabs.Number();
    kDefaultTabTable.Load(*this, key.Get());
}

void SettingsStore::LoadOwnTabs(HMODULE languageLibrary) {
    for (const OwnTab& own : kOwnTabs) {
        TabDefinition tab;
        tab.type = own.type;
        tab.order = (this->*own.order).value;
        tab.enabled = (this->*own.enabled).value;
        LoadResString(languageLibrary, own.captionId, tab.name);
        tabs.Insert(std::move(tab));
    }
}

void SettingsStore::RepairLoadedCalendar() {
    if (dNumOfDays.value < 1 || dNumOfDays.value >= 121) dNumOfDays.Set(7);
    // In unsigned numbers, on purpose: a start after 18 gives a length just below 2^32, with which
    // the sum comes to 24 again.
    if (TimelinesStart.value + TimelinesLength.value + 6 > 24) {
        TimelinesLength.Set(18 - TimelinesStart.value);
    }
    RepairTitleOrder();
}

void SettingsStore::RepairTitleOrder() {
    constexpr uint32_t kTitles = std::size(kCalendarTitlePlaces);
    uint32_t seen = 0; // Bit n: title n.
    for (const auto title : kCalendarTitlePlaces) {
        if ((this->*title).value < kTitles) seen |= 1U << (this->*title).value;
    }
    if (seen == (1U << kTitles) - 1) return;
    for (uint32_t number = 0; number < kTitles; ++number) {
        (this->*kCalendarTitlePlaces[number]).Set(number);
    }
}

void SettingsStore::RepairActiveTab() {
    const TabDefinition* active = tabs.FindNumber(ActiveTab.value);
    if (active == nullptr || active->enabled == 0 || active->type == TabType::Hosted) {
        ActiveTab.Set(1);
    }
}

void SettingsStore::StartOnDefaultTab() {
    constexpr TabType kChoices[] = {TabType::Calendar, TabType::Tasks, TabType::Notes,
                                    TabType::Contacts, TabType::Mail,  TabType::SpecialEvents};
    if (DfltTabOnStartup.value != 1 || DfltTab.value >= std::size(kChoices)) return;
    const TabDefinition* tab = tabs.FindType(kChoices[DfltTab.value]);
    if (tab != nullptr) ActiveTab.Set(tab->order);
}

void SettingsStore::Save() {
    RepairBeforeSave();
    SaveTable(kRootTable, *this);
    SaveTable(kCalendarTable, *this);
    SaveTable(kTasksTable, *this);
    SaveTable(kNotesTable, *this);
    SaveTable(kContactsTable, *this);
    customAlphabets.Save();
    SaveTable(kMessagesTable, *this);
    SaveTable(kSpecialEventsTable, *this);
    SaveTable(kFontsTable, *this);
    SaveTable(kColoursTable, *this);
    SaveTable(kPimTable, *this);
    SaveTabs();
    SaveTable(kCategoriesTable, *this);
}

void SettingsStore::RepairBeforeSave() {
    if (dHeightLimitLandscape.value < 60 || dHeightLimitLandscape.value >= 501) {
        dHeightLimitLandscape.Set(0);
    }
    // A month pinned below the items needs the height.
    if (PinnedMonthlyClr.value == 1 && dHeightLimit.value < static_cast<uint32_t>(Scale(200))) {
        PinnedMonthlyClr.Set(0);
    }
}

void SettingsStore::SaveTabs() {
    const UniqueKey key(OpenGroupKey(SettingGroup::Tabs));
    tabs.DeleteHosted(key.Get());
    kTabModeTable.Save(*this, key.Get());
    CopyOwnTabsToSettings();
    kOwnTabTable.Save(*this, key.Get());
    kDefaultTabTable.Save(*this, key.Get());
    tabs.SaveHosted(key.Get());
}

// Only a tab whose number or state changed, by the user or by the numbering after the load, is set:
// one left alone is not written, like any other setting.
void SettingsStore::CopyOwnTabsToSettings() {
    const auto copy = [](uint32_t from, DwordSetting& to) {
        if (to.value != from) to.Set(from);
    };
    for (const auto& tab : tabs.All()) {
        const auto own = std::ranges::find(kOwnTabs, tab->type, &OwnTab::type);
        if (own == std::end(kOwnTabs)) continue;
        copy(tab->enabled, this->*own->enabled);
        copy(tab->order, this->*own->order);
    }
}

bool SettingsStore::IsTeskelCalendarInstalled() {
    return HasValue(HKEY_CURRENT_USER, L"SOFTWARE\\Teskel Calendar", L"ExecutablePath");
}

bool SettingsStore::IsPocketInformantInstalled() {
    return HasValue(HKEY_CURRENT_USER, L"Software\\WebIS\\PocketInformant", L"version");
}

bool SettingsStore::IsAgendaFusionInstalled() {
    return HasValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion",
                    L"VerMajor");
}

bool SettingsStore::IsAgendaOneInstalled() {
    return HasValue(HKEY_CURRENT_USER, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath");
}
