// Leads through a start, every page and a save, and tells whoever runs the program where one part
// ends, so that it can count the instructions of each. Prints nothing.
#include "tests/device/program_driver.h"

#include <commctrl.h>

#include "shell/page_factory.h"

namespace {

struct CountedPage {
    const wchar_t* name;
    const wchar_t* className;
};
constexpr CountedPage kPages[kPageCount] = {
    {L"General", L"GeneralSettingsWin"},
    {L"Calendar", L"CalendarSettingsWin"},
    {L"Tasks", L"TasksSettingsWin"},
    {L"Notes", L"NotesSettingsWin"},
    {L"Contacts", L"ContactSettingsWin"},
    {L"Messages", L"MessagesSettingsWin"},
    {L"Special events", L"SEventsSettingsWin"},
    {L"Fonts", L"FontSettingsWin"},
    {L"Colours", L"ColorSettingsWin"},
    {L"PIM", L"PIMSettingsWin"},
    {L"Tabs", L"TabsSettingsWin"},
    {L"Categories", L"CategorySettingsWin"},
};

// A message to the program's thread, which it never sees: a part ends once all before it is done.
void Mark(HWND window, const std::wstring& name) {
    constexpr DWORD kPaintTime = 400; // Milliseconds; paints come when all else is done.
    Sleep(kPaintTime);
    SendMessage(window, WM_NULL, 0, 0);
    const ATOM atom = GlobalAddAtom(name.c_str());
    PostThreadMessage(GetWindowThreadProcessId(window, nullptr),
                      RegisterWindowMessage(L"ArmwineMark"), atom, 0);
    WaitUntil([&] { return GlobalFindAtom(name.c_str()) == 0; });
}

// The picker of colours, which paints its field point by point.
bool CountPicker(const Program& program, HWND main, HWND page) {
    constexpr int kEditColour = 1200;
    constexpr int kColourItems = 1201;
    RECT place{};
    GetWindowRect(GetDlgItem(page, kColourItems), &place);
    TapAt((place.left + place.right) / 2, place.top + (place.bottom - place.top) / 8);
    Mark(main, L"select a colour");
    TapOn(GetDlgItem(page, kEditColour));
    HWND picker = program.WaitForWindow(L"ColourPickerWin");
    if (!picker) return false;
    Mark(main, L"open the colour picker");
    PostMessage(picker, WM_COMMAND, IDCANCEL, 0);
    return WaitUntil([picker] { return !IsWindow(picker); });
}

} // namespace

int main() {
    Program program;
    HWND main = program.WaitForPageList();
    if (!main) return 1;
    Mark(main, L"start");
    for (int row = 0; row < kPageCount; ++row) {
        HWND page = program.OpenPage(row, kPages[row].className);
        if (!page) return 2;
        Mark(main, std::wstring(L"open ") + kPages[row].name);
        if (lstrcmp(kPages[row].name, L"Colours") == 0 && !CountPicker(program, main, page))
            return 4;
        PostMessage(main, WM_COMMAND, IDOK, 0);
        if (!WaitUntil([page] { return !IsWindow(page); })) return 3;
        Mark(main, std::wstring(L"close ") + kPages[row].name);
    }
    PostMessage(main, WM_COMMAND, IDOK, 0);
    return static_cast<int>(program.WaitForExit());
}
