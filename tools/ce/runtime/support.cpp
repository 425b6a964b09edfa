// What the compiler and the standard library ask for by name and the device's libraries do not
// have.

#include <windows.h>

#include <cwchar>

namespace {
[[noreturn]] void EndProgram() {
    // As the system does when a program breaks a rule of its own.
    constexpr UINT kExitCode = 3;
    TerminateProcess(GetCurrentProcess(), kExitCode);
    __builtin_unreachable();
}
} // namespace

// NOLINTBEGIN(*-reserved-identifier, *-identifier-naming): the names are the compiler's.
extern "C" {
void abort() {
    EndProgram();
}

// A call of a virtual function that no class gave a body.
void __cxa_pure_virtual() {
    EndProgram();
}

// Division by 0, reported by the compiler's own arithmetic.
int raise(int) {
    EndProgram();
}

// Objects inside functions are not destroyed at the end either.
int atexit(void (*)()) {
    return 0;
}

// The table that unwinding would start from; the program knows no exceptions.
void __aeabi_unwind_cpp_pr0() {}
void __aeabi_unwind_cpp_pr1() {}

// The C library of the compiler has these too, but for a wchar_t of 4 bytes.
wchar_t* wmemcpy(wchar_t* to, const wchar_t* from, size_t count) {
    return static_cast<wchar_t*>(memcpy(to, from, count * sizeof(wchar_t)));
}

wchar_t* wmemmove(wchar_t* to, const wchar_t* from, size_t count) {
    return static_cast<wchar_t*>(memmove(to, from, count * sizeof(wchar_t)));
}

wchar_t* wmemset(wchar_t* to, wchar_t value, size_t count) {
    for (size_t i = 0; i < count; ++i)
        to[i] = value;
    return to;
}

int wmemcmp(const wchar_t* left, const wchar_t* right, size_t count) {
    for (size_t i = 0; i < count; ++i)
        if (left[i] != right[i]) return left[i] < right[i] ? -1 : 1;
    return 0;
}
}

// <cwchar> declares it twice over, for constant texts and for others; both mean this one.
const wchar_t* FindWide(const wchar_t* text, wchar_t value, size_t count) __asm__("wmemchr");

const wchar_t* FindWide(const wchar_t* text, wchar_t value, size_t count) {
    for (size_t i = 0; i < count; ++i)
        if (text[i] == value) return text + i;
    return nullptr;
}
// NOLINTEND(*-reserved-identifier, *-identifier-naming)
