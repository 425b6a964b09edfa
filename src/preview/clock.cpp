#include "preview/clock.h"

#include <windows.h>

#include <cstdint>
#include <iterator>

WideString TimeOfDayText(VariantTime time, const wchar_t* picture) {
    const int64_t minute = MinuteOf(time) % kMinutesPerDay;
    // Any date will do: the platform refuses a time without one.
    SYSTEMTIME moment{};
    moment.wYear = 2000;
    moment.wMonth = 1;
    moment.wDay = 1;
    moment.wHour = static_cast<WORD>(minute / 60);
    moment.wMinute = static_cast<WORD>(minute % 60);
    wchar_t text[32] = {};
    GetTimeFormat(LOCALE_SYSTEM_DEFAULT, 0, &moment, picture, text,
                  static_cast<int>(std::size(text)));
    return text;
}

int Today() {
    constexpr uint64_t kTicksPerDay = 864'000'000'000; // Of 100 nanoseconds.
    constexpr int kDaysBefore = 109'205;               // From 1 January 1601 to 30 December 1899.
    SYSTEMTIME now{};
    FILETIME time{};
    GetLocalTime(&now);
    SystemTimeToFileTime(&now, &time);
    const uint64_t ticks = (uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
    return static_cast<int>(ticks / kTicksPerDay) - kDaysBefore;
}
