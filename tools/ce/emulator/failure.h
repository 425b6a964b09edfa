#pragma once

// Ends the process with a line on the standard error. What the loaders cannot do is a fault of the
// program that they run, of its packaging or of the loaders: nothing goes on from there.
[[noreturn]] void Fail(const char* format, ...) __attribute__((format(printf, 1, 2)));

// What is to happen just before, such as telling where the processor stood. Told once.
void BeforeFailing(void (*report)());

// How a failed run ends; the tests' own codes are 0 and 1.
constexpr int kFailureExitCode = 94;
