#include "pages/general_page.h"

#include "files/found_file.h"
#include "resource_ids.h"
#include "shell/services/handles.h"
#include "shell/services/number_text.h"
#include "shell/services/platform_version.h"
#include "shell/services/resource_strings.h"
#include "ui/folder_dialog.h"

namespace {
// Control ids.
constexpr UINT kOnClickLabel = 1200;
constexpr UINT kOnClick = 1201;
constexpr UINT kOnDoubleClickLabel = 1202;
constexpr UINT kOnDoubleClick = 1203;
constexpr UINT kAutoHeight = 1206;
constexpr UINT kHeightLabel = 1207;
constexpr UINT kHeight = 1208;
constexpr UINT kHeightLandscapeLabel = 1209;
constexpr UINT kHeightLandscape = 1210;
constexpr UINT kSkinPath = 1211;
constexpr UINT kLanguageLabel = 1215;
constexpr UINT kLanguage = 1216;
constexpr UINT kSound = 1217;
constexpr UINT kGoofyMode = 1218;
constexpr UINT kIndentItems = 1219;
constexpr UINT kFilterAlignLabel = 1220;
constexpr UINT kFilterAlign = 1221;
constexpr UINT kRemoveTabsBar = 1222;
constexpr UINT kRemoveSettingsButton = 1223;
constexpr UINT kRemoveSeparatingLine = 1224;
constexpr UINT kDPadEnabled = 1225;
constexpr UINT kDPadModeLabel = 1226;
constexpr UINT kDPadMode = 1227;
constexpr UINT kDPadCompleteLabel = 1228;
constexpr UINT kDPadComplete = 1229;
constexpr UINT kDPadScrollingLabel = 1230;
constexpr UINT kDPadScrolling = 1231;
constexpr UINT kDPadDoubleClickTab = 1232;
constexpr UINT kExclusiveDPad = 1233;
constexpr UINT kDoubleClickScroll = 1234;
constexpr UINT kFullScrolling = 1235;
constexpr UINT kVgaMode = 1236;
constexpr UINT kThinLines = 1237;
constexpr UINT kRemoveHighlight = 1238;
constexpr UINT kLoadingDelayLabel = 1239;
constexpr UINT kLoadingDelay = 1240;

constexpr FormTab kTabs[] = {
    {IDS_TAB_GENERAL, kOnClickLabel, kHeightLandscape},
    {IDS_TAB_GENERAL_APPEARANCE, kSkinPath, kIndentItems},
    {IDS_TAB_GENERAL_DISPLAY, kFilterAlignLabel, kRemoveSeparatingLine},
    {IDS_TAB_GENERAL_DPAD, kDPadEnabled, kExclusiveDPad},
    {IDS_TAB_MISCELLANEOUS, kDoubleClickScroll, kLoadingDelay},
};

constexpr UINT kOnClickChoices[] = {IDS_GENERAL_ON_CLICK_OPEN, IDS_GENERAL_ON_CLICK_MENU,
                                    IDS_GENERAL_ON_CLICK_SELECT};
constexpr UINT kOnDoubleClickChoices[] = {IDS_GENERAL_ON_DOUBLE_CLICK_NOTHING,
                                          IDS_GENERAL_ON_DOUBLE_CLICK_OPEN,
                                          IDS_GENERAL_ON_DOUBLE_CLICK_MENU};
constexpr UINT kAlignChoices[] = {IDS_ALIGN_LEFT, IDS_ALIGN_CENTRE, IDS_ALIGN_RIGHT};
constexpr UINT kDPadModeChoices[] = {IDS_GENERAL_DPAD_MODE_ITEMS, IDS_GENERAL_DPAD_MODE_SCROLL};
constexpr UINT kDPadCompleteChoices[] = {IDS_GENERAL_DPAD_COMPLETE_NOTHING,
                                         IDS_GENERAL_DPAD_COMPLETE_MENU,
                                         IDS_GENERAL_DPAD_COMPLETE_OPEN};
constexpr UINT kDPadScrollingChoices[] = {
    IDS_GENERAL_DPAD_SCROLL_LINE, IDS_GENERAL_DPAD_SCROLL_ITEM, IDS_GENERAL_DPAD_SCROLL_PAGE};

bool IsScreenWide() {
    constexpr int kVgaWidth = 480; // Pixels.
    HDC screen = GetDC(nullptr);
    const int width = GetDeviceCaps(screen, HORZRES);
    ReleaseDC(nullptr, screen);
    return width >= kVgaWidth;
}

void FillLoadingDelays(HWND combo) {
    constexpr uint32_t kLongest = 5; // Seconds.
    for (uint32_t delay = 0; delay <= kLongest; ++delay)
        AddNumberEntry(combo, delay);
}

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kOnClickLabel,
     .id = kOnClick,
     .text = IDS_GENERAL_ON_CLICK,
     .choices = kOnClickChoices,
     .setting = &SettingsStore::OnClick},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kOnDoubleClickLabel,
     .id = kOnDoubleClick,
     .text = IDS_GENERAL_ON_DOUBLE_CLICK,
     .choices = kOnDoubleClickChoices,
     .setting = &SettingsStore::OnDoubleClick},
    {.tab = 0,
     .kind = RowKind::Check,
     .id = kAutoHeight,
     .text = IDS_GENERAL_AUTO_HEIGHT,
     .setting = &SettingsStore::AutoHeight},
    {.tab = 0,
     .kind = RowKind::Custom,
     .labelId = kHeightLabel,
     .id = kHeight,
     .text = IDS_GENERAL_HEIGHT,
     .setting = &SettingsStore::dHeightLimit},
    {.tab = 0,
     .kind = RowKind::Custom,
     .labelId = kHeightLandscapeLabel,
     .id = kHeightLandscape,
     .text = IDS_GENERAL_HEIGHT_LANDSCAPE,
     .setting = &SettingsStore::dHeightLimitLandscape},

    {.tab = 1,
     .kind = RowKind::Path,
     .id = kSkinPath,
     .text = IDS_GENERAL_SKIN_PATH,
     .path = &SettingsStore::SkinPath},
    {.tab = 1,
     .kind = RowKind::Custom,
     .labelId = kLanguageLabel,
     .id = kLanguage,
     .text = IDS_GENERAL_LANGUAGE},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kSound,
     .text = IDS_GENERAL_SOUND,
     .setting = &SettingsStore::EnableSoundEffect,
     .gapAfter = -2},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kGoofyMode,
     .text = IDS_GENERAL_GOOFY_MODE,
     .setting = &SettingsStore::GoofyMode,
     .gapAfter = -2},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kIndentItems,
     .text = IDS_GENERAL_INDENT_ITEMS,
     .setting = &SettingsStore::IndentItems},

    {.tab = 2,
     .kind = RowKind::Choice,
     .labelId = kFilterAlignLabel,
     .id = kFilterAlign,
     .text = IDS_GENERAL_FILTER_ALIGN,
     .choices = kAlignChoices,
     .setting = &SettingsStore::FilterTtlAlign},
    {.tab = 2,
     .kind = RowKind::Check,
     .id = kRemoveTabsBar,
     .text = IDS_GENERAL_REMOVE_TABS_BAR,
     .setting = &SettingsStore::RemoveTabsBar},
    {.tab = 2,
     .kind = RowKind::Check,
     .id = kRemoveSettingsButton,
     .text = IDS_GENERAL_REMOVE_SETTINGS_BUTTON,
     .setting = &SettingsStore::RemoveSettingsButton},
    {.tab = 2,
     .kind = RowKind::Check,
     .id = kRemoveSeparatingLine,
     .text = IDS_GENERAL_REMOVE_SEPARATING_LINE,
     .setting = &SettingsStore::RemoveSeparatingLine},

    {.tab = 3,
     .kind = RowKind::Check,
     .id = kDPadEnabled,
     .text = IDS_GENERAL_DPAD_ENABLED,
     .setting = &SettingsStore::DPadEnabled},
    {.tab = 3,
     .kind = RowKind::Choice,
     .labelId = kDPadModeLabel,
     .id = kDPadMode,
     .text = IDS_GENERAL_DPAD_MODE,
     .choices = kDPadModeChoices,
     .setting = &SettingsStore::DPadMode},
    {.tab = 3,
     .kind = RowKind::Choice,
     .labelId = kDPadCompleteLabel,
     .id = kDPadComplete,
     .text = IDS_GENERAL_DPAD_COMPLETE,
     .choices = kDPadCompleteChoices,
     .setting = &SettingsStore::DPadCompleteAction},
    {.tab = 3,
     .kind = RowKind::Check,
     .id = kDPadDoubleClickTab,
     .text = IDS_GENERAL_DPAD_DOUBLE_CLICK_TAB,
     .setting = &SettingsStore::DPadDoubleClickTabSwitching},
    {.tab = 3,
     .kind = RowKind::Choice,
     .labelId = kDPadScrollingLabel,
     .id = kDPadScrolling,
     .text = IDS_GENERAL_DPAD_SCROLLING,
     .choices = kDPadScrollingChoices,
     .setting = &SettingsStore::DPadScrollingAction},
    {.tab = 3,
     .kind = RowKind::Check,
     .id = kExclusiveDPad,
     .text = IDS_GENERAL_EXCLUSIVE_DPAD,
     .setting = &SettingsStore::ExclusiveDPadNavig,
     .exists = IsNewerThanCe420},

    {.tab = 4,
     .kind = RowKind::Check,
     .id = kDoubleClickScroll,
     .text = IDS_GENERAL_DOUBLE_CLICK_SCROLL,
     .setting = &SettingsStore::UseDoubleClickScroll},
    {.tab = 4,
     .kind = RowKind::Check,
     .id = kFullScrolling,
     .text = IDS_GENERAL_FULL_SCROLLING,
     .setting = &SettingsStore::UseFullScrollings},
    {.tab = 4,
     .kind = RowKind::Check,
     .id = kVgaMode,
     .text = IDS_GENERAL_VGA_MODE,
     .setting = &SettingsStore::MyVgaMode,
     .exists = IsScreenWide},
    {.tab = 4,
     .kind = RowKind::Check,
     .id = kThinLines,
     .text = IDS_GENERAL_THIN_LINES,
     .setting = &SettingsStore::UseThinLines,
     .exists = IsScreenWide},
    {.tab = 4,
     .kind = RowKind::Check,
     .id = kRemoveHighlight,
     .text = IDS_GENERAL_REMOVE_HIGHLIGHT,
     .setting = &SettingsStore::RemoveHighlight},
    {.tab = 4,
     .kind = RowKind::Choice,
     .labelId = kLoadingDelayLabel,
     .id = kLoadingDelay,
     .text = IDS_GENERAL_LOADING_DELAY,
     .fillChoices = FillLoadingDelays,
     .setting = &SettingsStore::LoadingDelay},
};

