#include "failure.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {
void (*reportBefore)() = nullptr;
} // namespace

void BeforeFailing(void (*report)()) {
    reportBefore = report;
}

void Fail(const char* format, ...) {
    fflush(stdout);
    fputs("emulator: ", stderr);
    va_list arguments;
    va_start(arguments, format);
    vfprintf(stderr, format, arguments);
    va_end(arguments);
    fputs("\n", stderr);
    if (auto* report = reportBefore) {
        reportBefore = nullptr;
        report();
    }
    fflush(stderr);
    _Exit(kFailureExitCode);
}
