#pragma once

// Every value of the Notes key, in load order. The dashboard maintains the values that are only
// read here: what it remembers of its selection, sorting and folding.
// clang-format off
#define NOTES_SETTINGS(Dword, Text, DwordAs)                         \
    Dword(NotesActiveSearchBar, 1, Saved)                            \
    Text(NotesCustomSearchBarSelected, L"", Saved)                   \
    Dword(NotesPreviewNotesState, 2, Saved)                          \
    Dword(NotesBreakLineStyle, 3, Saved)                             \
    Dword(NotesIncldFoldBttns, 1, Saved)                             \
    Dword(NotesIncldCounters, 1, Saved)                              \
    Dword(NotesScannedFileTypes, 255, Saved)                         \
    Text(NotesSelFolder, L"", ReadOnly)                              \
    Dword(NotesSlideoutOpen, 1, ReadOnly)                            \
    Dword(NotesTabGrouping, 1, ReadOnly)                             \
    Dword(NotesGroupingDirctn, 1, ReadOnly)                          \
    Dword(DisplayOnNotesTab, 5, ReadOnly)                            \
    Dword(NotesTab1Sort, 0, ReadOnly)                                \
    Dword(NotesTab1SortDirect, 1, ReadOnly)                          \
    Dword(NotesSearchMode, 0, ReadOnly)                              \
    DwordAs(NotesFoldingStateNone, L"FoldingStateNone", 0, ReadOnly) \
    Text(FoldingStateFolder, L"", ReadOnly)                          \
    Dword(FoldingStateProgress, 0, ReadOnly)                         \
    Dword(FoldingStateType, 0, ReadOnly)
// clang-format on
