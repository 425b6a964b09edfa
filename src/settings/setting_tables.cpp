#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "settings/computed_defaults.h"
#include "settings/setting_table.h"

// The words in which the lists of settings say when a value is written, and how a font looks.
namespace save_rank {
constexpr SaveRank ReadOnly = 0;
constexpr SaveRank Saved = 1;
constexpr SaveRank SavedAt(int place) {
    return static_cast<SaveRank>(place);
}
} // namespace save_rank
namespace strike_out {
constexpr bool Plain = false;
constexpr bool Struck = true;
} // namespace strike_out

#define DWORD_ROW_AS(member, name, number, rank)                                                   \
    SettingRow{DwordRow{&SettingsStore::member, name, number}, save_rank::rank},
#define TEXT_ROW_AS(member, name, text, rank)                                                      \
    SettingRow{TextRow{&SettingsStore::member, name, text}, save_rank::rank},
#define BITS_ROW_AS(member, name, bitCount, rank)                                                  \
    SettingRow{BitsRow{&SettingsStore::member, name, bitCount}, save_rank::rank},
#define DWORD_ROW(member, number, rank) DWORD_ROW_AS(member, L"" #member, number, rank)
#define TEXT_ROW(member, text, rank) TEXT_ROW_AS(member, L"" #member, text, rank)
#define FONT_ROW(member, weight, struck)                                                           \
    SettingRow{FontRow{&SettingsStore::member, L"" #member, weight, strike_out::struck},           \
               save_rank::Saved},

namespace {

constexpr SettingRow kTodayItemRows[] = {TODAY_ITEM_SETTINGS(TEXT_ROW)};
constexpr SettingRow kPocketInformantRows[] = {POCKET_INFORMANT_SETTINGS(DWORD_ROW, TEXT_ROW)};
constexpr SettingRow kAgendaFusionRows[] = {AGENDA_FUSION_SETTINGS(TEXT_ROW_AS)};
constexpr SettingRow kRootRows[] = {ROOT_SETTINGS(DWORD_ROW, TEXT_ROW)};
constexpr SettingRow kCalendarRows[] = {
    CALENDAR_SETTINGS(DWORD_ROW, TEXT_ROW, DWORD_ROW_AS, BITS_ROW_AS)};
constexpr SettingRow kTasksRows[] = {TASKS_SETTINGS(DWORD_ROW, TEXT_ROW, BITS_ROW_AS)};
constexpr SettingRow kNotesRows[] = {NOTES_SETTINGS(DWORD_ROW, TEXT_ROW, DWORD_ROW_AS)};
constexpr SettingRow kContactsRows[] = {CONTACTS_SETTINGS(DWORD_ROW, TEXT_ROW, DWORD_ROW_AS)};
constexpr SettingRow kMessagesRows[] = {MESSAGES_SETTINGS(DWORD_ROW, TEXT_ROW)};
constexpr SettingRow kSpecialEventsRows[] = {SEVENTS_SETTINGS(DWORD_ROW, TEXT_ROW, DWORD_ROW_AS)};
constexpr SettingRow kFontsRows[] = {FONT_OPTION_SETTINGS(DWORD_ROW, TEXT_ROW)
                                         FONT_SETTINGS(FONT_ROW)};
constexpr SettingRow kColoursRows[] = {COLOUR_SETTINGS(DWORD_ROW)};
constexpr SettingRow kPimRows[] = {PIM_SETTINGS(DWORD_ROW)};
constexpr SettingRow kTabModeRows[] = {TAB_MODE_SETTINGS(DWORD_ROW)};
constexpr SettingRow kOwnTabRows[] = {OWN_TAB_SETTINGS(DWORD_ROW)};
constexpr SettingRow kDefaultTabRows[] = {DEFAULT_TAB_SETTINGS(DWORD_ROW)};
constexpr SettingRow kCategoriesRows[] = {CATEGORY_SETTINGS(TEXT_ROW)};

template <const auto& rows>
consteval auto MakeSaveOrder() {
    constexpr auto written = [](const SettingRow& row) { return row.saveRank != 0; };
    std::array<uint8_t, std::ranges::count_if(rows, written)> order{};
    size_t place = 0;
    for (SaveRank rank = 1; place < order.size(); ++rank) {
        for (size_t number = 0; number < std::size(rows); ++number) {
            if (rows[number].saveRank == rank) order[place++] = static_cast<uint8_t>(number);
        }
    }
    return order;
}
template <const auto& rows>
constexpr auto kSaveOrder = MakeSaveOrder<rows>();

template <const auto& rows>
constexpr SettingTable TableOf(SettingGroup group) {
    return {group, rows, kSaveOrder<rows>};
}

} // namespace

constexpr SettingTable kTodayItemTable = TableOf<kTodayItemRows>(SettingGroup::TodayItem);
constexpr SettingTable kPocketInformantTable =
    TableOf<kPocketInformantRows>(SettingGroup::PocketInformant);
constexpr SettingTable kAgendaFusionTable = TableOf<kAgendaFusionRows>(SettingGroup::AgendaFusion);
constexpr SettingTable kRootTable = TableOf<kRootRows>(SettingGroup::Root);
constexpr SettingTable kCalendarTable = TableOf<kCalendarRows>(SettingGroup::Calendar);
constexpr SettingTable kTasksTable = TableOf<kTasksRows>(SettingGroup::Tasks);
constexpr SettingTable kNotesTable = TableOf<kNotesRows>(SettingGroup::Notes);
constexpr SettingTable kContactsTable = TableOf<kContactsRows>(SettingGroup::Contacts);
constexpr SettingTable kMessagesTable = TableOf<kMessagesRows>(SettingGroup::Messages);
constexpr SettingTable kSpecialEventsTable =
    TableOf<kSpecialEventsRows>(SettingGroup::SpecialEvents);
constexpr SettingTable kFontsTable = TableOf<kFontsRows>(SettingGroup::Fonts);
constexpr SettingTable kColoursTable = TableOf<kColoursRows>(SettingGroup::Colours);
constexpr SettingTable kPimTable = TableOf<kPimRows>(SettingGroup::Pim);
constexpr SettingTable kTabModeTable = TableOf<kTabModeRows>(SettingGroup::Tabs);
constexpr SettingTable kOwnTabTable = TableOf<kOwnTabRows>(SettingGroup::Tabs);
constexpr SettingTable kDefaultTabTable = TableOf<kDefaultTabRows>(SettingGroup::Tabs);
constexpr SettingTable kCategoriesTable = TableOf<kCategoriesRows>(SettingGroup::Categories);

std::span<const SettingTable* const> AllSettingTables() {
    static constexpr const SettingTable* kTables[] = {
        &kTodayItemTable,  &kPocketInformantTable, &kAgendaFusionTable, &kRootTable,
        &kCalendarTable,   &kTasksTable,           &kNotesTable,        &kContactsTable,
        &kMessagesTable,   &kSpecialEventsTable,   &kFontsTable,        &kColoursTable,
        &kPimTable,        &kTabModeTable,         &kOwnTabTable,       &kDefaultTabTable,
        &kCategoriesTable,
    };
    return kTables;
}
