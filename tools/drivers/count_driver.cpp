// Leads through a start, every page and a save, and tells whoever runs the program where one part
// ends, so that it can count the instructions of each. Prints nothing.
#include "tools/drivers/program_driver.h"

namespace {

// A message to the program's thread, which it never sees: a part ends once all before it is done.
void Mark(HWND window, const std::string& name) {
    constexpr DWORD kPaintTime = 400; // Milliseconds; paints come when all else is done.
    Sleep(kPaintTime);
    SendMessage(window, WM_NULL, 0, 0);
    const ATOM atom = GlobalAddAtomA(name.c_str());
    PostThreadMessage(GetWindowThreadProcessId(window, nullptr),
                      RegisterWindowMessage(L"ArmwineMark"), atom, 0);
    WaitUntil([&] { return GlobalFindAtomA(name.c_str()) == 0; });
}

// The picker of colours, which paints its field point by point.
bool CountPicker(const Program& program, HWND main, HWND page) {
    TapFirstColour(page);
    Mark(main, "select a colour");
    HWND picker = program.OpenColourPicker(page);
    if (!picker) return false;
    Mark(main, "open the colour picker");
    return Answer(picker, IDCANCEL);
}

} // namespace

int main() {
    Program program;
    HWND main = program.WaitForPageList();
    if (!main) return 1;
    Mark(main, "start");
    for (int row = 0; row < kPageCount; ++row) {
        HWND page = program.OpenPage(row);
        if (!page) return 2;
        Mark(main, std::string("open ") + kPages[row].name);
        if (row == kColoursRow && !CountPicker(program, main, page)) return 4;
        PostMessage(main, WM_COMMAND, IDOK, 0);
        if (!GoesAway(page)) return 3;
        Mark(main, std::string("close ") + kPages[row].name);
    }
    PostMessage(main, WM_COMMAND, IDOK, 0);
    return static_cast<int>(program.WaitForExit());
}
