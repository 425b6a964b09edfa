#pragma once

// Where the dashboard and the outside PIM applications keep their files (their keys are only read),
// and the dashboard-wide options of its root key. Lists of settings are in load order.
// clang-format off
// HKEY_LOCAL_MACHINE "Software\Microsoft\today\items\Orvane"
#define TODAY_ITEM_SETTINGS(Text)                    \
    Text(ProgramFiles, L"\\Program Files", ReadOnly)

// "Software\WebIS\PocketInformant"
#define POCKET_INFORMANT_SETTINGS(Dword, Text)                      \
    Text(IconPath, L"My Documents\\WebIS\\Icons", ReadOnly)         \
    Text(WebIS_Folder, L"My Documents", ReadOnly)                   \
    Text(PIVOL, computed_defaults::PocketInformantVolume, ReadOnly) \
    Dword(version, 700, ReadOnly)

// HKEY_LOCAL_MACHINE "SOFTWARE\Developer One, Inc.\Agenda Fusion"
#define AGENDA_FUSION_SETTINGS(TextAs)                                                          \
    TextAs(CoreCategories, L"Core.Categories", L"Program Files\\Agenda Fusion\\Icons", ReadOnly)

// "Software\Teskel\Orvane"
#define ROOT_SETTINGS(Dword, Text)                                                             \
    Dword(OnClick, 0, Saved)                                                                   \
    Dword(OnDoubleClick, 0, Saved)                                                             \
    Text(SelectedLangResFile, L"\\Program Files\\Teskel\\Orvane\\LangRes\\OVEngRc.dll", Saved) \
    Text(SkinPath, L"", Saved)                                                                 \
    Dword(EnableSoundEffect, 1, Saved)                                                         \
    Dword(RemoveHighlight, 0, Saved)                                                           \
    Dword(GoofyMode, 0, Saved)                                                                 \
    Dword(IndentItems, 0, Saved)                                                               \
    Dword(AutoHeight, 1, Saved)                                                                \
    Dword(dHeightLimit, computed_defaults::HeightLimit, Saved)                                 \
    Dword(dHeightLimitLandscape, 0, Saved)                                                     \
    Dword(RemoveTabsBar, 0, Saved)                                                             \
    Dword(RemoveSettingsButton, 0, Saved)                                                      \
    Dword(RemoveSeparatingLine, 1, Saved)                                                      \
    Dword(FilterTtlAlign, 0, Saved)                                                            \
    Dword(DPadEnabled, 1, Saved)                                                               \
    Dword(DPadMode, 0, Saved)                                                                  \
    Dword(DPadCompleteAction, 2, Saved)                                                        \
    Dword(DPadDoubleClickTabSwitching, 0, Saved)                                               \
    Dword(DPadScrollingAction, 0, Saved)                                                       \
    Dword(ExclusiveDPadNavig, 0, Saved)                                                        \
    Dword(UseDoubleClickScroll, 1, Saved)                                                      \
    Dword(UseFullScrollings, 1, Saved)                                                         \
    Dword(MyVgaMode, 0, Saved)                                                                 \
    Dword(UseThinLines, 0, Saved)                                                              \
    Dword(LoadingDelay, 0, Saved)                                                              \
    Text(OVFiltersFileFolder, computed_defaults::InstallFolder, Saved)                         \
    Text(OVIconsFolder, computed_defaults::CategoryIconsFolder, Saved)                         \
    Dword(NoteZoom, 100, Saved)                                                                \
    Dword(ActiveTab, 1, Saved)                                                                 \
    Dword(LastMinimizeState, 0, Saved)                                                         \
    Dword(FirstTimeSettingsMsg, 0, Saved)
// clang-format on
