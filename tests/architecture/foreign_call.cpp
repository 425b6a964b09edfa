// A call that the device does not have: the check of the program's calls must find it.
#include <windows.h>

unsigned long long MillisecondsSinceStart() {
    return GetTickCount64();
}
