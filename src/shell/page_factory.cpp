#include "shell/page_factory.h"

#include <new>

#include "pages/calendar_page.h"
#include "pages/category_page.h"
#include "pages/colours_page.h"
#include "pages/contacts_page.h"
#include "pages/fonts_page.h"
#include "pages/general_page.h"
#include "pages/messages_page.h"
#include "pages/notes_page.h"
#include "pages/pim_page.h"
#include "pages/special_events_page.h"
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

constexpr PageEntry kPages[kPageCount] = {
    {IDS_PAGE_GENERAL, L"GeneralSettingsWin", MakePage<GeneralPage>},
    {IDS_PAGE_CALENDAR, L"CalendarSettingsWin", MakePage<CalendarPage>},
    {IDS_PAGE_TASKS, L"TasksSettingsWin", MakePage<TasksPage>},
    {IDS_PAGE_NOTES, L"NotesSettingsWin", MakePage<NotesPage>},
    {IDS_PAGE_CONTACTS, L"ContactSettingsWin", MakePage<ContactsPage>},
    {IDS_PAGE_MESSAGES, L"MessagesSettingsWin", MakePage<MessagesPage>},
    {IDS_PAGE_SPECIAL_EVENTS, L"SEventsSettingsWin", MakePage<SpecialEventsPage>},
    {IDS_PAGE_FONTS, L"FontSettingsWin", MakePage<FontsPage>},
    {IDS_PAGE_COLOURS, L"ColorSettingsWin", MakePage<ColoursPage>},
    {IDS_PAGE_PIM, L"PIMSettingsWin", MakePage<PimPage>},
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
