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
    {1, IDS_ICON_NOTE, 290},        {2, IDS_ICON_REMINDER, 287},   {4, IDS_ICON_IMPORTANCE, 292},
    {8, IDS_ICON_RECURRING, 289},   {16, IDS_ICON_PRIVATE, 286},   {64, IDS_ICON_LINK, 294},
    {128, IDS_ICON_ATTENDEES, 288}, {256, IDS_ICON_CATEGORY, 321},
};

inline constexpr IconFlag kTaskIconFlags[] = {
    {1, IDS_ICON_NOTE, 290},      {2, IDS_ICON_REMINDER, 287},   {4, IDS_ICON_IMPORTANCE, 292},
    {8, IDS_ICON_RECURRING, 289}, {16, IDS_ICON_PRIVATE, 286},   {32, IDS_ICON_REGENERATED, 291},
    {64, IDS_ICON_LINK, 294},     {256, IDS_ICON_CATEGORY, 321},
};
