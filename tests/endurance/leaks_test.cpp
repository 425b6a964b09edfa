// Every page and every dialog, opened and closed over and over: nothing it holds may stay behind.
// OV_ROUNDS in the environment sets how often; a test run makes do with a few.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "shell/main_window.h"
#include "shell/services/application.h"
#include "tests/endurance/environment.h"
#include "tests/support/every_window.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/resource_count.h"

namespace {

constexpr int kDialogCount = static_cast<int>(std::size(kDialogs));

// What the memory of a process may grow by, however often something is done: the platform takes
// megabytes in advance, early or late. The blocks of the heaps are counted to the byte besides.
constexpr size_t kMemoryToSettle = 16 * 1024 * 1024;

// The pages by their numbers, the dialogs behind them.
class LeaksTest : public RegistryFixture, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        AddTodayPlugins();
        application.instance = GetModuleHandle(nullptr);
        window_ = CreateMainWindow(application.instance);
        ASSERT_NE(window_, nullptr);
    }
    void TearDown() override {
        DestroyWindow(window_);
        PumpMessages();
        UnregisterClass(kMainWindowClass, application.instance);
        RegistryFixture::TearDown();
    }

    // Of many visits to a page one in ten looks at everything.
    static bool LooksEverywhere(int round) { return round < 100 || round % 10 == 0; }

    // Dialogs are confirmed and cancelled in turns.
    void Visit(int round) const {
        if (GetParam() < kPageCount)
            VisitPage(
                window_, GetParam(), [](HWND) {}, LooksEverywhere(round));
        else
            VisitDialog(window_, kDialogs[GetParam() - kPageCount], round % 2 ? IDOK : IDCANCEL,
                        [](HWND window) { LookAtEachRow(window, [](HWND) {}); });
    }

    HWND window_ = nullptr;
};

TEST_P(LeaksTest, LeavesNothingBehind) {
    const int rounds = NumberFrom("OV_ROUNDS", 6);
    for (int round = 0; round < 3; ++round)
        Visit(round); // What is made once stays.
    const HeldResources before;
    // What other programs of the device do now and then is less than a leak at each full visit.
    size_t leak = 0;
    for (int round = 0; round < rounds; ++round) {
        Visit(round);
        leak += LooksEverywhere(round);
    }
    const HeldResources after;
    EXPECT_LT(after.gdiObjects, before.gdiObjects + leak);
    EXPECT_LT(after.userHandle, before.userHandle + leak);
    EXPECT_LT(after.handle, before.handle + leak);
    EXPECT_LT(after.heapBytes, before.heapBytes + leak);
    EXPECT_LT(after.memory, before.memory + kMemoryToSettle);
}

std::string NameOf(const testing::TestParamInfo<int>& info) {
    return info.param < kPageCount ? "Page" + std::to_string(info.param)
                                   : kDialogs[info.param - kPageCount].name;
}

INSTANTIATE_TEST_SUITE_P(Every, LeaksTest, testing::Range(0, kPageCount + kDialogCount), NameOf);

} // namespace
