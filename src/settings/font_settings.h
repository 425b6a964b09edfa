#pragma once

// Every value of the Fonts key, in load order: the general options first, since the face and the
// quality of every font come from them.
// clang-format off
#define FONT_OPTION_SETTINGS(Dword, Text)                           \
    Dword(FontGnrlSize, computed_defaults::FontHeight, Saved)       \
    Dword(FontGnrlTitlesSize, computed_defaults::FontHeight, Saved) \
    Dword(FontGnrlUseAdvncd, 0, Saved)                              \
    Text(FontFaceToUse, L"Tahoma", Saved)                           \
    Dword(UseShadowColor, 0, Saved)                                 \
    Dword(ForceClearType, 0, Saved)

// The fonts, each with its weight and whether it is struck out by default. A font's place in this
// list is its number in the whole program.
#define FONT_SETTINGS(Font)                  \
    Font(FontGeneral, 100, Plain)            \
    Font(FontCalTasks, 100, Plain)           \
    Font(FontCalTasksOverdue, 100, Plain)    \
    Font(FontCalTasksFuture, 100, Plain)     \
    Font(FontCalTasksCompleted, 100, Plain)  \
    Font(FontCalTasksUndated, 100, Plain)    \
    Font(FontCalApptBusy, 100, Plain)        \
    Font(FontCalApptFree, 100, Plain)        \
    Font(FontCalApptOutOfOffice, 100, Plain) \
    Font(FontCalTentative, 100, Plain)       \
    Font(FontCalPast, 100, Struck)           \
    Font(FontCalCompleted, 100, Struck)      \
    Font(FontMailRead, 100, Plain)           \
    Font(FontMailUnread, 700, Plain)         \
    Font(FontCalDayTitles, 700, Plain)       \
    Font(FontTskOverdue, 100, Plain)         \
    Font(FontTskDueToday, 100, Plain)        \
    Font(FontTskNoDue, 100, Plain)           \
    Font(FontTskFutureDue, 100, Plain)       \
    Font(FontTskGroupingTtls, 700, Plain)    \
    Font(FontNoteItems, 100, Plain)          \
    Font(FontNoteTitles, 700, Plain)         \
    Font(FontContactItems, 100, Plain)       \
    Font(FontContactTitles, 700, Plain)      \
    Font(FontMsgsUnread, 700, Plain)         \
    Font(FontMsgsRead, 100, Plain)           \
    Font(FontMsgsTitles, 700, Plain)         \
    Font(FontSEGeneral, 100, Plain)          \
    Font(FontSEFilter1, 100, Plain)          \
    Font(FontSEFilter2, 100, Plain)          \
    Font(FontSEFilter3, 100, Plain)          \
    Font(FontSEFilter4, 100, Plain)          \
    Font(FontSEGroupingTtls, 700, Plain)
// clang-format on
