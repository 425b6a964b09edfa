#include "shell/services/platform_version.h"

#include <windows.h>

bool IsNewerThanCe420() {
    OSVERSIONINFO version{};
    version.dwOSVersionInfoSize = sizeof(version);
    GetVersionEx(&version);
    return !(version.dwMajorVersion == 3 ||
             (version.dwMajorVersion == 4 && version.dwMinorVersion == 20));
}
