#include "pages/tabs_page.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "pages/add_plugin_dialog.h"
#include "resource_ids.h"
#include "settings/today_items.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/list_items.h"
#include "ui/messages.h"

namespace {
// Control ids.
constexpr UINT kModeLabel = 1200;
constexpr UINT kMode = 1201;
constexpr UINT kGesturesLabel = 1202;
constexpr UINT kGestures = 1203;
constexpr UINT kEffectLabel = 1204;
constexpr UINT kEffect = 1205;
constexpr UINT kList = 1206;
constexpr UINT kUp = 1207;
constexpr UINT kDown = 1208;
constexpr UINT kAdd = 1209;
constexpr UINT kRemove = 1210;
constexpr UINT kTimeOutLabel = 1211;
constexpr UINT kTimeOut = 1212;
constexpr UINT kDefaultLabel = 1213;
constexpr UINT kDefault = 1214;
constexpr UINT kDefaultOnStartup = 1215;

constexpr int kListLeft = 10;
constexpr int kListEnd = 100; // What stands beside the list, to its left and right.
constexpr int kBelowList = 28;
constexpr int kRowHeight = 21;
constexpr int kButtonEnd = 85; // From a button's left edge to the page's right one.
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 20;

// The first order that the list gives: the calendar's tab stands before it.
constexpr uint32_t kFirstOrder = 2;

constexpr FormTab kTabs[] = {
    {IDS_TAB_GENERAL, kModeLabel, kEffect},
    {IDS_TAB_TABS_ORDER, kList, kRemove},
    {IDS_TAB_TABS_DEFAULT, kTimeOutLabel, kDefaultOnStartup},
};

constexpr UINT kModeChoices[] = {IDS_TABS_MODE_ICONS, IDS_TABS_MODE_NAMES};
constexpr UINT kGesturesChoices[] = {IDS_TABS_GESTURES_OFF, IDS_TABS_GESTURES_BAR,
                                     IDS_TABS_GESTURES_ANYWHERE};
constexpr UINT kEffectChoices[] = {IDS_TABS_EFFECT_NONE, IDS_TABS_EFFECT_SLIDE};
constexpr UINT kTimeOutChoices[] = {
    IDS_CHOICE_OFF,
    IDS_TABS_TIME_OUT_10_SECONDS,
    IDS_TABS_TIME_OUT_30_SECONDS,
    IDS_TABS_TIME_OUT_1_MINUTE,
    IDS_TABS_TIME_OUT_5_MINUTES,
    IDS_TABS_TIME_OUT_15_MINUTES,
    IDS_TABS_TIME_OUT_1_HOUR,
};
constexpr UINT kDefaultChoices[] = {IDS_DASHBOARD_TAB_CALENDAR, IDS_DASHBOARD_TAB_TASKS,
                                    IDS_DASHBOARD_TAB_NOTES,    IDS_DASHBOARD_TAB_CONTACTS,
                                    IDS_DASHBOARD_TAB_MAIL,     IDS_DASHBOARD_TAB_SPECIAL_EVENTS};

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kModeLabel,
     .id = kMode,
     .text = IDS_TABS_MODE,
     .choices = kModeChoices,
     .setting = &SettingsStore::TabsMode},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kGesturesLabel,
     .id = kGestures,
     .text = IDS_TABS_GESTURES,
     .choices = kGesturesChoices,
     .setting = &SettingsStore::TabGesturesMode},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kEffectLabel,
     .id = kEffect,
     .text = IDS_TABS_EFFECT,
     .choices = kEffectChoices,
     .setting = &SettingsStore::TabGesturEffect},

    {.tab = 1, .kind = RowKind::Custom, .id = kList},

    {.tab = 2,
     .kind = RowKind::Choice,
     .labelId = kTimeOutLabel,
     .id = kTimeOut,
     .text = IDS_TABS_TIME_OUT,
     .choices = kTimeOutChoices,
     .setting = &SettingsStore::DfltTabTimeOut},
    {.tab = 2,
     .kind = RowKind::Choice,
     .labelId = kDefaultLabel,
     .id = kDefault,
     .text = IDS_TABS_DEFAULT,
     .choices = kDefaultChoices,
     .setting = &SettingsStore::DfltTab},
    {.tab = 2,
     .kind = RowKind::Switch,
     .id = kDefaultOnStartup,
     .text = IDS_TABS_DEFAULT_ON_STARTUP,
     .setting = &SettingsStore::DfltTabOnStartup},
};

bool HasGestures(HWND page) {
    return SelectedIndex(page, kGestures) != 0;
}

constexpr EnablingRule kRules[] = {{kEffectLabel, kEffect, HasGestures}};

constexpr FormTables kTables{kTabs, kRows, kRules};

// The buttons beside the list, from the top.
struct ListButton {
    UINT id;
    UINT text;
    int below; // Units from the one above.
};
constexpr ListButton kButtons[] = {
    {kUp, IDS_MOVE_UP, 0},
    {kDown, IDS_MOVE_DOWN, 24},
    {kAdd, IDS_TABS_ADD, 30},
    {kRemove, IDS_TABS_REMOVE, 24},
};

HWND ListOf(HWND window) {
    return Item(window, kList);
}

TabDefinition& TabOfRow(HWND list, int row) {
    return *reinterpret_cast<TabDefinition*>(RowData(list, row));
}

