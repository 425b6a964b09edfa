#include <gtest/gtest.h>

#include "preview/appointment_texts.h"
#include "preview/item_layout.h"

namespace {

// Odd formats give the time in full, but for the last one.
TEST(AppointmentTexts, FollowTheDisplayFormat) {
    struct Case {
        const wchar_t* label;
        const wchar_t* subject;
        const wchar_t* second;
    };
    const Case cases[] = {
        {L"T:", L"S", L"(L)"},  {L"T:", L"S", L"(L)"},   {L"T:", L"S (L)", L""},
        {L"T:", L"S (L)", L""}, {L"T:", L"S", L""},      {L"T:", L"S", L""},
        {L"T:", L"S (L)", L""}, {L"T:", L"S (L)", L""},  {L"T:", L"S", L""},
        {L"T:", L"S", L""},     {L"", L"S", L"[T] (L)"}, {L"", L"S", L"[T]"},
    };
    for (uint32_t format = 1; format <= 12; ++format) {
        SCOPED_TRACE(format);
        const Case& c = cases[format - 1];
        const bool isShort = format % 2 == 0 && format != 12;
        EXPECT_EQ(TimeFormOf(format), isShort ? TimeForm::Short : TimeForm::Full);
        const AppointmentTexts texts = TextsOfAppointment(format, L"S", L"L", false, L"T");
        EXPECT_EQ(texts.label, c.label);
        EXPECT_EQ(texts.subject, c.subject);
        EXPECT_EQ(texts.second, c.second);
        // An all-day one without a place has nothing but its subject.
        const AppointmentTexts bare = TextsOfAppointment(format, L"S", L"", true, L"T");
        EXPECT_EQ(bare.subject, L"S");
        EXPECT_TRUE(bare.label.IsEmpty() && bare.second.IsEmpty());
    }
}

TEST(AppointmentTexts, OtherNumbersCountAsTheDefaultFormat) {
    EXPECT_EQ(DisplayFormatOf(1), 1U);
    EXPECT_EQ(DisplayFormatOf(12), 12U);
    EXPECT_EQ(DisplayFormatOf(0), 6U);
    EXPECT_EQ(DisplayFormatOf(13), 6U);
}

int Double(int units) {
    return 2 * units;
}

TEST(ItemLayout, ColumnsHoldWhatEitherKindOfItemNeeds) {
    EXPECT_EQ(LeftIconColumn({.format = 1}), 0);
    EXPECT_EQ(LeftIconColumn({.appointmentIcons = {0, 4}, .taskIcons = {1, 2}}), 26);
    EXPECT_EQ(LeftIconColumn({.appointmentIcons = {8, 0}, .indentItems = true}), 21);

    for (const uint32_t format : {6U, 7U}) { // The last one with a column of times, and the next.
        const ColumnSettings full{.format = format,
                                  .appointmentIcons = {4, 0},
                                  .indentItems = true,
                                  .leadingRects = true};
        EXPECT_EQ(TimeColumn({.format = format}, 90, Double), format == 6 ? 90 : 4);
        EXPECT_EQ(TimeColumn(full, 90, Double), format == 6 ? 90 + 42 + 24 : 4 + 42);
    }
    EXPECT_STREQ(WidestTimeText(5), L"X22:22-Multiday:");
    EXPECT_STREQ(WidestTimeText(6), L"XXMultiday:");
    EXPECT_STREQ(WidestTimeText(7), nullptr);
}

TEST(ItemLayout, PartsOfALineStandSideBySide) {
    const ColumnSettings columns{.format = 1,
                                 .appointmentIcons = {4, 0},
                                 .taskIcons = {1, 2},
                                 .indentItems = true,
                                 .leadingRects = true};
    const LineSpace space{.left = 10, .right = 480, .rightIcons = 3};
    const int column = TimeColumn(columns, 90, Double);
    const LineLayout line = LayOutAppointment(space, columns, column, 60, Double);
    EXPECT_EQ(line.leadingRect, 10 + 2 * (1 + 8));
    EXPECT_EQ(line.leftIcons, line.leadingRect + 2 * 12);
    EXPECT_EQ(line.label, line.leftIcons + 2 * 26);
    EXPECT_EQ(line.subject, line.label + 90);
    EXPECT_LE(line.subjectEnd, RightIconPlace(space.right, 2, Double));
    EXPECT_GT(line.subjectEnd, RightIconPlace(space.right, 3, Double));

    // Without the column, the subject follows the item's own label.
    ColumnSettings inlined = columns;
    inlined.format = 7;
    const LineLayout other =
        LayOutAppointment(space, inlined, TimeColumn(inlined, 90, Double), 60, Double);
    EXPECT_EQ(other.label, line.label + 2 * 2);
    EXPECT_EQ(other.subject, other.label + 60 + 2 * 4);

    const LineLayout task = LayOutTask(space, true, {0, 16}, 0, Double);
    EXPECT_EQ(task.leftIcons, 10 + 2 * 9);
    EXPECT_EQ(task.subject, task.leftIcons + 2 * 13);
    EXPECT_EQ(task.subjectEnd, line.subjectEnd);
}

TEST(ItemLayout, SubjectKeepsTwentyUnits) {
    const LineSpace narrow{.left = 0, .right = 120, .rightIcons = 8};
    const LineLayout line = LayOutTask(narrow, false, {}, 50, Double);
    EXPECT_EQ(line.subjectEnd - line.subject, 40);
}

} // namespace
