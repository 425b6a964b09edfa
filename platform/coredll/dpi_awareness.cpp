// Density awareness came to PCs with this version.
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0600
#include <windows.h>

namespace {

// Whether the program's HI_RES_AWARE resource says that it scales itself.
bool ScalesItself() {
    HRSRC resource = FindResourceW(nullptr, L"HI_RES_AWARE", L"CEUX");
    if (!resource || SizeofResource(nullptr, resource) < sizeof(WORD)) return false;
    const auto* value = static_cast<const WORD*>(LockResource(LoadResource(nullptr, resource)));
    return value && *value != 0;
}

} // namespace

// Such a program is told the screen's true density and size. That has to be settled before anything
// asks for either, so when this library is loaded.
BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, LPVOID /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH && ScalesItself()) SetProcessDPIAware();
    return TRUE;
}
