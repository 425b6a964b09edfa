// Stands in for the dashboard: waits for the message that settings changed, and says so.
// Usage: settings_listener SECONDS. Exit code 0 when the message came, 1 when the time ran out.
#include <cstdio>
#include <cstdlib>

#include "tools/drivers/program_driver.h"

int main(int count, char** arguments) {
    const DWORD seconds = count > 1 ? std::strtoul(arguments[1], nullptr, 10) : 60;
    DashboardListener dashboard;
    const DWORD start = GetTickCount();
    std::printf("ready\n");
    std::fflush(stdout);
    while (dashboard.timesTold == 0 && GetTickCount() - start < seconds * 1000) {
        Sleep(50);
        dashboard.Listen();
    }
    if (dashboard.timesTold == 0) return 1;
    std::printf("TeskelOrvaneSettingsChanged wParam=0 lParam=0\n");
    return 0;
}
