#pragma once

// Every value of the CustomPIM key, in load order.
// clang-format off
#define PIM_SETTINGS(Dword)                 \
    Dword(PimSw, 0, Saved)                  \
    Dword(DefaultReminderAppts, 15, Saved)  \
    Dword(DefaultReminderTasks, 480, Saved) \
    Dword(OverridePimCatIcons, 0, Saved)    \
    Dword(OverridePimCatColros, 0, Saved)   \
    Dword(LeaveAFRunning, 0, Saved)         \
    Dword(HideABCVals, 1, Saved)
// clang-format on
