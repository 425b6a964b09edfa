// The program knows no exceptions: where the standard library would throw one, the program ends.
// Saying so here keeps the library's machinery for throwing, and for printing what was thrown, out
// of the executable, whose size counts on a device of 64 MB.

#include <windows.h>

#include <cstdlib>
#include <new>

namespace {
[[noreturn]] void EndProgram() {
    constexpr UINT kExitCode =
        ERROR_NOT_ENOUGH_MEMORY; // What else is thrown would be a fault of ours.
    TerminateProcess(GetCurrentProcess(), kExitCode);
    __builtin_unreachable();
}
} // namespace

void* operator new(size_t size) {
    void* block = operator new(size, std::nothrow);
    if (block == nullptr) EndProgram();
    return block;
}

void* operator new[](size_t size) {
    return operator new(size);
}

void* operator new(size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size == 0 ? 1 : size);
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept {
    return operator new(size, std::nothrow);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, size_t) noexcept {
    std::free(block);
}

void operator delete[](void* block, size_t) noexcept {
    std::free(block);
}

// NOLINTBEGIN(*-reserved-identifier, *-identifier-naming): the names are the library's.
namespace std {
void __throw_bad_alloc() {
    EndProgram();
}
void __throw_bad_array_new_length() {
    EndProgram();
}
void __throw_length_error(const char*) {
    EndProgram();
}
void __throw_logic_error(const char*) {
    EndProgram();
}
void __throw_out_of_range_fmt(const char*, ...) {
    EndProgram();
}
void __throw_bad_function_call() {
    EndProgram();
}
} // namespace std
// NOLINTEND(*-reserved-identifier, *-identifier-naming)
