#pragma once

#include <cstdint>

#include "preview/time_text.h"
#include "shell/services/wide_string.h"

// How an appointment's line is composed: one of twelve display formats.

// The format of a setting's value: 1 to 12; any other value counts as the default.
[[nodiscard]] constexpr uint32_t DisplayFormatOf(uint32_t value) {
    constexpr uint32_t kFormats = 12;
    constexpr uint32_t kDefault = 6;
    return value >= 1 && value <= kFormats ? value : kDefault;
}

// Whether times stand in a column of their own, before all subjects.
[[nodiscard]] constexpr bool HasTimeColumn(uint32_t format) {
    return format < 7;
}

// Whether the second text has a line of its own.
[[nodiscard]] constexpr bool HasSecondLine(uint32_t format) {
    return format > 10;
}

[[nodiscard]] constexpr TimeForm TimeFormOf(uint32_t format) {
    return format % 2 == 0 && format <= 10 ? TimeForm::Short : TimeForm::Full;
}

struct AppointmentTexts {
    WideString label; // Before the subject.
    WideString subject;
    WideString second; // Behind the subject, or below it.
};

// An all-day appointment has no time: it shows none, whatever `timeText` is.
[[nodiscard]] AppointmentTexts TextsOfAppointment(uint32_t format, const WideString& subject,
                                                  const WideString& location, bool allDay,
                                                  const WideString& timeText);
