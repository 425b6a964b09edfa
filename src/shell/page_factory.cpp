#include "shell/page_factory.h"

#include <new>

#include "pages/calendar_page.h"
#include "pages/category_page.h"
#include "pages/colours_page.h"
#include "pages/fonts_page.h"
#include "pages/general_page.h"
#include "pages/outline_page.h"
#include "pages/tabs_page.h"
#include "pages/tasks_page.h"
#include "resource_ids.h"
#include "shell/services/application.h"

namespace {
struct PageEntry {
    UINT caption;
    const wchar_t* className;
    SettingsPage* (*make)();
};

template <typename Page>
SettingsPage* MakePage() {
    return new (std::nothrow) Page;
}

template <UINT... titles>
SettingsPage* MakeOutline() {
    static constexpr UINT kTitles[] = {titles...};
    return new (std::nothrow) OutlinePage(kTitles);
}

constexpr PageEntry kPages[kPageCount] = {
    {IDS_PAGE_GENERAL, L"GeneralSettingsWin", MakePage<GeneralPage>},
    {IDS_PAGE_CALENDAR, L"CalendarSettingsWin", MakePage<CalendarPage>},
    {IDS_PAGE_TASKS, L"TasksSettingsWin", MakePage<TasksPage>},
    {IDS_PAGE_NOTES, L"NotesSettingsWin",
     MakeOutline<IDS_TAB_GENERAL, IDS_TAB_TITLES, IDS_TAB_NOTES_FILES, IDS_TAB_NOTES_FOLDERS>},
    {IDS_PAGE_CONTACTS, L"ContactSettingsWin",
     MakeOutline<IDS_TAB_CONTACTS_DISPLAY, IDS_TAB_CONTACTS_ACTIONS, IDS_TAB_CONTACTS_ALPHABETS>},
    {IDS_PAGE_MESSAGES, L"MessagesSettingsWin", MakeOutline<IDS_TAB_GENERAL, IDS_TAB_TITLES>},
    {IDS_PAGE_SPECIAL_EVENTS, L"SEventsSettingsWin",
     MakeOutline<IDS_TAB_SEVENTS_DISPLAY, IDS_TAB_SEVENTS_FILTERS, IDS_TAB_TITLES>},
    {IDS_PAGE_FONTS, L"FontSettingsWin", MakePage<FontsPage>},
    {IDS_PAGE_COLOURS, L"ColorSettingsWin", MakePage<ColoursPage>},
    {IDS_PAGE_PIM, L"PIMSettingsWin", MakeOutline<IDS_TAB_PIM_APPLICATION, IDS_TAB_PIM_OPTIONS>},
    {IDS_PAGE_TABS, L"TabsSettingsWin", MakePage<TabsPage>},
    {IDS_PAGE_CATEGORY, L"CategorySettingsWin", MakePage<CategoryPage>},
};
} // namespace

UINT PageCaption(int row) {
    return kPages[row].caption;
}

SettingsPage* CreatePage(HWND mainWindow, int row) {
    if (row < 0 || row >= kPageCount) return nullptr;
    const PageEntry& entry = kPages[row];
    SettingsPage* page = entry.make();
    if (!page) return nullptr;
    CreatePageWindow(*page, mainWindow, entry.className, application.instance,
                     application.normalFont, application.boldFont);
    return page;
}
