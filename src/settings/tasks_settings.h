#pragma once

// Every value of the Tasks key, in load order. SavedAt gives a value's place among those written,
// which is another order. The dashboard maintains the values that are only read here.
// clang-format off
#define TASKS_SETTINGS(Dword, Text, BitsAs)            \
    Dword(TsksDateFrmt, 3, SavedAt(1))                 \
    Dword(TsksLimitFutureDate, 0, SavedAt(2))          \
    Dword(HideCompletedTasks, 0, SavedAt(3))           \
    Dword(HidePastCompletedTasks, 1, SavedAt(4))       \
    Dword(ConfirmTaskCompleteTsks, 1, SavedAt(6))      \
    Dword(RemoveUndatedLeadingStr, 0, SavedAt(7))      \
    Dword(RemoveUndatedTsks, 0, SavedAt(8))            \
    Dword(TsksLineBreaker, 3, SavedAt(9))              \
    Dword(TsksFoldingType, 2, SavedAt(11))             \
    Dword(TsksUseSmartFolding, 1, SavedAt(10))         \
    Dword(IncludeCountersTsks, 1, SavedAt(5))          \
    Dword(TaskTabLeftAlignIcon1, 0, SavedAt(12))       \
    Dword(TaskTabLeftAlignIcon2, 0, SavedAt(13))       \
    Dword(TasksRightIcons, 383, SavedAt(14))           \
    Dword(UseCustomDateTsks, 0, SavedAt(15))           \
    Dword(TsksCustomDateStruct, 1, SavedAt(16))        \
    Text(CustomDateFrmtStart, L"", SavedAt(17))        \
    Text(CustomDateFrmtEnd, L"", SavedAt(18))          \
    Text(TasksSelCategory, L"", ReadOnly)              \
    Dword(TasksSelFilter, 0, ReadOnly)                 \
    Text(TasksRecentFilters, L"", ReadOnly)            \
    Dword(TasksSlideoutOpen, 1, ReadOnly)              \
    Dword(TsksGrouping, 15, ReadOnly)                  \
    Dword(TsksGroupingDirctn, 1, ReadOnly)             \
    Dword(TsksSrt1, 0, ReadOnly)                       \
    Dword(TsksSrt1Dirctn, 1, ReadOnly)                 \
    Dword(TsksSrt2, 2, ReadOnly)                       \
    Dword(TsksSrt2Dirctn, 1, ReadOnly)                 \
    Dword(TsksSrt3, 5, ReadOnly)                       \
    Dword(TsksSrt3Dirctn, 1, ReadOnly)                 \
    BitsAs(TasksFoldState, L"FoldState", 41, ReadOnly) \
    Text(FoldStateCategory, L"", ReadOnly)
// clang-format on
