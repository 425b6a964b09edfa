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
    // What is appended and the capacity that follows: four characters are always kept in reserve.
    const std::pair<size_t, size_t> steps[] = {{60, 64}, {0, 64}, {1, 125}, {60, 125}, {1, 186}};
    for (const auto& [count, capacity] : steps) {
        text.Append(Letters(count).c_str());
        EXPECT_EQ(text.Capacity(), capacity) << "at length " << text.Length();
    }
    text.Assign(L"");
    EXPECT_EQ(text.Capacity(), 186U);
    text.Free();
    EXPECT_EQ(text.Capacity(), 64U);
    EXPECT_STREQ(text.CStr(), L"");
}

TEST(WideString, TakesCountedCharactersUpToTheFirstNul) {
    const wchar_t characters[] = {L'a', L'b', L'\0', L'c'};
    WideString text(L"before");
    text.Assign(characters, 4);
    EXPECT_EQ(text.View(), L"ab");
    text.Assign(characters, 1);
    EXPECT_EQ(text.View(), L"a");
    text.Assign(nullptr, 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(WideString, CopiesAndMoves) {
    const WideString original(L"one");
    WideString copy(original);
    copy.Append(L" two");
    EXPECT_EQ(original, L"one");
    WideString taker(std::move(copy));
    EXPECT_EQ(taker, L"one two");
    copy = original; // What was moved from is usable again.
    copy.Append(L"!");
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
