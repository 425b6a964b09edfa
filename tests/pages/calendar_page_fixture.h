#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"
#include "ui/list_items.h"

using Number = DwordSetting SettingsStore::*;

// Control ids of the Calendar page.
inline constexpr wchar_t kUtility[] = L"\\CalendarPageTest.dll";
inline constexpr int kMonthList = 1232;
inline constexpr int kCombo = 1242;
inline constexpr int kBox = 1243;

// The page over a main window of the screen's width, with the installed libraries.
class CalendarPageFixture : public RegistryFixture {
  protected:
    void SetUp() override {
        RegistryFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        SetText(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Orvane", L"ProgramFiles",
                L"\\Program Files");
        application.displayLibrary = LoadLibrary(L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll");
        LOGFONT font{};
        font.lfHeight = Scale(12);
        lstrcpy(font.lfFaceName, L"Tahoma");
        application.normalFont = CreateFontIndirect(&font);
        owner_ = CreateWindowEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, ScaleY(26), Scale(240),
                                ScaleY(268), nullptr, nullptr, application.instance, nullptr);
        settingsStore.Load(application.languageLibrary);
    }

    void TearDown() override {
        if (page_) Close();
        DestroyWindow(owner_);
        DeleteObject(application.normalFont);
        FreeLibrary(application.displayLibrary);
        FreeLibrary(application.languageLibrary);
        application.normalFont = nullptr;
        application.displayLibrary = application.languageLibrary = nullptr;
        DeleteFile(kUtility);
        RegistryFixture::TearDown();
    }

    void Open(int tab = 0) {
        page_.reset(CreatePage(owner_, 1));
        ASSERT_TRUE(page_ && page_->hwnd);
        window_ = page_->hwnd;
        if (tab) GoTo(tab);
    }
    void Close() {
        ClosePage(*page_);
        page_.reset();
    }
    void GoTo(int tab) {
        SendMessage(page_->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    }

    HWND Control(int id) const { return GetDlgItem(window_, id); }
    bool IsShown(int id) const { return IsWindowVisible(Control(id)); }
    LRESULT Chosen(int id) const { return SendMessage(Control(id), CB_GETCURSEL, 0, 0); }
    // What the panel shows of the selected option's number: of its box or its drop-down list.
    uint32_t Shown() const {
        return static_cast<uint32_t>(IsShown(kBox) ? IsDlgButtonChecked(window_, kBox)
                                                   : Chosen(kCombo));
    }
    // Works the panel as a tap does.
    void Change(int entry) {
        if (IsShown(kBox))
            SendMessage(Control(kBox), BM_SETCHECK, static_cast<WPARAM>(entry), 0);
        else
            Choose(window_, kCombo, entry);
    }
    void Select(int list, int row) { SelectRow(Control(list), row); }

    HWND owner_ = nullptr;
    HWND window_ = nullptr;
    std::unique_ptr<SettingsPage> page_;
};
