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
    const Case cases[] = {
        {16, 96, 16},  {16, 192, 32}, {-2, 131, -3},   {2, 131, 3}, {1, 144, 2},
        {-1, 144, -2}, {1, 143, 1},   {-1, 143, -1},   {3, 128, 4}, {0, 131, 0},
        {5, 128, 7},   {-5, 128, -7}, {160, 192, 320}, {3, 112, 4},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ScaleBy({.density = c.density}, c.value), c.pixels)
            << c.value << " at " << c.density << " dpi";
    }
}

TEST(Scaling, DoubleSizeAndThreshold) {
    EXPECT_EQ(ScaleBy({.doubleSize = true, .density = 131}, 16), 32);
    EXPECT_EQ(ScaleBy({.doubleSize = true, .density = 131}, -3, true), -6);
    EXPECT_EQ(ScaleBy({.density = 131}, 32, true), 32);
    EXPECT_EQ(ScaleBy({.density = 135}, 32, true), 32);
    EXPECT_EQ(ScaleBy({.density = 136}, 32, true), 45);
    EXPECT_EQ(ScaleBy({.density = 192}, 32, true), 64);
}

// Measures come from the registry too: what no int holds wraps.
TEST(Scaling, AnyMeasureIsSafe) {
    for (const int value : {INT_MIN, INT_MIN + 1, -1, INT_MAX}) {
        EXPECT_EQ(ScaleBy({.density = 96}, value), value);
        EXPECT_EQ(ScaleBy({.density = 0}, value), 0);
    }
    EXPECT_EQ(ScaleBy({.density = 192}, INT_MAX), -2);
    EXPECT_EQ(ScaleBy({.density = 192}, INT_MIN), 0);
    EXPECT_EQ(ScaleBy({.doubleSize = true}, INT_MAX), -2);
    // 2^31 (2^31 - 1) / 96, rounded, as 32 bits.
    EXPECT_EQ(ScaleBy({.density = INT_MAX}, INT_MIN), 1454025387);
}

} // namespace
