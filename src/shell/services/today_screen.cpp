#include "shell/services/today_screen.h"

#include <windows.h>

void RefreshTodayScreen() {
    constexpr WPARAM kTodayItemsChanged = 0xF2;
    SendMessage(GetDesktopWindow(), WM_SETTINGCHANGE, kTodayItemsChanged, 0);
}
