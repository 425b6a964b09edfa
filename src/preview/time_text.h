#pragma once

#include <cstdint>

#include "shell/services/wide_string.h"

// A date-time as the platform's calendar keeps it: days since 30 December 1899; the fraction is the
// time of day.
using VariantTime = double;

inline constexpr int64_t kMinutesPerDay = int64_t{24} * 60;

// The nearest whole minute since 30 December 1899, in which all comparisons are made: fractions of
// days are not exact.
[[nodiscard]] int64_t MinuteOf(VariantTime time);

// What a time text is made of.
struct AppointmentTime {
    VariantTime start = 0;
    VariantTime end = 0;
    int day = 0;             // The day on which the appointment is being shown.
    uint32_t humanHours = 0; // The hour of the morning until which an evening lasts.
    const wchar_t* startText = L"";
    const wchar_t* endText = L"";
};

// Full: from start to end, as far as both lie on the day. Short: the one of them that lies on the
// day.
enum class TimeForm { Full, Short };
[[nodiscard]] WideString TimeText(const AppointmentTime& time, TimeForm form);

// The platform's picture of a time of day, without seconds.
[[nodiscard]] const wchar_t* TimePicture(bool twelveHourClock, bool twoDigits);
