#include "pages/scheme_list.h"

#include <commctrl.h>

#include "files/category_store.h"
#include "files/scheme_files.h"
#include "pages/settings_page.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/application.h"
#include "shell/services/today_screen.h"
#include "ui/controls.h"
#include "ui/list_items.h"
#include "ui/messages.h"

namespace {
WideString NameOfRow(HWND list, int row) {
    wchar_t name[kMaxSchemeName + 1] = L"";
    LVITEM item{};
    item.pszText = name;
    item.cchTextMax = kMaxSchemeName + 1;
    SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return WideString(name);
}

// The row the user has confirmed, −1 for none.
int ConfirmedRow(HWND owner, HWND list, UINT questionId, UINT captionId) {
    const int row = SelectedRow(list);
    if (row < 0) {
        ShowMessage(owner, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION);
        return -1;
    }
    return AskYesNo(owner, questionId, captionId) ? row : -1;
}

// The pages' texts are of the library that was loaded before: all is loaded anew, and the page
// goes.
void AdoptLoadedScheme(HWND owner) {
    settingsStore.Load(application.languageLibrary);
    categoryStore.ResolveSelections();
    RefreshTodayScreen();
    PostMessage(GetParent(owner), kMessageClosePage, 0, 0);
}
} // namespace

void FillSchemeList(HWND list, HFONT font) {
    ResetList(list);
    SendMessage(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
    for (const WideString& name : SchemeFileNames())
        AddRow(list, name.CStr());
    FitColumn(list);
}

int SaveScheme(HWND owner, HWND nameBox, HWND list) {
    WideString name = ControlText(nameBox, kMaxSchemeName);
    if (name.IsEmpty()) {
        ShowMessage(owner, IDS_SCHEME_NO_NAME, IDS_SCHEME_NO_NAME_CAPTION);
        return 0;
    }
    if (SchemeExists(name.CStr())) {
        ShowMessage(owner, IDS_SCHEME_EXISTS, IDS_SCHEME_EXISTS_CAPTION);
        return 0;
    }
    WriteScheme(name.CStr(), categoryStore);
    name.Append(L".scm");
    InsertRow(list, 0, name.CStr());
    FitColumn(list);
    SetWindowText(nameBox, L"");
    ShowMessage(owner, IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION);
    return 1;
}

int LoadScheme(HWND owner, HWND list) {
    const int row =
        ConfirmedRow(owner, list, IDS_SCHEME_LOAD_QUESTION, IDS_SCHEME_LOAD_QUESTION_CAPTION);
    if (row < 0) return 0;
    switch (ReadScheme(NameOfRow(list, row).CStr(), categoryStore)) {
    case SchemeOutcome::CannotOpen:
        ShowMessage(owner, IDS_SCHEME_NOT_OPENED, IDS_SCHEME_NOT_OPENED_CAPTION);
        return 0;
    case SchemeOutcome::Damaged:
        ShowMessage(owner, IDS_SCHEME_NOT_LOADED, IDS_SCHEME_NOT_LOADED_CAPTION);
        return 0;
    case SchemeOutcome::Read:
        break;
    }
    AdoptLoadedScheme(owner);
    return 1;
}

int DeleteScheme(HWND owner, HWND list) {
    const int row =
        ConfirmedRow(owner, list, IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_QUESTION_CAPTION);
    if (row < 0) return 0;
    DeleteSchemeFile(NameOfRow(list, row).CStr());
    SendMessage(list, LVM_DELETEITEM, static_cast<WPARAM>(row), 0);
    FitColumn(list);
    return 1;
}
