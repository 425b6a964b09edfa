// A settings page as the program opens it: over a main window, from the store, with a registry of
// the test's own.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "files/icon_set.h"
#include "pages/settings_page.h"
#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"

class PageFixture : public RegistryFixture {
  protected:
    // The page of a row of the page list, on a main window as a screen of 240 by 320 units has it.
    explicit PageFixture(int row) : row_(row) {}

    void SetUp() override {
        RegistryFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        SetVgaMode(false); // As at start, by the screen's density.
        owner_ = CreateWindowEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, Scale(26), Scale(240),
                                Scale(268), nullptr, nullptr, application.instance, nullptr);
    }

    void TearDown() override {
        DestroyWindow(owner_);
        iconSet.Release();
        if (application.displayLibrary) FreeLibrary(application.displayLibrary);
        application.displayLibrary = nullptr;
        if (application.languageLibrary) FreeLibrary(application.languageLibrary);
        application.languageLibrary = nullptr;
        RegistryFixture::TearDown();
    }

    // The installed display library and the icons, as at start.
    static void LoadArt() {
        application.displayLibrary =
            LoadLibrary(Scale(1) > 1 ? L"\\Program Files\\Teskel\\Orvane\\HighDpiRes.dll"
                                     : L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll");
        ASSERT_TRUE(application.displayLibrary);
        iconSet.LoadIconSet(WideString());
    }

    // Loads the store as at start, opens the page, and gives its window.
    HWND Open() {
        settingsStore.Load(application.languageLibrary);
        page_.reset(CreatePage(owner_, row_));
        EXPECT_TRUE(page_ && page_->hwnd);
        return page_->hwnd;
    }

    void Close() {
        ClosePage(*page_);
        page_.reset();
    }

    void ShowTab(int tab) const {
        SendMessage(page_->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    }

    // Taps a button and works what it opens.
    void TapAndWork(int button, const wchar_t* dialog, std::vector<DialogSteps::Step> steps) const {
        const DialogSteps work(dialog, std::move(steps));
        Tap(page_->hwnd, button);
    }

    bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(page_->hwnd, id)); }

    // A text of the language library; every one that a test asks for must be there.
    static std::wstring Text(UINT id) {
        wchar_t text[512] = L"";
        EXPECT_GT(LoadString(application.languageLibrary, id, text, 512), 0) << id;
        return text;
    }

    HWND owner_ = nullptr;
    std::unique_ptr<SettingsPage> page_;

  private:
    int row_;
};
