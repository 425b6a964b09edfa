// Runs a Windows CE program for ARM inside a 32-bit Wine: the processor is emulated, the system is
// Wine and the stand-in. Both are of 32 bits and share one address space, so that pointers and
// structures cross as they are; what has to be turned on the way is in wrapped_calls.cpp.
//
// usage: armwine PROGRAM [WORD...]
// environment: ARMWINE_TRACE=1       prints every call of the system
//              ARMWINE_UNALIGNED=1   accepts what the device's processor would refuse
//              ARMWINE_COUNTS=FILE   counts instructions and writes them to the file (a host's
//              path)
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "../machine.h"
#include "../pe_image.h"
#include "host_calls.h"
#include "loaded_image.h"
#include "marks.h"

namespace {

constexpr uint32_t kStackSize = 0x10000; // What the packager asks for, and no more.
constexpr uint32_t kShow = 5;

bool IsSet(const char* variable) {
    return getenv(variable) != nullptr;
}

void* Reserve(uint32_t size, void* at) {
    return VirtualAlloc(at, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

// What follows the program's own name, which the device's entry point is given.
uint32_t ArgumentsOf(int argc, WCHAR** argv) {
    static std::u16string line;
    for (int i = 2; i < argc; ++i) {
        if (i > 2) line += u' ';
        line += argv[i];
    }
    return reinterpret_cast<uint32_t>(line.c_str());
}

void PrintState() {
    machine->PrintState();
    fprintf(stderr, "  the program is at %p\n", program.base);
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    Fail("exception %08lx at %p", crash->ExceptionRecord->ExceptionCode,
         crash->ExceptionRecord->ExceptionAddress);
}

} // namespace

int main() {
    int argc = 0;
    WCHAR** argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    if (argc < 2) Fail("usage: armwine PROGRAM [WORD...]");
    // Elsewhere than it would like to be: every relocation has to be right.
    if (!program.Load(argv[1])) Fail("not a program for a device: %s", Utf8(argv[1]).c_str());

    auto* gates = static_cast<uint8_t*>(Reserve(Machine::kGateBytes, nullptr));
    auto* stack = static_cast<uint8_t*>(Reserve(kStackSize, nullptr));
    // All of the process but the first and the last pages.
    machine = new Machine({nullptr, 0x10000, 0xFFFF0000}, reinterpret_cast<uint32_t>(gates));
    BeforeFailing(PrintState);
    SetUnhandledExceptionFilter(OnCrash);
    machine->traces = IsSet("ARMWINE_TRACE");
    if (!IsSet("ARMWINE_UNALIGNED")) machine->Cpu().RefuseOddAccesses();
    if (const char* file = getenv("ARMWINE_COUNTS")) CountInto(file);

    SetUpHostCalls();
    machine->Bind(*program.image, reinterpret_cast<uint32_t>(program.base), FindHostCall);
    machine->SetStack(reinterpret_cast<uint32_t>(stack + kStackSize));
    const auto base = reinterpret_cast<uint32_t>(program.base);
    machine->Call(base + program.image->EntryPoint(), {base, 0, ArgumentsOf(argc, argv), kShow});
    Fail("the entry point returned");
}
