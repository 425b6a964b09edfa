#pragma once

// Every value of the SEvents key, in load order. The dashboard maintains the values that are only
// read here: what it remembers of its selection, sorting and folding.
// clang-format off
#define SEVENTS_SETTINGS(Dword, Text, DwordAs)                \
    Dword(SEventDays, 2, Saved)                               \
    Dword(SEAlertBeforeDays, 0, Saved)                        \
    Dword(SEDateFormat, 0, Saved)                             \
    Dword(SEContactFormat, 0, Saved)                          \
    Dword(SEApptsDaySpan, 30, Saved)                          \
    Dword(SEFilterAlertBeforeDays, 0, Saved)                  \
    Text(AdditionalFilterCat1, L"", Saved)                    \
    Text(AdditionalFilterCat2, L"", Saved)                    \
    Text(AdditionalFilterCat3, L"", Saved)                    \
    Text(AdditionalFilterCat4, L"", Saved)                    \
    Dword(BreakLineStyle, 3, Saved)                           \
    Dword(IncldFoldBttns, 1, Saved)                           \
    DwordAs(SEventsIncldCounters, L"IncldCounters", 1, Saved) \
    Text(SEventsSelCategory, L"", ReadOnly)                   \
    Dword(SEventsSelFilter, 0, ReadOnly)                      \
    Text(SEventsRecentFilters, L"", ReadOnly)                 \
    Dword(FoldingState, 0, ReadOnly)
// clang-format on
