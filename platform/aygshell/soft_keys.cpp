#include "soft_keys.h"

#include "../coredll/shell_frame.h"
#include "menu_bar.h"

namespace {

HHOOK hook = nullptr;
int users = 0;

bool IsMenuOpen() {
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE);
}

// Posts what the key does: a menu must not open inside the hook.
bool HandleSoftKey(WORD key, bool released) {
    HWND active = GetAncestor(GetFocus(), GA_ROOT);
    const MenuBar* bar = active ? MenuBar::Of(active) : nullptr;
    if (!bar || bar->IsOverridden(key)) return false;
    if (released) return true;
    if (IsMenuOpen())
        EndMenu();
    else
        PostMessageW(bar->Window(), kSoftKeyMessage, key - VK_F1, 0);
    return true;
}

bool HandleKey(WORD key, LPARAM details) {
    const bool released = (HIWORD(details) & KF_UP) != 0;
    const bool repeated = !released && (HIWORD(details) & KF_REPEAT) != 0;
    if (key == VK_F1 || key == VK_F2) return repeated || HandleSoftKey(key, released);
    const bool okKey = key == VK_RETURN && GetKeyState(VK_CONTROL) < 0;
    return okKey && !released && !repeated && !IsMenuOpen() && ShellPostOk();
}

LRESULT CALLBACK KeyboardProc(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && HandleKey(static_cast<WORD>(wParam), lParam)) return 1;
    return CallNextHookEx(hook, code, wParam, lParam);
}

} // namespace

void AddSoftKeyUser() {
    if (users++ == 0)
        hook = SetWindowsHookExW(WH_KEYBOARD, KeyboardProc, nullptr, GetCurrentThreadId());
}

void RemoveSoftKeyUser() {
    if (--users == 0) UnhookWindowsHookEx(hook);
}
