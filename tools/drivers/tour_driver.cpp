// Leads through every page, tab and dialog of the installed program. At each sight it prints a name
// and waits for a line on its input, so that whoever started it can take a picture.
#include "tools/drivers/program_driver.h"

#include <commctrl.h>

#include <cstdio>

#include "resource_ids.h"
#include "ui/button_strip.h"

namespace {
constexpr int kGeneral = 0;
constexpr int kCalendar = 1;
constexpr int kTasks = 2;
constexpr int kNotes = 3;
constexpr int kContacts = 4;
constexpr int kPim = 9;
constexpr UINT kRemoveFolder = 1216;
constexpr int kTabs = 10;
constexpr UINT kSkinBrowse = 1214;
constexpr UINT kLanguage = 1216;
constexpr UINT kTabList = 1206;
constexpr UINT kAddTab = 1209;
constexpr UINT kPluginList = 473;
constexpr int kFonts = 7;
constexpr int kCategory = 11;
constexpr int kEditButton = 1210; // Of the Fonts page.
constexpr int kFontItems = 1211;
constexpr int kColourItems = 1201;
constexpr int kFontSetColour = 479;
constexpr int kRedEdit = 126;
constexpr int kHtmlEdit = 130;

void Show(const char* name) {
    // Milliseconds; paints come when all else is done.
    const DWORD paintTime = IsEmulated() ? 600 : 150;
    Sleep(paintTime);
    std::printf("%s\n", name);
    std::fflush(stdout);
    char answer[16];
    if (!std::fgets(answer, sizeof(answer), stdin)) ExitProcess(1);
}

void ShowDialogOf(const Program& program, HWND button, const wchar_t* className, const char* name) {
    TapOn(button);
    if (HWND dialog = program.WaitForWindow(className)) {
        Show(name);
        Answer(dialog, IDCANCEL);
    }
}

// The folder dialog, and each language by its own name.
void ShowAppearance(const Program& program, HWND page) {
    ShowDialogOf(program, GetDlgItem(page, kSkinBrowse), L"SelectFolderWin", "dialog-folder");
    TapOn(GetDlgItem(page, kLanguage));
    Show("general-languages");
    Press(VK_ESCAPE);
}

// The menu of the first chooser and the tooltip of a button, both reached by keys.
void ShowIconChooser(HWND page) {
    constexpr DWORD kTipTime = 800; // Milliseconds; tooltips come after a rest.
    HWND strip = FindWindowEx(page, nullptr, kButtonStripClass, nullptr);
    TapOn(strip);
    Show("menu-icons");
    Press(VK_DOWN);
    Press(VK_DOWN);
    Show("menu-icons-entry");
    Press(VK_ESCAPE);
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_RIGHT);
    Sleep(kTipTime);
    Show("tooltip-icon");
}

// The ways in which the Calendar page shows an option, by the tab and row of one that is so shown.
struct OptionSight {
    int tab;
    int row;
    const char* name;
};
constexpr OptionSight kOptions[] = {
    {2, 0, "option-box"},  {3, 0, "option-choice"}, {5, 9, "option-format"},
    {6, 4, "option-path"}, {8, 5, "option-text"},   {8, 6, "option-order"},
};

// The list is reached and its rows are selected by keys.
void ShowOptions(int tab) {
    int row = -1;
    for (const OptionSight& option : kOptions) {
        if (option.tab != tab) continue;
        if (row < 0) {
            Press(VK_TAB);
            Press(VK_RETURN);
            row = 0;
        }
        for (; row < option.row; ++row)
            Press(VK_DOWN);
        Show(option.name);
    }
}

// The panel's drop-down list, which stands above the first row.
void ShowOpenChoice() {
    Press(VK_UP);
    Press(VK_RETURN);
    Show("option-choice-open");
    Press(VK_ESCAPE);
}

// The message that stands over a page, which takes its OK.
void ShowMessageBox(const Program& program, const char* name) {
    if (HWND box = program.WaitForMessageBox()) {
        Show(name);
        Answer(box, IDOK);
    }
}

