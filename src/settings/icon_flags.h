#pragma once

#include <cstdint>

#include "resource_ids.h"

// The icons that can stand beside an item of the dashboard. A setting holds one flag (0 for none)
// or a sum of them; the flags are the same for appointments and tasks.
struct IconFlag {
    uint32_t flag;
    unsigned caption; // A text of the language library.
    unsigned bitmap;  // A bitmap of the display library.
};

inline constexpr IconFlag kAppointmentIconFlags[] = {
    {1, IDS_ICON_NOTE, IDB_SYMBOL_NOTE},
    {2, IDS_ICON_REMINDER, IDB_SYMBOL_REMINDER},
    {4, IDS_ICON_IMPORTANCE, IDB_SYMBOL_HIGH_IMPORTANCE},
    {8, IDS_ICON_RECURRING, IDB_SYMBOL_RECURRING},
    {16, IDS_ICON_PRIVATE, IDB_SYMBOL_PRIVATE},
    {64, IDS_ICON_LINK, IDB_SYMBOL_LINK},
    {128, IDS_ICON_ATTENDEES, IDB_SYMBOL_ATTENDEES},
    {256, IDS_ICON_CATEGORY, IDB_SYMBOL_CATEGORY},
};

inline constexpr IconFlag kTaskIconFlags[] = {
    {1, IDS_ICON_NOTE, IDB_SYMBOL_NOTE},
    {2, IDS_ICON_REMINDER, IDB_SYMBOL_REMINDER},
    {4, IDS_ICON_IMPORTANCE, IDB_SYMBOL_HIGH_IMPORTANCE},
    {8, IDS_ICON_RECURRING, IDB_SYMBOL_RECURRING},
    {16, IDS_ICON_PRIVATE, IDB_SYMBOL_PRIVATE},
    {32, IDS_ICON_REGENERATED, IDB_SYMBOL_REGENERATED},
    {64, IDS_ICON_LINK, IDB_SYMBOL_LINK},
    {256, IDS_ICON_CATEGORY, IDB_SYMBOL_CATEGORY},
};
