#include "shell/services/wide_string.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>

namespace {

std::wstring Letters(size_t count) {
    return std::wstring(count, L'x');
}

TEST(WideString, CapacityGrowsByTheRule) {
    WideString text;
    EXPECT_EQ(text.Capacity(), 64U);
    EXPECT_STREQ(text.CStr(), L"");

    // Each step with the length it leads to; four characters are always kept in reserve.
    struct Step {
        bool append;
        size_t count;
        size_t length;
        size_t capacity;
    };
    const Step steps[] = {
        {false, 60, 60, 64}, {true, 0, 60, 64},      {true, 1, 61, 125},    {true, 60, 121, 125},
        {true, 1, 122, 186}, {false, 182, 182, 186}, {false, 3, 3, 186},    {true, 179, 182, 186},
        {true, 1, 183, 247}, {false, 244, 244, 308}, {true, 500, 744, 808}, {false, 0, 0, 808},
    };
    for (const Step& step : steps) {
        const std::wstring letters = Letters(step.count);
        if (step.append) {
            text.Append(letters.c_str());
        } else {
            text.Assign(letters.c_str());
        }
        EXPECT_EQ(text.Length(), step.length);
        EXPECT_EQ(text.Capacity(), step.capacity) << "at length " << step.length;
        EXPECT_EQ(text.CStr(), Letters(step.length));
    }
    text.Free();
    EXPECT_EQ(text.Capacity(), 64U);
    EXPECT_STREQ(text.CStr(), L"");
}

TEST(WideString, TakesCountedCharactersUpToTheFirstNul) {
    const wchar_t characters[] = {L'a', L'b', L'\0', L'c'};
    WideString text(L"before");
    text.Assign(characters, 4);
    EXPECT_STREQ(text.CStr(), L"ab");
    EXPECT_EQ(text.Length(), 2U);
    text.Assign(characters, 1);
    EXPECT_STREQ(text.CStr(), L"a");
    text.Assign(nullptr, 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(WideString, CopiesAndMoves) {
    const WideString original(L"one");
    WideString copy(original);
    copy.Append(L" two");
    EXPECT_EQ(original, L"one");
    EXPECT_EQ(copy, L"one two");
    EXPECT_NE(copy, original);

    WideString taker(std::move(copy));
    EXPECT_EQ(taker, L"one two");
    copy = original; // What was moved from is usable again.
    copy.Append(L"!");
    EXPECT_EQ(copy, L"one!");
    taker = std::move(copy);
    WideString& same = taker;
    taker = std::move(same);
    EXPECT_EQ(taker, L"one!");
    EXPECT_FALSE(taker == WideString(L"one! "));
}

// Any sequence of operations against the standard string, with blocks changing below.
TEST(WideString, BehavesAsAString) {
    std::mt19937 random(7);
    WideString ours;
    std::wstring reference;
    for (int step = 0; step < 4000; ++step) {
        const std::wstring piece = Letters(random() % 90) + static_cast<wchar_t>(L'a' + step % 26);
        const size_t from = random() % (reference.size() + 1);
        switch (random() % 6) {
        case 0:
            ours.Assign(piece.c_str());
            reference = piece;
            break;
        case 1:
            ours.Assign(ours.CStr() + from);
            reference = reference.substr(from);
            break;
        case 2:
            ours.Append(ours.CStr() + from);
            reference += reference.substr(from);
            break;
        default:
            ours.Append(piece.c_str());
            reference += piece;
            break;
        }
        if (reference.size() > 20000) {
            ours.Free();
            reference.clear();
        }
        ASSERT_EQ(ours.CStr(), reference);
        ASSERT_EQ(ours.Length(), reference.size());
        ASSERT_GE(ours.Capacity(), ours.Length() + 4);
    }
}

} // namespace