// The box that opens over a dialog, both of which are dialogs to the platform.
void ShowQuestion(HWND dialog, const char* name) {
    PostMessage(dialog, WM_COMMAND, IDOK, 0);
    WaitUntil([dialog] { return GetLastActivePopup(dialog) != dialog; });
    HWND question = GetLastActivePopup(dialog);
    Show(name);
    PostMessage(question, WM_COMMAND, IDNO, 0);
    GoesAway(dialog);
}

// A plug-in's tab selected, the dialog that adds one, its list, and the question about a plug-in
// that is on the Today screen.
void ShowAddTab(const Program& program, HWND page) {
    TapOn(GetDlgItem(page, kTabList));
    constexpr int kPluginRow = 3;
    Press(VK_HOME);
    for (int row = 0; row < kPluginRow; ++row)
        Press(VK_DOWN);
    Show("page-10-tabs-2-selected");
    TapOn(GetDlgItem(page, kAddTab));
    HWND dialog = program.WaitForWindow(L"#32770");
    if (!dialog) return;
    Show("dialog-add-tab");
    Press(VK_RETURN);
    Show("dialog-add-tab-list");
    Press(VK_ESCAPE);
    constexpr WPARAM kEnabledPlugin = 1;
    SendDlgItemMessage(dialog, kPluginList, CB_SETCURSEL, kEnabledPlugin, 0);
    ShowQuestion(dialog, "question-add-tab");
}

// Selects a row by a tap on the first one and by keys.
void SelectRow(HWND list, int row) {
    RECT place{};
    GetWindowRect(list, &place);
    TapAt(place.left + 20, place.top + 8);
    for (int i = 0; i < row; ++i)
        Press(VK_DOWN);
}

void ShowPicker(const Program& program) {
    HWND picker = program.WaitForWindow(L"ColourPickerWin");
    if (!picker) return;
    Show("picker-field");
    HWND strip = FindWindowEx(picker, nullptr, WC_TABCONTROL, nullptr);
    SendMessage(strip, TCM_SETCURFOCUS, 1, 0);
    TapOn(GetDlgItem(picker, kHtmlEdit));
    Show("picker-values");
    SendDlgItemMessage(picker, kRedEdit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"7"));
    Show("picker-changed");
    // The button in the middle of the bar raises the input panel.
    TapAt(GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) - 8);
    Show("picker-panel");
    Answer(picker, IDCANCEL);
}

void ShowFontItem(const Program& program, HWND page) {
    SelectRow(GetDlgItem(page, kFontItems), 2);
    Show("fonts-item");
    TapOn(GetDlgItem(page, kEditButton));
    HWND dialog = program.WaitForMessageBox();
    if (!dialog) return;
    Show("dialog-font-style");
    TapOn(GetDlgItem(dialog, kFontSetColour));
    ShowPicker(program);
    Answer(dialog, IDCANCEL);
    Press(VK_F1);
    Show("menu-fonts");
    Press(VK_ESCAPE);
    Press(VK_ESCAPE);
}

void ShowColourItem(const Program& program, HWND page) {
    SelectRow(GetDlgItem(page, kColourItems), 1);
    Show("colours-item");
    if (HWND picker = program.OpenColourPicker(page)) {
        Show("picker-colour");
        Answer(picker, IDCANCEL);
    }
}

// Taps the second category, so that it can be given an icon and a colour.
void ShowCategoryDialogs(const Program& program, HWND page) {
    HWND list = GetDlgItem(page, 1200);
    RECT place{};
    GetWindowRect(list, &place);
    HWND iconButton = GetDlgItem(page, 1201);
    TapAt(place.left + (place.right - place.left) / 3, place.top + (place.bottom - place.top) / 4);
    WaitUntil([iconButton] { return IsWindowEnabled(iconButton) != FALSE; });
    Show("category-selected");
    ShowDialogOf(program, iconButton, L"ImagePickerWin", "dialog-icon");
    ShowDialogOf(program, GetDlgItem(page, 1202), L"ColourPickerWin", "dialog-colour");
}

void ShowFilterDialogs(const Program& program, HWND page) {
    HWND filters = GetDlgItem(page, 1204);
    TapOn(filters);
    Show("category-filters");
    Press(VK_ESCAPE);
    WaitUntil([filters] { return !SendMessage(filters, CB_GETDROPPEDSTATE, 0, 0); });
    ShowDialogOf(program, GetDlgItem(page, 1205), L"#32770", "dialog-filter-name");
}