// The selected tab if it hosts a plug-in, or null: no other tab can be removed.
const TabDefinition* RemovableTab(HWND list) {
    const int row = SelectedRow(list);
    if (row < 0) return nullptr;
    const TabDefinition& tab = TabOfRow(list, row);
    return tab.type == TabType::Hosted ? &tab : nullptr;
}

void EnableRemoval(HWND window) {
    HWND button = Item(window, kRemove);
    const bool enabled = RemovableTab(ListOf(window)) != nullptr;
    // A disabled button would swallow the keys.
    if (!enabled && GetFocus() == button) SetFocus(ListOf(window));
    EnableWindow(button, enabled);
}

void AddTabRow(HWND list, TabDefinition& tab) {
    AddRow(list, tab.name.CStr(), reinterpret_cast<LPARAM>(&tab));
    // A tick given with a new row would be lost.
    TickRow(list, RowCount(list) - 1, tab.enabled == 1);
}

bool IsHosted(const WideString& name) {
    return std::ranges::any_of(settingsStore.tabs.All(), [&](const auto& tab) {
        return tab->type == TabType::Hosted && tab->name == name;
    });
}

void AddTab(HWND window) {
    WideString name;
    // The page may be closed and gone when the user is done.
    if (!ChoosePluginToAdd(window, name) || !IsWindow(window)) return;
    if (IsHosted(name)) {
        ShowMessage(window, IDS_TABS_EXISTS, IDS_TABS_EXISTS_CAPTION);
        return;
    }
    TabDefinition tab;
    tab.type = TabType::Hosted;
    tab.order = TabList::kHostedOrder;
    tab.enabled = 1;
    tab.installPath = TodayItemDll(name.CStr());
    tab.name = std::move(name);
    HWND list = ListOf(window);
    AddTabRow(list, settingsStore.tabs.Insert(std::move(tab)));
    FitColumn(list);
    SendMessage(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(RowCount(list) - 1), FALSE);
    EnableRemoval(window);
}

// The plug-in stays off the Today screen.
void RemoveTab(HWND window) {
    HWND list = ListOf(window);
    const TabDefinition* tab = RemovableTab(list);
    if (!tab) return;
    SendMessage(list, LVM_DELETEITEM, static_cast<WPARAM>(SelectedRow(list)), 0);
    settingsStore.tabs.Remove(*tab);
    FitColumn(list);
    EnableRemoval(window);
}

void SaveTabs(HWND list) {
    for (int row = 0; row < RowCount(list); ++row) {
        TabDefinition& tab = TabOfRow(list, row);
        tab.order = kFirstOrder + static_cast<uint32_t>(row);
        tab.enabled = IsRowTicked(list, row) ? 1 : 0;
    }
    // The page is filled in the list's order when it opens again.
    settingsStore.tabs.Sort();
}
} // namespace

TabsPage::TabsPage() : FormPage(kTables) {}

void TabsPage::CreateTabList(HWND window) const {
    HWND list = CreateList(window, kList, normalFont, kRowHeight);
    AddTickBoxes(list);
    for (const ListButton& button : kButtons) {
        CreateHiddenControl(window, L"BUTTON", LanguageText(button.text).CStr(), WS_TABSTOP,
                            button.id, {}, normalFont);
    }
}

void TabsPage::PlaceCustomRow(HWND window, const FormRow&, RowLayout& layout) {
    if (!ListOf(window)) CreateTabList(window);
    RECT client{};
    GetClientRect(window, &client);
    int y = layout.Y();
    // Little is left of a low screen while the input panel covers its half.
    const int height = std::max(0L, client.bottom - ScaleY(kBelowList) - y);
    PlaceControl(ListOf(window), {Scale(kListLeft), y, client.right - Scale(kListEnd), height});
    FitColumn(ListOf(window));
    for (const ListButton& button : kButtons) {
        y += ScaleY(button.below);
        PlaceControl(Item(window, button.id), {client.right - Scale(kButtonEnd), y,
                                               Scale(kButtonWidth), ScaleY(kButtonHeight)});
    }
}

void TabsPage::LoadCustomRow(HWND window, const FormRow&) {
    HWND list = ListOf(window);
    for (const auto& tab : settingsStore.tabs.All()) {
        if (tab->type != TabType::Calendar) AddTabRow(list, *tab);
    }
    FitColumn(list);
    EnableRemoval(window);
}

void TabsPage::SaveCustomRow(HWND window, const FormRow&) {
    SaveTabs(ListOf(window));
}

LRESULT TabsPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!lParam || HIWORD(wParam) != BN_CLICKED)
        return FormPage::OnCommand(window, message, wParam, lParam);
    switch (LOWORD(wParam)) {
    case kUp:
    case kDown:
        MoveSelectedRow(window, ListOf(window), LOWORD(wParam) == kUp);
        break;
    case kAdd:
        AddTab(window);
        break;
    case kRemove:
        RemoveTab(window);
        break;
    default:
        break;
    }
    return 0;
}

LRESULT TabsPage::OnNotify(HWND window, UINT, WPARAM, NMHDR* header) {
    if (header->idFrom != kList) return 1;
    if (header->code == LVN_ITEMCHANGED) EnableRemoval(window);
    if (header->code == NM_RETURN) ToggleFocusedRow(header->hwndFrom);
    return 1;
}
