#include "shell/services/number_text.h"

#include <gtest/gtest.h>

namespace {

TEST(NumberText, ReadsByPrefix) {
    struct Case {
        const wchar_t* text;
        uint32_t number;
    };
    const Case cases[] = {
        {L"", 0},
        {L"abc", 0},
        {L"-", 0},
        {L"+-1", 0},
        {L"160", 160},
        {L"010", 8},
        {L"08", 0},
        {L"0178", 15},
        {L"0x10", 16},
        {L"0XaF", 0xAF},
        {L"0x", 0},
        {L"0xg1", 0},
        {L"00x1", 0},
        {L" \t\r\n 42 ", 42},
        {L"+7", 7},
        {L"-0x10", 0xFFFFFFF0},
        {L"-010", 0xFFFFFFF8},
        {L"- 5", 0},
        {L"12 34", 12},
        {L"12px", 12},
        {L"1.9", 1},
        {L"\xFF11", 0}, // A digit of another script.
        // What was stored reads back, shown either way.
        {L"4294967295", 0xFFFFFFFF},
        {L"-1", 0xFFFFFFFF},
        {L"-2147483648", 0x80000000},
        {L"4294967297", 1},
        {L"0x1FFFFFFFF", 0xFFFFFFFF},
    };
    for (const Case& c : cases)
        EXPECT_EQ(NumberFromText(c.text), c.number) << c.text;
}

TEST(NumberText, ReadsDecimal) {
    EXPECT_EQ(NumberFromDecimalText(L"6"), 6U);
    EXPECT_EQ(NumberFromDecimalText(L"010"), 10U);
    EXPECT_EQ(NumberFromDecimalText(L"0x10"), 0U);
    EXPECT_EQ(NumberFromDecimalText(L"1A"), 1U);
    EXPECT_EQ(NumberFromDecimalText(L" -3;"), 0xFFFFFFFDU);
    EXPECT_EQ(NumberFromDecimalText(L""), 0U);
}

} // namespace
