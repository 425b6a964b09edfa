// How tests and tools steer the stand-in for the device's core library. A device has none of this,
// so the program itself never includes it.
#pragma once

#include <windows.h>

// Kinds of call, as sets: combine them with |.
enum StandInCalls : ULONG {
    kRegCreateKeyCalls = 1U << 0,
    kRegOpenKeyCalls = 1U << 1,
    kRegCloseKeyCalls = 1U << 2,
    kRegFlushKeyCalls = 1U << 3,
    kRegDeleteKeyCalls = 1U << 4,
    kRegEnumKeyCalls = 1U << 5,
    kRegQueryValueCalls = 1U << 6,
    kRegSetValueCalls = 1U << 7,
    kRegDeleteValueCalls = 1U << 8,
    kRegEnumValueCalls = 1U << 9,
    kCreateFileCalls = 1U << 10,
    kReadFileCalls = 1U << 11,
    kWriteFileCalls = 1U << 12,
    kSetFilePointerCalls = 1U << 13,
    kDeleteFileCalls = 1U << 14,
    kMoveFileCalls = 1U << 15,
    kCreateDirectoryCalls = 1U << 16,
    kFindFileCalls = 1U << 17, // The first and the next.
    kRegQueryInfoCalls = 1U << 18,
    kRegistryCalls = ((1U << 10) - 1) | kRegQueryInfoCalls,
    kFileCalls = ((1U << 18) - 1) & ~((1U << 10) - 1),
};

constexpr UINT kStandInExitCode = 99;

extern "C" {
// Calls of all kinds in the set since the start or the last reset, failed ones too.
ULONG WINAPI StandInCallCount(ULONG calls);

// Sets all counts to 0 and forgets a planned failure.
void WINAPI StandInResetCalls();

// Makes the nth call from now (1 = the next) of those in the set answer `error` and do nothing.
// Only that one call fails. A plan replaces the one before; nth 0 means that none fails.
void WINAPI StandInFailCall(ULONG calls, ULONG nth, LONG error);

// Ends the process, as if its battery were taken out, at the nth call from now of those in the set;
// its exit code is kStandInExitCode. Takes the place of a planned failure, and the other way round.
void WINAPI StandInExitAtCall(ULONG calls, ULONG nth);

// Sets the version of the system played; 0, 0 goes back to OVDEVICE_OS, or 5.1 without it.
void WINAPI StandInSetOsVersion(DWORD major, DWORD minor);

// Sets the folder of the object store's databases; null or empty goes back to "\Object Store".
void WINAPI StandInSetObjectStore(LPCWSTR folder);

// Plays a screen of another size in the upper left corner of the PC's, and turns to it the windows
// that this process has; 0, 0 goes back to the PC's own. Those windows learn of it when their
// thread handles its next messages.
void WINAPI StandInSetScreen(int width, int height);
}
