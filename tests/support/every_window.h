#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

#include "pages/add_plugin_dialog.h"
#include "pages/font_style_dialog.h"
#include "resource_ids.h"
#include "shell/about_window.h"
#include "shell/page_factory.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/window_support.h"
#include "ui/colour_picker.h"
#include "ui/file_dialog.h"
#include "ui/filter_name_dialog.h"
#include "ui/folder_dialog.h"
#include "ui/image_picker.h"
#include "ui/list_items.h"

// Visits to every page and every dialog of the program.

// A dialog by its window's class, and what shows it until it is answered.
struct Dialog {
    const char* name;
    const wchar_t* className;
    void (*run)(HWND owner);
};

inline constexpr Dialog kDialogs[] = {
    {"FontStyle", L"#32770",
     [](HWND owner) {
         LOGFONT font{};
         COLORREF colour = RGB(1, 2, 3);
         EditFontStyle(owner, font, colour);
     }},
    {"Colour", L"ColourPickerWin", [](HWND owner) { (void)PickColour(owner, RGB(1, 2, 3)); }},
    {"Image", L"ImagePickerWin",
     [](HWND owner) {
         WideString path(L"\\no such picture.bmp"); // Has a row of its own.
         (void)PickImage(owner, path);
     }},
    {"SaveFile", L"SaveFileWin",
     [](HWND owner) {
         WideString path;
         (void)SelectFileToSave(owner, {L"Files", L"Backups", L"ovsb", L"Backup"}, path);
     }},
    {"OpenFile", L"LoadFileWin",
     [](HWND owner) {
         WideString path;
         const WideString files = LanguageText(IDS_CALENDAR_MAIL_PATH_FILES);
         (void)SelectFileToOpen(owner, {L"", files.CStr(), L"exe", L""}, path);
     }},
    {"Folder", L"SelectFolderWin",
     [](HWND owner) {
         WideString path(L"\\Windows");
         (void)SelectFolder(owner, L"Folder", path);
     }},
    {"AddPlugin", L"#32770",
     [](HWND owner) {
         WideString name;
         (void)ChoosePluginToAdd(owner, name);
     }},
    {"FilterName", L"#32770",
     [](HWND owner) {
         WideString title(L"Filter");
         (void)AskFilterName(owner, title);
     }},
    {"About", L"AboutWin", ShowAbout},
};

// Shows a window as it opens and with each row of each list selected, which may show more below or
// above it.
template <typename Look>
void LookAtEachRow(HWND window, Look look) {
    look(window);
    for (HWND list = FindWindowEx(window, nullptr, WC_LISTVIEW, nullptr); list;
         list = FindWindowEx(window, list, WC_LISTVIEW, nullptr)) {
        for (int row = 0; IsWindowVisible(list) && row < RowCount(list); ++row) {
            SelectRow(list, row);
            PumpMessages();
            look(window);
        }
    }
}

// Opens a page and closes it, as a visitor does: at once, or after every tab and every option.
template <typename Look>
void VisitPage(HWND mainWindow, int row, Look look, bool everywhere = true) {
    const std::unique_ptr<SettingsPage> page(CreatePage(mainWindow, row));
    ASSERT_TRUE(page && page->hwnd);
    PumpMessages();
    for (int tab = 0; everywhere && tab < page->GetTabCount(); ++tab) {
        SendMessage(page->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
        PumpMessages();
        LookAtEachRow(page->hwnd, look);
    }
    ClosePage(*page);
    PumpMessages();
}

// Opens a dialog, looks at it and gives it an answer.
template <typename Look>
void VisitDialog(HWND owner, const Dialog& dialog, WPARAM answer, Look look) {
    int seen = 0;
    {
        const DialogSteps steps(dialog.className, {[&](HWND window) {
                                    ++seen;
                                    look(window);
                                    PostMessage(window, WM_COMMAND, answer, 0);
                                }});
        dialog.run(owner);
    }
    PumpMessages();
    EXPECT_EQ(seen, 1) << dialog.name;
}
