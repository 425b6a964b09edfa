// The whole program, driven by random input for a while: it neither ends nor hangs, it leaves
// nothing behind, and what it saves it loads again. OV_SEED and OV_STEPS in the environment choose
// another session and a longer one.

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <optional>
#include <string>
#include <thread>

#include "files/category_store.h"
#include "settings/settings_store.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "tests/endurance/environment.h"
#include "tests/endurance/random_user.h"
#include "tests/settings/every_setting.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/resource_count.h"
#include "ui/key_navigation.h"

namespace {
constexpr int kStepsOfRun = 400; // From the program's start to its end.
constexpr int kHangSeconds = 30;
constexpr UINT kFailed = 3;

const RandomUser* watched;

void Tell(const char* what) {
    std::printf("%s; %s", what, watched->Story().c_str());
    std::fflush(stdout);
}

// What led there; the end itself is the system's.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    if (code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_ILLEGAL_INSTRUCTION) Tell("failed");
    return EXCEPTION_CONTINUE_SEARCH;
}

// Ends the process, with the story, when the user's steps come to a halt.
class Watchdog {
  public:
    explicit Watchdog(const RandomUser& user) : thread_([this, &user] { Watch(user); }) {}
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() {
        done_ = true;
        thread_.join();
    }

  private:
    void Watch(const RandomUser& user) {
        int steps = -1;
        for (int quiet = 0; !done_; ++quiet) {
            Sleep(100);
            if (std::exchange(steps, user.StepsMade()) != steps) quiet = 0;
            if (quiet <= kHangSeconds * 10) continue;
            Tell("hangs");
            TerminateProcess(GetCurrentProcess(), kFailed);
        }
    }

    std::atomic<bool> done_ = false;
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

    // After an ok: what is loaded again is what the program had.
    static void CheckSaved() {
        SettingsStore again;
        HMODULE library = nullptr;
        again.Load(library);
        FreeLibrary(library);
        ForEachRow([&](const SettingTable&, const SettingRow& row) {
            if (row.saveRank == 0 || IsChosenAtLoad(row)) return;
            EXPECT_EQ(ShownIn(again, row), ShownIn(settingsStore, row)) << NamesOf(row)[0];
        });
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

    // Whatever is in the registry, a save that follows a load and a save changes nothing.
    static void CheckRepairsAreDone() {
        RegistryTree saved[2];
        for (RegistryTree& tree : saved) {
            SettingsStore store;
            HMODULE library = nullptr;
            store.Load(library);
            store.Save();
            FreeLibrary(library);
            tree = GetTree(HKEY_CURRENT_USER);
        }
        EXPECT_EQ(saved[0], saved[1]);
    }

    UniqueModule imaging_;
};

TEST_F(RandomSession, NeitherFailsNorLeavesAnythingBehind) {
    RandomUser user(static_cast<uint32_t>(NumberFrom("OV_SEED", 1)));
    watched = &user;
    void* handler = AddVectoredExceptionHandler(1, OnException);
    const Watchdog watchdog(user);
    const int steps = NumberFrom("OV_STEPS", 1200);
    std::optional<HeldResources> before;
    while (user.StepsMade() < steps && !HasFailure()) {
        RunProgram(user, std::min(kStepsOfRun, steps - user.StepsMade()));
        if (!user.IsActing()) CheckSaved();
        CheckRepairsAreDone();
        const HeldResources after;
        if (!before) before.emplace(after);
        EXPECT_LE(after.gdiObjects, before->gdiObjects + kGdiObjectsToSettle);
        EXPECT_LE(after.userHandle, before->userHandle + kHandlesToSettle);
        EXPECT_LE(after.handle, before->handle + kHandlesToSettle);
        EXPECT_LE(after.heapBytes, before->heapBytes + kHeapToSettle);
    }
    RemoveVectoredExceptionHandler(handler);
    if (HasFailure()) std::printf("%s", user.Story().c_str());
}

} // namespace
