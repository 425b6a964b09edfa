// What the compiler's C and C++ libraries want of a system. The tests' report goes to the emulator;
// there is nothing else to read or write for them.

#include <windows.h>

#include <sys/stat.h>
#include <sys/time.h>

#include <cerrno>
#include <cstdarg>
#include <cwchar>
#include <new>

// NOLINTBEGIN(*-reserved-identifier, *-identifier-naming): the names are the libraries'.
extern "C" {
unsigned EmulatorWrite(const void* bytes, unsigned size);

int _write(int, const void* bytes, size_t size) {
    return static_cast<int>(EmulatorWrite(bytes, size));
}
int _read(int, void*, size_t) {
    return 0;
}
int _close(int) {
    return 0;
}
int _isatty(int) {
    return 0;
}
int _fstat(int, struct stat* status) {
    status->st_mode = S_IFCHR;
    return 0;
}
int _lseek(int, int, int) {
    return 0;
}
int _kill(int, int) {
    abort();
}
int _getpid() {
    return 1;
}
[[noreturn]] void _exit(int code) {
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
    __builtin_unreachable();
}
// The time is of no interest but in the report.
int _gettimeofday(struct timeval* time, void*) {
    const DWORD ticks = GetTickCount();
    time->tv_sec = ticks / 1000;
    time->tv_usec = static_cast<suseconds_t>(ticks % 1000 * 1000);
    return 0;
}
// No folders and files by the C library's names: googletest is not asked to write any.
int _open(const char*, int, int) {
    errno = ENOENT;
    return -1;
}
int _stat(const char*, struct stat*) {
    errno = ENOENT;
    return -1;
}
int _unlink(const char*) {
    errno = ENOENT;
    return -1;
}
void _fini() {}
int mkdir(const char*, mode_t) {
    errno = ENOENT;
    return -1;
}
char* getcwd(char* buffer, size_t size) {
    if (size > 0) buffer[0] = '\0';
    return buffer;
}

// For std::to_wstring. The C library's own is for a wchar_t of 4 bytes.
int vswprintf(wchar_t* buffer, size_t size, const wchar_t* format, va_list arguments) {
    return _vsnwprintf(buffer, size, format, arguments);
}

// The C library's own heap, which only formatting takes from.
void* _sbrk(ptrdiff_t step) {
    static char heap[1 << 20];
    static size_t used = 0;
    if (used + static_cast<size_t>(step) > sizeof(heap)) return reinterpret_cast<void*>(-1);
    used += static_cast<size_t>(step);
    return heap + used - step;
}

// The C++ library was built to throw and to unwind; nothing here does.
int __cxa_guard_acquire(char* guard) {
    return *guard == 0;
}
void __cxa_guard_release(char* guard) {
    *guard = 1;
}
void __cxa_guard_abort(char*) {}
void* __cxa_begin_catch(void*) {
    abort();
}
void __cxa_end_catch() {}
void __cxa_end_cleanup() {
    abort();
}
void __cxa_rethrow() {
    abort();
}
void __cxa_throw(void*, void*, void (*)(void*)) {
    abort();
}
void* __cxa_allocate_exception(size_t) {
    abort();
}
void __cxa_free_exception(void*) {}
int __gxx_personality_v0() {
    abort();
}
void __aeabi_unwind_cpp_pr2() {}
void* __dso_handle = nullptr;
int __aeabi_atexit(void*, void (*)(void*), void*) {
    return 0;
}
int __cxa_atexit(void (*)(void*), void*, void*) {
    return 0;
}
}

namespace std {
void terminate() noexcept {
    abort();
}
bool uncaught_exception() noexcept {
    return false;
}
void __throw_bad_cast() {
    abort();
}
void __throw_ios_failure(const char*) {
    abort();
}
void __throw_ios_failure(const char*, int) {
    abort();
}
void __throw_runtime_error(const char*) {
    abort();
}
void __throw_invalid_argument(const char*) {
    abort();
}
void __throw_out_of_range(const char*) {
    abort();
}
void __throw_system_error(int) {
    abort();
}
void __throw_regex_error(int) {
    abort();
}
} // namespace std
// NOLINTEND(*-reserved-identifier, *-identifier-naming)
