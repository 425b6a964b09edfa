#pragma once

// Every value of the TabSettings key itself, in load order. The tab list, which is loaded and saved
// between them, divides them in three.
// clang-format off
#define TAB_MODE_SETTINGS(Dword)     \
    Dword(TabsMode, 0, Saved)        \
    Dword(TabGesturesMode, 1, Saved) \
    Dword(TabGesturEffect, 1, Saved)

#define OWN_TAB_SETTINGS(Dword)         \
    Dword(CalendarTabEnabled, 1, Saved) \
    Dword(CalendarTabOrder, 1, Saved)   \
    Dword(TasksTabEnabled, 1, Saved)    \
    Dword(TasksTabOrder, 2, Saved)      \
    Dword(NotesTabEnabled, 1, Saved)    \
    Dword(NotesTabOrder, 3, Saved)      \
    Dword(ContactsTabEnabled, 1, Saved) \
    Dword(ContactsTabOrder, 4, Saved)   \
    Dword(MailTabEnabled, 1, Saved)     \
    Dword(MailTabOrder, 5, Saved)       \
    Dword(SEventsTabEnabled, 1, Saved)  \
    Dword(SEventsTabOrder, 6, Saved)

#define DEFAULT_TAB_SETTINGS(Dword)   \
    Dword(DfltTabTimeOut, 0, Saved)   \
    Dword(DfltTab, 0, Saved)          \
    Dword(DfltTabOnStartup, 0, Saved)
// clang-format on
