// A settings page as the program opens it: over a main window, from the store, with a registry and
// an install folder of the test's own.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "files/icon_set.h"
#include "pages/settings_page.h"
#include "platform/include/stand_in.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/owner_window.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"

inline constexpr wchar_t kTemplateDialog[] = L"#32770"; // Message boxes, too.
inline constexpr wchar_t kColourPicker[] = L"ColourPickerWin";
inline constexpr wchar_t kFolderDialog[] = L"SelectFolderWin";
inline constexpr int kHtml = 130; // The field of the colour picker.

class PageFixture : public RegistryFixture {
  protected:
    // The page of a row of the page list, and where its settings are below the program's key.
    explicit PageFixture(int row, const wchar_t* key = L"")
        : key_(std::wstring(L"Software\\Teskel\\Orvane") + key), row_(row) {}

    // With the installed display library and its icons, as at start.
    void SetUp() override {
        RegistryFixture::SetUp();
        owner_ = CreateOwner();
        application.displayLibrary =
            LoadLibrary(Scale(1) > 1 ? L"\\Program Files\\Teskel\\Orvane\\HighDpiRes.dll"
                                     : L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll");
        ASSERT_TRUE(application.displayLibrary);
        iconSet.LoadIconSet(WideString());
        folder_.emplace();
    }

    // A page that is still open is closed.
    void TearDown() override {
        if (page_) Close();
        DestroyWindow(owner_);
        iconSet.Release();
        FreeLibrary(std::exchange(application.displayLibrary, nullptr));
        if (application.languageLibrary)
            FreeLibrary(std::exchange(application.languageLibrary, nullptr));
        folder_.reset();
        StandInSetOsVersion(0, 0);
        StandInResetCalls();
        RegistryFixture::TearDown();
    }

    // Loads the store as at start and opens the page, after closing the one that is open.
    HWND Open() {
        if (page_) Close();
        settingsStore.Load(application.languageLibrary);
        return Reopen();
    }
    // The same with the store as it is, as when the user comes back to the page.
    HWND Reopen() {
        if (page_) Close();
        page_.reset(CreatePage(owner_, row_));
        EXPECT_TRUE(page_ && page_->hwnd);
        return window_ = page_->hwnd;
    }
    void Close() {
        ClosePage(*page_);
        page_.reset();
    }

    // A value of the page's key, before the page is opened.
    void Store(const wchar_t* name, uint32_t number) const {
        SetNumber(HKEY_CURRENT_USER, key_, name, number);
    }
    void Store(const wchar_t* name, const std::wstring& text) const {
        SetText(HKEY_CURRENT_USER, key_, name, text);
    }

    void ShowTab(int tab) const {
        SendMessage(page_->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    }
    HWND Control(int id) const { return GetDlgItem(window_, id); }
    bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)); }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)); }
    bool IsTicked(int id) const { return IsDlgButtonChecked(window_, id) != 0; }
    // The entry of a drop-down list, −1 for none.
    LRESULT Chosen(int id) const { return SendMessage(Control(id), CB_GETCURSEL, 0, 0); }

    // Taps a button and works what it opens.
    void TapAndWork(int button, const wchar_t* dialog, std::vector<DialogSteps::Step> steps) const {
        const DialogSteps work(dialog, std::move(steps));
        Tap(window_, button);
    }

    // A text of the language library; every one that a test asks for must be there.
    static std::wstring Text(UINT id) {
        const std::wstring text = LanguageText(id).CStr();
        EXPECT_NE(text, L"") << id;
        return text;
    }
    static void ExpectSaid(const MessageBoxAnswer& box, UINT text, UINT caption) {
        EXPECT_EQ(box.text, Text(text));
        EXPECT_EQ(box.caption, Text(caption));
    }

    const std::wstring key_;
    HWND owner_ = nullptr;
    HWND window_ = nullptr; // The page's, while it is open.
    std::unique_ptr<SettingsPage> page_;
    std::optional<InstallFolder> folder_;

  private:
    int row_;
};
