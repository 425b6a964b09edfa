#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

#include "shell/page_factory.h"
#include "tests/support/window_support.h"
#include "ui/list_items.h"

// Selects each row of each list that is shown, which may show more below or above it.
inline void SelectEachRow(HWND parent) {
    for (HWND list = FindWindowEx(parent, nullptr, WC_LISTVIEW, nullptr); list;
         list = FindWindowEx(parent, list, WC_LISTVIEW, nullptr)) {
        for (int row = 0; IsWindowVisible(list) && row < RowCount(list); ++row) {
            SelectRow(list, row);
            PumpMessages();
        }
    }
}

// Opens a page and closes it, as a visitor does: at once, or after every tab and every option.
inline void VisitPage(HWND mainWindow, int row, bool everywhere = true) {
    const std::unique_ptr<SettingsPage> page(CreatePage(mainWindow, row));
    ASSERT_TRUE(page && page->hwnd);
    PumpMessages();
    for (int tab = 0; everywhere && tab < page->GetTabCount(); ++tab) {
        SendMessage(page->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
        PumpMessages();
        SelectEachRow(page->hwnd);
    }
    ClosePage(*page);
    PumpMessages();
}
