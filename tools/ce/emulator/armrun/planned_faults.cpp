// The tests' ways to count the program's calls, to make one of them fail and to take the battery
// out in one: what platform/include/stand_in.h declares.
#include "planned_faults.h"

#include <cstdio>
#include <cstdlib>

#include "host.h"

namespace {

constexpr int kKinds = 32;
constexpr int kBatteryOut = 99;

uint32_t counts[kKinds];
struct {
    uint32_t calls, left, error;
    bool ends;
} plan;

uint32_t StandInCallCount(uint32_t calls) {
    uint32_t sum = 0;
    for (int kind = 0; kind < kKinds; ++kind)
        sum += calls >> kind & 1 ? counts[kind] : 0;
    return sum;
}

void StandInResetCalls() {
    for (uint32_t& count : counts)
        count = 0;
    plan = {};
}

void StandInFailCall(uint32_t calls, uint32_t nth, uint32_t error) {
    plan = {calls, nth, error, false};
}

void StandInExitAtCall(uint32_t calls, uint32_t nth) {
    plan = {calls, nth, 0, true};
}

} // namespace

uint32_t CountCall(CallKind kind) {
    for (int bit = 0; bit < kKinds; ++bit)
        counts[bit] += kind >> bit & 1;
    if (!(plan.calls & kind) || plan.left == 0 || --plan.left != 0) return 0;
    if (plan.ends) {
        fflush(stdout);
        _Exit(kBatteryOut);
    }
    return plan.error;
}

const std::vector<HostEntry>& PlannedFaultCalls() {
    static const std::vector<HostEntry> entries = {
        SERVE(StandInCallCount),
        SERVE(StandInResetCalls),
        SERVE(StandInFailCall),
        SERVE(StandInExitAtCall),
    };
    return entries;
}
