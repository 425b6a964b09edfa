#include "shell/services/scaling.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(Scaling, RoundsToNearestWithHalvesAwayFromZero) {
    struct Case {
        int value;
        int density;
        int pixels;
    };
    for (const Case& c : {Case{16, 96, 16}, Case{160, 192, 320}, Case{1, 144, 2}, Case{-1, 144, -2},
                          Case{1, 143, 1}, Case{-1, 143, -1}}) {
        EXPECT_EQ(ScaleBy({.density = c.density}, c.value), c.pixels)
            << c.value << " at " << c.density << " dpi";
    }
}

TEST(Scaling, DoubleSizeAndThreshold) {
    EXPECT_EQ(ScaleBy({.doubleSize = true, .density = 131}, -3, true), -6);
    EXPECT_EQ(ScaleBy({.density = 135}, 32, true), 32);
    EXPECT_EQ(ScaleBy({.density = 136}, 32, true), 45);
}

// Measures come from the registry too: what no int holds wraps.
TEST(Scaling, AnyMeasureIsSafe) {
    EXPECT_EQ(ScaleBy({.density = 96}, INT_MIN), INT_MIN);
    EXPECT_EQ(ScaleBy({.density = 192}, INT_MAX), -2);
    EXPECT_EQ(ScaleBy({.doubleSize = true}, INT_MAX), -2);
    // 2^31 (2^31 - 1) / 96, rounded, as 32 bits.
    EXPECT_EQ(ScaleBy({.density = INT_MAX}, INT_MIN), 1454025387);
}

} // namespace
