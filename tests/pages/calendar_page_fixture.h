// The Calendar page with the installed libraries. Its tests set the store's numbers themselves.
#pragma once

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/page_fixture.h"
#include "ui/list_items.h"

using Number = DwordSetting SettingsStore::*;

// Control ids of the Calendar page.
inline constexpr wchar_t kUtility[] = L"\\CalendarPageTest.dll";
inline constexpr int kMonthList = 1232;
inline constexpr int kCombo = 1242;
inline constexpr int kBox = 1243;

class CalendarPageFixture : public PageFixture {
  protected:
    CalendarPageFixture() : PageFixture(1) {}

    void SetUp() override {
        PageFixture::SetUp();
        LoadArt();
        LOGFONT font{};
        font.lfHeight = Scale(12);
        wcscpy(font.lfFaceName, L"Tahoma");
        application.normalFont = CreateFontIndirect(&font);
        settingsStore.Load(application.languageLibrary);
    }

    void TearDown() override {
        if (page_) Close();
        DeleteObject(application.normalFont);
        application.normalFont = nullptr;
        DeleteFile(kUtility);
        PageFixture::TearDown();
    }

    // From the store as it is.
    void OpenAt(int tab) {
        page_.reset(CreatePage(owner_, 1));
        ASSERT_TRUE(page_ && page_->hwnd);
        window_ = page_->hwnd;
        ShowTab(tab);
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

    HWND window_ = nullptr;
};
