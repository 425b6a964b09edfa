#include "host_calls.h"

#include <cstring>
#include <map>

#include "loaded_image.h"

Machine* machine = nullptr;

namespace {

std::vector<HMODULE> libraries;

// What the device's library exports by number alone.
struct Ordinal {
    const char* library;
    const char* number;
    const char* name;
};
constexpr Ordinal kOrdinals[] = {
    {"aygshell.dll", "#34", "SHCreateMenuBar"},
    {"aygshell.dll", "#56", "SHInitDialog"},
    {"aygshell.dll", "#83", "SHHandleWMSettingChange"},
    {"aygshell.dll", "#84", "SHHandleWMActivate"},
};

std::string NameOf(const PeImage::Import& import) {
    for (const Ordinal& ordinal : kOrdinals) {
        if (import.library == ordinal.library && import.name == ordinal.number) return ordinal.name;
    }
    return import.name;
}

Machine::HostFunction FunctionAt(const void* function) {
    return [function](Machine::Words words) -> uint64_t { return CallHost(function, words); };
}

// Wine's controls tell of keys in structures without alignment, which may lie at any address; a
// device's do not. Such a notification is handed on from a place that the processor can read.
uint32_t Aligned(uint32_t message, uint32_t lParam) {
    constexpr uint32_t kSize = 18; // NMLVKEYDOWN, NMTCKEYDOWN, NMTVKEYDOWN.
    alignas(4) static uint8_t copy[kSize];
    if (message != WM_NOTIFY || lParam % 4 == 0) return lParam;
    memcpy(copy, reinterpret_cast<const void*>(lParam), kSize);
    return reinterpret_cast<uint32_t>(copy);
}

// Called by the code that WrapProcedure writes, with the program's function and the words that its
// caller pushed.
extern "C" __attribute__((used)) uint32_t CallProgram(uint32_t function, const uint32_t* words) {
    return machine->Call(function, {words[0], words[1], words[2], Aligned(words[1], words[3])});
}

} // namespace

// All words of a call are pushed; who is called takes off what it likes, and the stack is put back.
uint32_t CallHost(const void* function, Machine::Words words) {
    static_assert(Machine::kWords == 16);
    uint32_t result = reinterpret_cast<uint32_t>(function);
    __asm__ volatile("movl %%esp, %%ebx\n\t"
                     "andl $-16, %%esp\n\t"
                     "subl $64, %%esp\n\t"
                     "movl %%esp, %%edi\n\t"
                     "movl $16, %%ecx\n\t"
                     "cld\n\t"
                     "rep movsl\n\t"
                     "call *%%eax\n\t"
                     "movl %%ebx, %%esp"
                     : "+a"(result), "+S"(words)
                     :
                     : "ebx", "ecx", "edx", "edi", "memory", "cc");
    return result;
}

// mov eax, function; push esp's words and eax for CallProgram; return, taking off the caller's.
uint32_t WrapProcedure(uint32_t function, int words) {
    if (!program.Holds(reinterpret_cast<void*>(function))) return function;
    static std::map<std::pair<uint32_t, int>, uint32_t> made;
    uint32_t& wrapper = made[{function, words}];
    if (wrapper != 0) return wrapper;

    constexpr uint32_t kRoom = 4096;
    static uint8_t* code = nullptr;
    static uint32_t used = kRoom;
    if (used + 32 > kRoom) {
        code =
            static_cast<uint8_t*>(VirtualAlloc(nullptr, kRoom, MEM_COMMIT, PAGE_EXECUTE_READWRITE));
        used = 0;
    }
    uint8_t bytes[] = {
        0x8D, 0x4C,
        0x24, 0x04, // lea ecx, [esp + 4]
        0x51,       // push ecx
        0x68, 0,
        0,    0,
        0, // push function
        0xB8, 0,
        0,    0,
        0,          // mov eax, CallProgram
        0xFF, 0xD0, // call eax
        0x83, 0xC4,
        0x08, // add esp, 8
        0xC2, static_cast<uint8_t>(4 * words),
        0, // ret
    };
    const auto target = reinterpret_cast<uint32_t>(&CallProgram);
    memcpy(bytes + 6, &function, sizeof function);
    memcpy(bytes + 11, &target, sizeof target);
    memcpy(code + used, bytes, sizeof bytes);
    wrapper = reinterpret_cast<uint32_t>(code + used);
    used += 32;
    return wrapper;
}

void SetUpHostCalls() {
    for (const char* name : {"coredll", "aygshell", "kernel32", "user32", "gdi32", "advapi32",
                             "comctl32", "ole32", "oleaut32", "shell32", "msvcrt"}) {
        HMODULE library = LoadLibraryA(name);
        if (library)
            libraries.push_back(library);
        else
            fprintf(stderr, "armwine: no library %s\n", name);
    }
    // The methods of the system's objects, which the program calls through their tables.
    machine->Cpu().StopWithin(0x10000, reinterpret_cast<uint32_t>(program.base));
    machine->Cpu().StopWithin(reinterpret_cast<uint32_t>(program.base) + program.image->Size(),
                              0xFFFF0000);
    machine->onForeign = [](uint32_t address) {
        return FunctionAt(reinterpret_cast<const void*>(address));
    };
}

Machine::HostFunction FindHostCall(const PeImage::Import& import) {
    const std::string name = NameOf(import);
    if (auto wrapped = FindWrappedCall(name)) return wrapped;
    // The device names some calls without the W of a PC's wide ones; without it, a PC has another
    // call.
    for (const std::string& spelling : {name + "W", name}) {
        for (HMODULE library : libraries) {
            if (auto* function =
                    reinterpret_cast<const void*>(GetProcAddress(library, spelling.c_str())))
                return FunctionAt(function);
        }
    }
    fprintf(stderr, "armwine: nothing serves %s!%s\n", import.library.c_str(), import.name.c_str());
    return {};
}