bool IsDPadMode(HWND page, int mode) {
    return IsBoxChecked(page, kDPadEnabled) && SelectedIndex(page, kDPadMode) == mode;
}

bool HeightIsManual(HWND page) {
    return !IsBoxChecked(page, kAutoHeight);
}
bool DPadIsOn(HWND page) {
    return IsBoxChecked(page, kDPadEnabled);
}
bool DPadMovesThroughItems(HWND page) {
    return IsDPadMode(page, 0);
}
bool DPadScrolls(HWND page) {
    return IsDPadMode(page, 1);
}

constexpr EnablingRule kRules[] = {
    {kHeightLabel, kHeightLandscape, HeightIsManual},
    {kDPadModeLabel, kDPadMode, DPadIsOn},
    {kDPadCompleteLabel, kDPadComplete, DPadMovesThroughItems},
    {kDPadDoubleClickTab, kDPadDoubleClickTab, DPadMovesThroughItems},
    {kDPadScrollingLabel, kDPadScrolling, DPadScrolls},
    {kExclusiveDPad, kExclusiveDPad, DPadIsOn},
};

constexpr FormTables kTables{kTabs, kRows, kRules};

void FillHeights(HWND combo, bool withZero, uint32_t current) {
    constexpr uint32_t kLowest = 80;
    constexpr uint32_t kHighest = 600;
    constexpr uint32_t kStep = 20;
    if (withZero) AddNumberEntry(combo, 0);
    for (uint32_t height = kLowest; height <= kHighest; height += kStep)
        AddNumberEntry(combo, height);
    WideString text;
    text.Format(L"%d", static_cast<int>(current));
    SetWindowText(combo, text.CStr());
}
} // namespace

