#pragma once

// Every value of the Contacts key, in load order. The dashboard maintains the values that are only
// read here: what it remembers of its selection, sorting and folding.
// clang-format off
#define CONTACTS_SETTINGS(Dword, Text, DwordAs)                         \
    Dword(CntctsActiveLanguages, 1, Saved)                              \
    Dword(CntctsActiveSearchBar, 1, Saved)                              \
    Text(ContactsCustomSearchBarSelected, L"", Saved)                   \
    Dword(CntctsTitleStruct, 0, Saved)                                  \
    Dword(CntctsDPadActionOverride, 1, Saved)                           \
    Dword(CntctsOnClickActionOpenItem, 0, Saved)                        \
    Dword(CntctsPrvwDlgUponOpenItem, 0, Saved)                          \
    Dword(ContactsTxtByCategoryClr, 0, Saved)                           \
    Dword(CntctsBreakLineStyle, 3, Saved)                               \
    Dword(CntctsIncldFoldBttns, 1, Saved)                               \
    Dword(CntctsIncldCounters, 1, Saved)                                \
    Dword(ContactsLayout, 0, Saved)                                     \
    Dword(CntctsPhoneColumnWidth, 90, Saved)                            \
    Dword(CntctsHideNoPicture, 0, Saved)                                \
    Text(ContactsSelCategory, L"", ReadOnly)                            \
    Dword(ContactsSelFilter, 0, ReadOnly)                               \
    Text(ContactsRecentFilters, L"", ReadOnly)                          \
    Dword(ContactsSlideoutOpen, 1, ReadOnly)                            \
    Dword(ContactsGrouping, 0, ReadOnly)                                \
    Dword(ContactsGroupingDirection, 1, ReadOnly)                       \
    Dword(ContactsSortDirection, 1, ReadOnly)                           \
    Dword(ContactsSearchMode, 0, ReadOnly)                              \
    DwordAs(ContactsFoldingStateNone, L"FoldingStateNone", 0, ReadOnly) \
    Text(FoldingStateCategory, L"", ReadOnly)                           \
    Text(FoldingStateCompany, L"", ReadOnly)
// clang-format on
