// Every page, opened and closed over and over: nothing it holds may stay behind. OV_ROUNDS in the
// environment sets how often; a test run makes do with a few.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "files/category_store.h"
#include "shell/main_window.h"
#include "tests/support/page_fixture.h"
#include "tests/support/resource_count.h"
#include "ui/list_items.h"

namespace {

struct Held {
    size_t gdiObjects = CountGdiObjects();
    size_t userHandle = HighestUserHandle();
    size_t handle = LowestFreeHandle();
};

class EnduranceTest : public RegistryFixture, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
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

    // Selects each row of each list that is shown, which may show more below or above it.
    static void SelectEachRow(HWND page) {
        for (HWND list = FindWindowEx(page, nullptr, WC_LISTVIEW, nullptr); list;
             list = FindWindowEx(page, list, WC_LISTVIEW, nullptr)) {
            for (int row = 0; IsWindowVisible(list) && row < RowCount(list); ++row) {
                SelectRow(list, row);
                PumpMessages();
            }
        }
    }

    // As a visitor does: every tab and every option, and back.
    void Visit() const {
        const std::unique_ptr<SettingsPage> page(CreatePage(window_, GetParam()));
        ASSERT_TRUE(page && page->hwnd);
        for (int tab = 0; tab < page->GetTabCount(); ++tab) {
            SendMessage(page->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
            PumpMessages();
            SelectEachRow(page->hwnd);
        }
        ClosePage(*page);
        PumpMessages();
    }

    HWND window_ = nullptr;
};

TEST_P(EnduranceTest, LeavesNothingBehind) {
    const char* wanted = std::getenv("OV_ROUNDS");
    const int rounds = wanted != nullptr ? std::atoi(wanted) : 20;
    for (int round = 0; round < 3; ++round)
        Visit(); // What is made once stays.
    const Held before;
    for (int round = 0; round < rounds; ++round)
        Visit();
    const Held after;
    // What other programs of the device do now and then is less than a leak at each visit.
    const auto leak = static_cast<size_t>(rounds);
    EXPECT_LT(after.gdiObjects, before.gdiObjects + leak);
    EXPECT_LT(after.userHandle, before.userHandle + leak);
    EXPECT_LT(after.handle, before.handle + leak);
}

INSTANTIATE_TEST_SUITE_P(Pages, EnduranceTest, testing::Range(0, kPageCount));

} // namespace