GeneralPage::GeneralPage() : FormPage(kTables) {}

void GeneralPage::CreateControls(HWND window) {
    for (WideString& path : languagePaths_)
        path = L"";
    FormPage::CreateControls(window);
}

void GeneralPage::SaveValues(HWND window, WPARAM wParam) {
    FormPage::SaveValues(window, wParam);
    for (WideString& path : languagePaths_)
        path = L"";
}

void GeneralPage::PlaceCustomRow(HWND, const FormRow& row, RowLayout& layout) {
    const WideString label = LanguageText(row.text);
    if (row.id == kLanguage)
        layout.AddCombo(row.labelId, label.CStr(), row.id);
    else
        layout.AddEditableCombo(row.labelId, label.CStr(), row.id);
}

void GeneralPage::LoadCustomRow(HWND window, const FormRow& row) {
    HWND combo = Item(window, row.id);
    if (row.id == kLanguage)
        FillLanguages(combo);
    else
        FillHeights(combo, row.id == kHeightLandscape, (settingsStore.*row.setting).value);
}

void GeneralPage::FillLanguages(HWND combo) {
    WideString folder(settingsStore.installFolder);
    folder.Append(L"\\LangRes\\");
    WideString pattern(folder);
    pattern.Append(L"*.dll");
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(pattern.CStr(), &found));
    uint32_t current = 0;
    size_t slot = 0;
    for (bool more = static_cast<bool>(find); more && slot < kLanguageLimit;
         more = FindNextFile(find.Get(), &found)) {
        if (!IsFileOf(found, L".dll")) continue;
        WideString path(folder);
        path.Append(found.cFileName);
        const UniqueModule library(LoadLibrary(path.CStr()));
        if (!library) continue;
        WideString name;
        if (LoadResString(library.Get(), IDS_LANGUAGE_NAME, name) > 0) {
            const LRESULT entry =
                SendMessage(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.CStr()));
            if (path == settingsStore.SelectedLangResFile.value)
                current = static_cast<uint32_t>(entry);
            languagePaths_[slot] = path;
        }
        // A library without a name takes a slot as well, and shifts the paths against the entries;
        // kept on purpose.
        ++slot;
    }
    SelectIndex(combo, current);
}

void GeneralPage::SaveLanguage(HWND window, const FormRow& row) {
    const int entry = SelectedIndex(window, row.id);
    // Without any library there is nothing to choose, and the setting stays.
    if (entry < 0) return;
    settingsStore.SelectedLangResFile.Set(languagePaths_[static_cast<size_t>(entry)].CStr());
}

void GeneralPage::SaveCustomRow(HWND window, const FormRow& row) {
    constexpr int kHeightTextLimit = 256;
    if (row.id == kLanguage) {
        SaveLanguage(window, row);
        return;
    }
    const WideString text = ControlText(Item(window, row.id), kHeightTextLimit);
    (settingsStore.*row.setting).Set(NumberFromText(text.CStr()));
}

bool GeneralPage::BrowsePath(HWND window, const FormRow&, WideString& path) {
    return SelectFolder(window, L"Select Skin Path", path);
}
