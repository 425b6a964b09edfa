#include "calls.h"

#include <atomic>
#include <bit>

namespace {

// By the place of the kind's bit, counted from 1.
std::atomic<ULONG> counts[33];

// How many more calls of `failingCalls` come before, and with, the one that fails; 0 = no plan.
std::atomic<ULONG> callsToFailure;
std::atomic<ULONG> failingCalls;
std::atomic<LONG> failure;
// In place of an error.
constexpr LONG kExit = -1;

bool ReachesPlannedFailure() {
    ULONG left = callsToFailure;
    while (left != 0 && !callsToFailure.compare_exchange_weak(left, left - 1)) {
    }
    return left == 1;
}

} // namespace

LONG CountCall(StandInCalls kind) {
    ++counts[std::bit_width(static_cast<ULONG>(kind))];
    if ((failingCalls & kind) == 0 || !ReachesPlannedFailure()) return ERROR_SUCCESS;
    if (failure == kExit) TerminateProcess(GetCurrentProcess(), kStandInExitCode);
    return failure;
}

extern "C" {

ULONG WINAPI StandInCallCount(ULONG calls) {
    ULONG total = 0;
    for (; calls != 0; calls &= calls - 1)
        total += counts[std::countr_zero(calls) + 1];
    return total;
}

void WINAPI StandInResetCalls() {
    callsToFailure = 0;
    for (std::atomic<ULONG>& count : counts)
        count = 0;
}

void WINAPI StandInFailCall(ULONG calls, ULONG nth, LONG error) {
    callsToFailure = 0;
    failingCalls = calls;
    failure = error;
    callsToFailure = nth;
}

void WINAPI StandInExitAtCall(ULONG calls, ULONG nth) {
    StandInFailCall(calls, nth, kExit);
}

} // extern "C"
