#include "pages/calendar_samples.h"

#include <span>

#include "settings/settings_store.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"

namespace {
constexpr int kTextLimit = 128; // Characters.

// One way to write a date: a picture, or where that is null a format of the locale.
struct DatePicture {
    const wchar_t* picture;
    DWORD flags = 0; // With a picture there may be none.
};

constexpr DatePicture kLocaleShort{nullptr, DATE_SHORTDATE};
constexpr DatePicture kLocaleLong{nullptr, DATE_LONGDATE};

void AddDates(HWND combo, std::span<const DatePicture> pictures) {
    SYSTEMTIME today;
    GetLocalTime(&today);
    for (const DatePicture& date : pictures) {
        wchar_t text[kTextLimit] = L"";
        GetDateFormat(LOCALE_USER_DEFAULT, date.flags, &today, date.picture, text, kTextLimit);
        AddEntry(combo, text);
    }
}
} // namespace

void AddDueDates(HWND combo) {
    constexpr DatePicture kPictures[] = {
        kLocaleShort, {L"M'/'d'/'yy"}, {L"d'/'M'/'yy"}, {L"M'/'d"}, {L"d'/'M"}};
    AddDates(combo, kPictures);
}

void AddDayTitleDates(HWND combo) {
    constexpr DatePicture kPictures[] = {
        {L"dddd',' MMM dd yyyy"}, {L"dddd',' MMM dd"}, {L"ddd',' MMM dd yyyy"},
        {L"ddd',' MMM dd"},       kLocaleShort,        kLocaleLong,
        {L"ddd',' dd MMM yyyy"}};
    AddDates(combo, kPictures);
}

void AddMonthDates(HWND combo) {
    constexpr DatePicture kPictures[] = {{L"MM'/'dd"}, {L"dd'/'MM"}};
    AddDates(combo, kPictures);
}

void AddWeekDays(HWND combo) {
    // The platform's week begins with Monday.
    constexpr LCTYPE kNames[] = {LOCALE_SDAYNAME7, LOCALE_SDAYNAME1, LOCALE_SDAYNAME2,
                                 LOCALE_SDAYNAME3, LOCALE_SDAYNAME4, LOCALE_SDAYNAME5,
                                 LOCALE_SDAYNAME6};
    for (const LCTYPE name : kNames) {
        wchar_t text[kTextLimit] = L"";
        GetLocaleInfo(LOCALE_USER_DEFAULT, name, text, kTextLimit);
        AddEntry(combo, text);
    }
}

void AddStartHours(HWND combo) {
    constexpr WORD kLast = 18;
    SYSTEMTIME time;
    GetLocalTime(&time);
    time.wMinute = time.wSecond = time.wMilliseconds = 0;
    for (time.wHour = 0; time.wHour <= kLast; ++time.wHour) {
        wchar_t text[kTextLimit] = L"";
        GetTimeFormat(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, text, kTextLimit);
        AddEntry(combo, text);
    }
}

void AddLengths(HWND combo) {
    constexpr uint32_t kShortest = 6;
    constexpr uint32_t kLongest = 24;
    for (uint32_t hours = kShortest; hours <= kLongest; ++hours)
        AddNumberEntry(combo, hours);
}

void AddDayEnds(HWND combo) {
    constexpr uint32_t kLast = 8;
    for (uint32_t hour = 0; hour <= kLast; ++hour)
        AddNumberEntry(combo, hour, settingsStore.twelveHourClock ? L"%u:00 AM" : L"%u:00");
}

void AddFactors(HWND combo) {
    for (const uint32_t factor : {1U, 2U})
        AddNumberEntry(combo, factor);
}

void AddIconSizes(HWND combo) {
    constexpr int kSmallest = 6;
    constexpr int kLargest = 14;
    for (int units = kSmallest; units <= kLargest; ++units)
        AddNumberEntry(combo, static_cast<uint32_t>(Scale(units)));
}
