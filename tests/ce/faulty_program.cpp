// What no program of the device may have: the checks must find it.
#include <windows.h>

#pragma GCC diagnostic ignored "-Wframe-larger-than="

namespace {
// More than a frame may take of a thread's stack.
__attribute__((noinline)) int LargeFrame(int seed) {
    volatile char large[3000];
    large[0] = static_cast<char>(seed);
    return large[0];
}

// An instruction of a later processor.
__attribute__((noinline)) int LaterInstruction(int value) {
    int zeros = 0;
    __asm__(".arch armv5te\n\tclz %0, %1\n\t.arch armv4t" : "=r"(zeros) : "r"(value));
    return zeros;
}

LRESULT CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) {
    return static_cast<LRESULT>(message);
}
} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int showCommand) {
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    RegisterClass(&windowClass);
    return LargeFrame(showCommand) + LaterInstruction(showCommand);
}
