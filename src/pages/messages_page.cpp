#include "pages/messages_page.h"

#include "pages/shared_choices.h"
#include "resource_ids.h"

namespace {
// Control ids.
constexpr UINT kDPadActionLabel = 1200;
constexpr UINT kDPadAction = 1201;
constexpr UINT kTapOpens = 1202;
constexpr UINT kPreview = 1203;
constexpr UINT kMarkRead = 1204;
constexpr UINT kBreakLineLabel = 1205;
constexpr UINT kBreakLine = 1206;
constexpr UINT kCounters = 1207;
constexpr UINT kFolding = 1208;

constexpr FormTab kTabs[] = {
    {IDS_TAB_GENERAL, kDPadActionLabel, kMarkRead},
    {IDS_TAB_TITLES, kBreakLineLabel, kFolding},
};

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kDPadActionLabel,
     .id = kDPadAction,
     .text = IDS_DPAD_ACTION,
     .choices = kDPadActionChoices,
     .setting = &SettingsStore::MsgsDPadActionOverride},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kTapOpens,
     .text = IDS_TAP_OPENS,
     .setting = &SettingsStore::MsgsOpenOnClick},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kPreview,
     .text = IDS_PREVIEW_ON_OPEN,
     .setting = &SettingsStore::MsgsPreviewWhenOpen},
    {.tab = 0,
     .kind = RowKind::Switch,
     .id = kMarkRead,
     .text = IDS_MESSAGES_MARK_READ,
     .setting = &SettingsStore::MsgsMrkReadOnPrev},

    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kBreakLineLabel,
     .id = kBreakLine,
     .text = IDS_TITLES_BREAK_LINE,
     .choices = kBreakLineChoices,
     .setting = &SettingsStore::MsgsBreakLineStyle},
    {.tab = 1,
     .kind = RowKind::Switch,
     .id = kCounters,
     .text = IDS_TITLES_COUNTERS,
     .setting = &SettingsStore::MsgsIncldCounters},
    {.tab = 1,
     .kind = RowKind::Switch,
     .id = kFolding,
     .text = IDS_TITLES_FOLDING,
     .setting = &SettingsStore::MsgsIncldFoldBttns},
};

constexpr FormTables kTables{kTabs, kRows, {}};
} // namespace

MessagesPage::MessagesPage() : FormPage(kTables) {}
