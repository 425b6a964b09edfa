// Changes what it can on every page of the installed program, with taps and keys from outside,
// saves, and prints all that is then stored, so that two builds of the program can be compared.
// Ends with 1 where a page has nothing to change, and with another code where the program does not
// follow.
#include "tools/drivers/program_driver.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kRowsTaken = 3; // Of each list.

bool IsOfClass(HWND window, const wchar_t* className) {
    wchar_t name[64] = L"";
    GetClassName(window, name, 64);
    return lstrcmpi(name, className) == 0;
}

// Waits until the program has done what it was told, and answers what it asks meanwhile. Sent
// messages are taken in their order; posted ones come after them.
void Settle(HWND page) {
    constexpr UINT kLimit = 10'000;
    for (int rounds = 0; rounds < 4; ++rounds) {
        SendMessageTimeout(page, WM_NULL, 0, 0, SMTO_NORMAL, kLimit, nullptr);
        HWND front = GetLastActivePopup(page);
        if (front == page || !IsOfClass(front, L"#32770")) return;
        Answer(front, IDOK);
    }
}

bool IsCheckBox(HWND window) {
    const LONG kind = GetWindowLong(window, GWL_STYLE) & BS_TYPEMASK;
    return IsOfClass(window, L"Button") && (kind == BS_AUTOCHECKBOX || kind == BS_CHECKBOX);
}

// What can be worked now, in its order.
std::vector<HWND> Controls(HWND page) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsWindowVisible(child) && IsWindowEnabled(child)) controls.push_back(child);
    }
    return controls;
}

bool Change(HWND page, HWND control) {
    if (IsCheckBox(control)) {
        SendNotifyMessage(control, BM_CLICK, 0, 0);
    } else if (IsOfClass(control, L"ComboBox")) {
        const LRESULT entries = SendMessage(control, CB_GETCOUNT, 0, 0);
        const LRESULT chosen = SendMessage(control, CB_GETCURSEL, 0, 0);
        if (entries < 2) return false;
        SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>((chosen + 1) % entries), 0);
        SendNotifyMessage(page, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), CBN_SELCHANGE),
                          reinterpret_cast<LPARAM>(control));
    } else {
        return false;
    }
    Settle(page);
    return true;
}

int ChangeAll(HWND page) {
    int changed = 0;
    for (HWND control : Controls(page))
        changed += Change(page, control);
    return changed;
}

// The rows of a list in their turn, each with the controls that show its value.
int ChangeRows(HWND page, HWND list) {
    RECT place{};
    GetWindowRect(list, &place);
    const auto height =
        static_cast<int>(HIWORD(SendMessage(list, LVM_APPROXIMATEVIEWRECT, 2, MAKELPARAM(-1, -1)) -
                                SendMessage(list, LVM_APPROXIMATEVIEWRECT, 1, MAKELPARAM(-1, -1))));
    const auto rows = static_cast<int>(SendMessage(list, LVM_GETITEMCOUNT, 0, 0));
    int changed = 0;
    for (int row = 0; row < std::min(rows, kRowsTaken); ++row) {
        TapAt(place.left + (place.right - place.left) / 2, place.top + height * row + height / 2);
        WaitUntil([&] {
            return SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) ==
                   row;
        });
        Settle(page);
        changed += ChangeAll(page);
    }
    return changed;
}

// The first colour of the Colours page, by the picker's value of red.
int ChangeColour(const Program& program, HWND page) {
    constexpr int kRedEdit = 126;
    TapFirstColour(page);
    HWND picker = program.OpenColourPicker(page);
    if (!picker) return 0;
    SendMessage(GetDlgItem(picker, kRedEdit), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"17"));
    return Answer(picker, IDOK);
}

int ChangePage(HWND page) {
    HWND strip = FindWindowEx(page, nullptr, WC_TABCONTROL, nullptr);
    const auto tabs = static_cast<int>(SendMessage(strip, TCM_GETITEMCOUNT, 0, 0));
    int changed = 0;
    for (int tab = 0; tab < tabs; ++tab) {
        SendMessage(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
        Settle(page);
        changed += ChangeAll(page);
        for (HWND control : Controls(page)) {
            if (IsOfClass(control, WC_LISTVIEW)) changed += ChangeRows(page, control);
        }
    }
    return changed;
}

// A line for each value: its path in UTF-16 units beyond ASCII as numbers, its kind, its bytes.
void PrintTree(const char* root, const RegistryTree& tree) {
    for (const auto& [path, value] : tree) {
        std::string line = root;
        for (const wchar_t unit : path) {
            char number[8];
            std::snprintf(number, sizeof(number), unit < 0x80 ? "%c" : "{%04x}", unit);
            line += number;
        }
        std::printf("%s %lu", line.c_str(), value.type);
        for (const BYTE byte : value.bytes)
            std::printf(" %02x", byte);
        std::printf("\n");
    }
}

RegistryTree TreeOf(HKEY root, const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyEx(root, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return {};
    RegistryTree tree = GetTree(key);
    RegCloseKey(key);
    return tree;
}

} // namespace

int main() {
    Program program;
    HWND main = program.WaitForPageList();
    if (!main) return 2;
    int unchanged = 0;
    for (int row = 0; row < kPageCount; ++row) {
        HWND page = program.OpenPage(row);
        if (!page) return 3;
        const int changed = row == kColoursRow ? ChangeColour(program, page) : ChangePage(page);
        std::printf("page %d: %d changes\n", row, changed);
        std::fflush(stdout);
        unchanged += changed == 0;
        PostMessage(main, WM_COMMAND, IDOK, 0);
        if (!WaitUntil([page] {
                Settle(page);
                return !IsWindow(page);
            }))
            return 4;
    }
    PostMessage(main, WM_COMMAND, IDOK, 0);
    if (program.WaitForExit() != 0) return 5;

    PrintTree("HKCU\\", SettingsTree());
    PrintTree("HKLM\\", TreeOf(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today"));
    return unchanged == 0 ? 0 : 1;
}
