#include "preview/time_text.h"

#include <gtest/gtest.h>

namespace {

// Day 10 is shown; times are hours from its midnight.
WideString Text(double start, double end, uint32_t humanHours, TimeForm form) {
    constexpr int kDay = 10;
    return TimeText({.start = kDay + start / 24,
                     .end = kDay + end / 24,
                     .day = kDay,
                     .humanHours = humanHours,
                     .startText = L"S",
                     .endText = L"E"},
                    form);
}

TEST(TimeText, TellsWhatLiesOnTheDay) {
    struct Case {
        double start;
        double end;
        uint32_t humanHours;
        const wchar_t* full;
        const wchar_t* shortText;
    };
    const Case cases[] = {
        {12, 15, 0, L"S-E", L"S"},
        {0, 0, 0, L"S-E", L"S"},
        // The first of two days.
        {22, 25, 2, L"S-E", L"S"},
        {22, 26, 2, L"S-MultiDay", L"S"}, // The night ends with that minute.
        {22, 26 - 1.0 / 60, 2, L"S-E", L"S"},
        {22, 24, 0, L"S-E", L"S"}, // Midnight.
        {22, 72, 0, L"S-E", L"S"}, // A later one.
        // Whole minutes count.
        {22, 26 - 1e-9, 2, L"S-MultiDay", L"S"},
        // The last day, which a midnight begins.
        {-2, 1, 0, L"MultiDay-E", L">E"},
        {-1.0 / 60, 23, 0, L"MultiDay-E", L">E"},
        // A day between.
        {-2, 24, 8, L"MultiDay", L"MultiDay"},
    };
    for (const Case& c : cases) {
        EXPECT_STREQ(Text(c.start, c.end, c.humanHours, TimeForm::Full).CStr(), c.full)
            << c.start << " to " << c.end << ", evenings until " << c.humanHours;
        EXPECT_STREQ(Text(c.start, c.end, c.humanHours, TimeForm::Short).CStr(), c.shortText)
            << c.start << " to " << c.end;
    }
}

} // namespace
