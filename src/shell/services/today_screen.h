#pragma once

// Has the device's Today screen load its items anew: WM_SETTINGCHANGE of 0xF2 to the desktop
// window, as the platform's own Today settings do.
void RefreshTodayScreen();
