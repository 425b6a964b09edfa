// The Calendar page, whose tests set the store's numbers themselves.
#pragma once

#include "tests/support/page_fixture.h"
#include "ui/list_items.h"

// Control ids of the Calendar page.
inline constexpr int kDays = 1201;
inline constexpr int kMonthList = 1232;
inline constexpr int kCombo = 1242;
inline constexpr int kBox = 1243;

class CalendarPageFixture : public PageFixture {
  protected:
    CalendarPageFixture() : PageFixture(1) {}

    void SetUp() override {
        PageFixture::SetUp();
        settingsStore.Load(application.languageLibrary);
    }

    // From the store as it is.
    void OpenAt(int tab) {
        Reopen();
        ShowTab(tab);
    }
    void Select(int list, int row) const { SelectRow(Control(list), row); }
    // What the panel shows of the selected option's number: of its box or its drop-down list.
    uint32_t Shown() const {
        return static_cast<uint32_t>(IsShown(kBox) ? IsTicked(kBox) : Chosen(kCombo));
    }
    // Works the panel as a tap does.
    void Change(int entry) const {
        if (IsShown(kBox))
            SendMessage(Control(kBox), BM_SETCHECK, static_cast<WPARAM>(entry), 0);
        else
            Choose(window_, kCombo, entry);
    }
};