bool ShowPage(const Program& program, HWND main, int row) {
    HWND page = program.OpenPage(row);
    if (!page) return false;
    HWND strip = FindWindowEx(page, nullptr, WC_TABCONTROL, nullptr);
    const auto tabs = static_cast<int>(SendMessage(strip, TCM_GETITEMCOUNT, 0, 0));
    for (int tab = 0; tab < tabs; ++tab) {
        SendMessage(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
        char name[64];
        std::snprintf(name, sizeof(name), "page-%02d-%s-%d", row, kPages[row].name, tab + 1);
        Show(name);
        if (row == kGeneral && tab == 1) ShowAppearance(program, page);
        if (row == kCalendar) ShowOptions(tab);
        if (row == kCalendar && tab == 3) ShowOpenChoice();
        if (row == kTabs && tab == 1) ShowAddTab(program, page);
        if (row == kFonts && tab == 1) ShowFontItem(program, page);
        if (row == kColoursRow && tab == 0) ShowColourItem(program, page);
        if (row == kTasks && tab == 2) ShowIconChooser(page);
        if (row == kNotes && tab == 3) {
            TapOn(GetDlgItem(page, kRemoveFolder));
            ShowMessageBox(program, "message-nothing-selected");
        }
        if (row == kContacts && tab == 2) {
            Press(VK_TAB);
            Press(VK_DOWN);
            Press(VK_RETURN);
            Show("list-ticked-by-keys");
        }
        if (row == kPim && tab == 0) {
            Press(VK_LEFT); // From the application that is installed to the one that is not.
            ShowMessageBox(program, "message-not-installed");
        }
        if (row == kCategory && tab == 0) ShowCategoryDialogs(program, page);
        if (row == kCategory && tab == 1) ShowFilterDialogs(program, page);
    }
    PostMessage(main, WM_COMMAND, IDOK, 0);
    return GoesAway(page);
}

// The file dialogs, and what is said of a file that is no backup.
void ShowBackups(const Program& program, HWND main) {
    PostMessage(main, WM_COMMAND, IDC_EXPORT_BACKUP, 0);
    if (HWND dialog = program.WaitForWindow(L"SaveFileWin")) {
        Show("dialog-save-file");
        PostMessage(dialog, WM_COMMAND, IDOK, 0);
        ShowMessageBox(program, "message-exported");
        GoesAway(dialog);
    }
    PostMessage(main, WM_COMMAND, IDC_IMPORT_BACKUP, 0);
    if (HWND dialog = program.WaitForWindow(L"LoadFileWin")) {
        Show("dialog-open-file");
        PostMessage(dialog, WM_COMMAND, IDOK, 0);
        ShowMessageBox(program, "message-file-name");
        constexpr int kNameBox = 111;
        SendDlgItemMessage(dialog, kNameBox, WM_SETTEXT, 0,
                           reinterpret_cast<LPARAM>(L"No such file"));
        PostMessage(dialog, WM_COMMAND, IDOK, 0);
        ShowMessageBox(program, "message-not-imported");
    }
}

void ShowMenu(WORD softKey, const char* name) {
    Press(softKey);
    Show(name);
    Press(VK_ESCAPE);
    Press(VK_ESCAPE);
}
} // namespace

int main() {
    Program program;
    HWND main = program.WaitForPageList();
    if (!main) return 1;
    Show("list");
    ShowMenu(VK_F1, "menu-left");
    ShowMenu(VK_F2, "menu-right");
    for (int row = 0; row < kPageCount; ++row) {
        if (!ShowPage(program, main, row)) return 1;
    }
    ShowBackups(program, main);
    PostMessage(main, WM_COMMAND, IDC_ABOUT, 0);
    if (HWND about = program.WaitForWindow(L"AboutWin")) {
        Show("dialog-about");
        Answer(about, IDOK);
    }
    PostMessage(main, WM_COMMAND, IDCANCEL, 0);
    HWND question = program.WaitForMessageBox();
    if (!question) return 1;
    Show("question-cancel");
    PostMessage(question, WM_COMMAND, IDYES, 0);
    return static_cast<int>(program.WaitForExit());
}
