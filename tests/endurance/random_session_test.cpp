// The whole program, driven by random input for a while: it neither ends nor hangs, it leaves
// nothing behind, and what it saves it loads again. OV_SEED and OV_STEPS in the environment choose
// another session and a longer one.

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <thread>

#include "files/category_store.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "tests/endurance/environment.h"
#include "tests/endurance/random_user.h"
#include "tests/support/resource_count.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kStepsOfRun = 400; // From the program's start to its end.
constexpr DWORD kHang = 30'000;  // Milliseconds.
constexpr UINT kFailed = 3;

// Ends the process when the user's steps come to a halt.
class Watchdog {
  public:
    explicit Watchdog(const RandomUser& user) : thread_([this, &user] { Watch(user); }) {}
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() {
        SetEvent(done_);
        thread_.join();
        CloseHandle(done_);
    }

  private:
    void Watch(const RandomUser& user) const {
        int steps = -1;
        while (WaitForSingleObject(done_, kHang) == WAIT_TIMEOUT)
            if (std::exchange(steps, user.StepsMade()) == steps)
                TerminateProcess(GetCurrentProcess(), kFailed);
    }

    HANDLE done_ = CreateEvent(nullptr, TRUE, FALSE, nullptr);
    std::thread thread_;
};

void RunMessageLoop(HWND window) {
    MSG message{};
    while (GetMessage(&message, nullptr, 0, 0)) {
        if (TranslateNavigationKey(ActiveRoot(window), message)) continue;
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

// What the platform makes once and keeps, such as what it drew with, comes late in a random
// session.
constexpr size_t kGdiObjectsToSettle = 150;
constexpr size_t kHandlesToSettle = 64;
constexpr size_t kHeapToSettle = 32 * 1024;

class RandomSession : public RegistryFixture {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        AddTodayPlugins();
        application.instance = GetModuleHandle(nullptr);
        // The toolchain's library keeps a reserve from each loading of a DLL that it is part of.
        imaging_.Reset(LoadLibrary(L"imaging.dll"));
    }
    void TearDown() override {
        imaging_.Reset();
        RegistryFixture::TearDown();
    }

    // The program from its start to its end.
    static void RunProgram(RandomUser& user, int steps) {
        HWND window = CreateMainWindow(application.instance);
        ASSERT_NE(window, nullptr);
        MakeRoomForMenuBar(window);
        user.Begin(window, steps);
        RunMessageLoop(window);
        UnregisterClass(kMainWindowClass, application.instance);
    }

    // After an ok.
    static void CheckSaved() {
        ExpectStoredAsHeld();
        CategoryStore categories;
        categories.LoadCategoryStore();
        for (const auto& category : categoryStore.All()) {
            const CategoryEntry* loaded = categories.FindCategory(category->name.CStr());
            ASSERT_NE(loaded, nullptr);
            EXPECT_EQ(loaded->filters, category->filters);
            EXPECT_EQ(loaded->colour, category->colour);
        }
        for (uint32_t index = 1; index <= 32; ++index) {
            EXPECT_EQ(categories.FindFilter(index)->visible,
                      categoryStore.FindFilter(index)->visible);
        }
    }

    UniqueModule imaging_;
};

TEST_F(RandomSession, NeitherFailsNorLeavesAnythingBehind) {
    RandomUser user(static_cast<uint32_t>(NumberFrom("OV_SEED", 1)));
    const Watchdog watchdog(user);
    const int steps = NumberFrom("OV_STEPS", 1200);
    std::optional<HeldResources> before;
    while (user.StepsMade() < steps && !HasFailure()) {
        RunProgram(user, std::min(kStepsOfRun, steps - user.StepsMade()));
        if (!user.IsActing()) CheckSaved();
        const HeldResources after;
        if (!before) before.emplace(after);
        EXPECT_LE(after.gdiObjects, before->gdiObjects + kGdiObjectsToSettle);
        EXPECT_LE(after.userHandle, before->userHandle + kHandlesToSettle);
        EXPECT_LE(after.handle, before->handle + kHandlesToSettle);
        EXPECT_LE(after.heapBytes, before->heapBytes + kHeapToSettle);
    }
}

} // namespace
