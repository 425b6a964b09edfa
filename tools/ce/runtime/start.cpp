// From the entry point to the program's own: what the compiler expects to be done before it.

#include <windows.h>

namespace {
using Constructor = void (*)();
} // namespace

extern "C" {
// The linker script's: the constructors of objects that live as long as the program.
extern const Constructor constructorsStart[];
extern const Constructor constructorsEnd[];

[[noreturn]] void StartProgram(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine,
                               int showCommand);
}

void StartProgram(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int showCommand) {
    for (const Constructor* construct = constructorsStart; construct != constructorsEnd;
         ++construct)
        (*construct)();
    const int exitCode = wWinMain(instance, previous, commandLine, showCommand);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
    __builtin_unreachable();
}
