#include <gtest/gtest.h>

#include "preview/appointment_texts.h"
#include "preview/item_layout.h"

namespace {

TEST(AppointmentTexts, FollowTheDisplayFormat) {
    struct Case {
        uint32_t format;
        TimeForm form;
        const wchar_t* label;
        const wchar_t* subject;
        const wchar_t* second;
        const wchar_t* secondWithoutLocation;
    };
    const Case cases[] = {
        {1, TimeForm::Full, L"T:", L"S", L"(L)", L""},
        {2, TimeForm::Short, L"T:", L"S", L"(L)", L""},
        {3, TimeForm::Full, L"T:", L"S (L)", L"", L""},
        {4, TimeForm::Short, L"T:", L"S (L)", L"", L""},
        {5, TimeForm::Full, L"T:", L"S", L"", L""},
        {6, TimeForm::Short, L"T:", L"S", L"", L""},
        {7, TimeForm::Full, L"T:", L"S (L)", L"", L""},
        {8, TimeForm::Short, L"T:", L"S (L)", L"", L""},
        {9, TimeForm::Full, L"T:", L"S", L"", L""},
        {10, TimeForm::Short, L"T:", L"S", L"", L""},
        {11, TimeForm::Full, L"", L"S", L"[T] (L)", L"[T]"},
        {12, TimeForm::Full, L"", L"S", L"[T]", L"[T]"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.format);
        const AppointmentTexts texts = TextsOfAppointment(c.format, L"S", L"L", false, L"T");
        EXPECT_EQ(TimeFormOf(c.format), c.form);
        EXPECT_STREQ(texts.label.CStr(), c.label);
        EXPECT_STREQ(texts.subject.CStr(), c.subject);
        EXPECT_STREQ(texts.second.CStr(), c.second);
        const AppointmentTexts bare = TextsOfAppointment(c.format, L"S", L"", false, L"T");
        EXPECT_STREQ(bare.subject.CStr(), L"S");
        EXPECT_STREQ(bare.second.CStr(), c.secondWithoutLocation);
        const AppointmentTexts allDay = TextsOfAppointment(c.format, L"S", L"", true, L"T");
        EXPECT_STREQ(allDay.label.CStr(), L"");
        EXPECT_STREQ(allDay.second.CStr(), L"");
    }
}

TEST(AppointmentTexts, OtherNumbersCountAsTheDefaultFormat) {
    EXPECT_EQ(DisplayFormatOf(1), 1U);
    EXPECT_EQ(DisplayFormatOf(12), 12U);
    for (const uint32_t number : {0U, 13U, 0xFFFFFFFFU})
        EXPECT_EQ(DisplayFormatOf(number), 6U);
}

int Double(int units) {
    return 2 * units;
}

TEST(ItemLayout, ColumnsHoldWhatEitherKindOfItemNeeds) {
    EXPECT_EQ(LeftIconColumn({.format = 1}), 0);
    EXPECT_EQ(LeftIconColumn({.appointmentIcons = {0, 4}, .taskIcons = {1, 2}}), 26);
    EXPECT_EQ(LeftIconColumn({.appointmentIcons = {8, 0}, .indentItems = true}), 21);

    for (uint32_t format = 1; format <= 12; ++format) {
        SCOPED_TRACE(format);
        const bool hasTimes = format <= 6;
        const ColumnSettings plain{.format = format};
        const ColumnSettings full{.format = format,
                                  .appointmentIcons = {4, 0},
                                  .indentItems = true,
                                  .leadingRects = true};
        EXPECT_EQ(TimeColumn(plain, 90, Double), hasTimes ? 90 : 4);
        EXPECT_EQ(TimeColumn(full, 90, Double), hasTimes ? 90 + 42 + 24 : 4 + 42);
        const wchar_t* widest = format % 2 == 1 ? L"X22:22-Multiday:" : L"XXMultiday:";
        EXPECT_STREQ(WidestTimeText(format), hasTimes ? widest : nullptr);
    }
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
    EXPECT_EQ(LayOutAppointment(space, inlined, TimeColumn(inlined, 90, Double), 0, Double).subject,
              other.label);

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
