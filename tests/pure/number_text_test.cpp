#include "shell/services/number_text.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

void ExpectRead(std::initializer_list<const wchar_t*> texts, uint32_t number) {
    for (const wchar_t* text : texts)
        EXPECT_EQ(NumberFromText(text), number) << text;
}

TEST(NumberText, ReadsByPrefix) {
    ExpectRead({L"", L"abc", L"-", L"+-1", L"08", L"0x", L"0xg1", L"00x1", L"- 5"}, 0);
    ExpectRead({L"\xFF11"}, 0); // A digit of another script.
    ExpectRead({L"160", L"0xa0", L"0240", L" \t\r\n 160 ", L"+160", L"160px", L"160 2", L"160.9"},
               160);
    ExpectRead({L"0XaF"}, 0xAF);
    ExpectRead({L"0178"}, 15);
    ExpectRead({L"-0x10", L"-020", L"-16"}, 0xFFFFFFF0);
    // What was stored reads back, shown either way.
    ExpectRead({L"4294967295", L"-1", L"0x1FFFFFFFF"}, 0xFFFFFFFF);
    ExpectRead({L"-2147483648"}, 0x80000000);
}

TEST(NumberText, ReadsDecimal) {
    EXPECT_EQ(NumberFromDecimalText(L"010"), 10U);
    EXPECT_EQ(NumberFromDecimalText(L"1A"), 1U);
    EXPECT_EQ(NumberFromDecimalText(L" -3;"), 0xFFFFFFFDU);
    EXPECT_EQ(NumberFromDecimalText(L""), 0U);
}

} // namespace
