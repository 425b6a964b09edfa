// Does on purpose what a device would not stand for: the word on the command line says what. The
// loader has to end it; what comes through ends with 0.

#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace {

alignas(4) char bytes[16];

// At an address that the compiler cannot reason about.
char* OddPlace() {
    char* place = bytes;
    __asm__("add %0, %0, #2" : "+r"(place));
    return place;
}

void ReadAWordAtAnOddPlace() {
    __asm__ volatile("ldr r3, [%0]" ::"r"(OddPlace()) : "r3", "memory");
}

void WriteHalfAWordAtAnOddPlace() {
    __asm__ volatile("strh %1, [%0, #1]" ::"r"(OddPlace()), "r"(0) : "memory");
}

// Count leading zeros: ARMv5 has it.
void RunANewerInstruction() {
    __asm__ volatile(".word 0xE16F3F13" ::: "r3");
}

void WriteBehindABlock() {
    auto* block = static_cast<char*>(malloc(5));
    __asm__ volatile("strb %0, [%0, #5]" ::"r"(block) : "memory");
    free(block);
}

void ReadNothing() {
    const char* nothing = nullptr;
    __asm__("" : "+r"(nothing));
    __asm__ volatile("ldr r3, [%0]" ::"r"(nothing) : "r3", "memory");
}

// A text of two-byte characters from between two of them.
void PassAnOddPointer() {
    const wchar_t* text = L"no file";
    __asm__("add %0, %0, #1" : "+r"(text));
    DeleteFile(text);
}

// No faults: two instructions a round, for the counter.
void Loop(unsigned rounds) {
    __asm__ volatile("1: subs %0, %0, #1\n bne 1b" : "+r"(rounds)::"cc");
}
void LoopAThousandTimes() {
    Loop(1000);
}
void LoopThreeThousandTimes() {
    Loop(3000);
}

struct Fault {
    const wchar_t* name;
    void (*commit)();
};
constexpr Fault kFaults[] = {
    {L"loop-1000", LoopAThousandTimes},
    {L"loop-3000", LoopThreeThousandTimes},
    {L"odd-word", ReadAWordAtAnOddPlace},
    {L"odd-half", WriteHalfAWordAtAnOddPlace},
    {L"newer", RunANewerInstruction},
    {L"behind-block", WriteBehindABlock},
    {L"null", ReadNothing},
    {L"odd-pointer", PassAnOddPointer},
};

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR commandLine, int) {
    for (const Fault& fault : kFaults) {
        if (wcscmp(fault.name, commandLine) == 0) fault.commit();
    }
    return 0;
}
