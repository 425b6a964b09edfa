// Opening each page, from its creation to its first paint, against a bare window that makes the
// same controls with the same entries in their lists, and a menu bar; and drawing the samples of
// the Calendar and Tasks pages.

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/timing.h"
#include "preview/item_sample.h"
#include "settings/settings_store.h"
#include "shell/main_window.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"

namespace {

constexpr int kRounds = 31;
constexpr wchar_t kBareClass[] = L"PageBench";
constexpr std::wstring_view kComboBox = L"ComboBox";

struct Control {
    std::wstring className;
    std::wstring text;
    DWORD style;
    DWORD extendedStyle;
    RECT place; // On the page.
    std::vector<std::wstring> entries;
    SIZE rowImage; // Of a list view.
};

// A combo box is made with the height that it has with its list dropped, and it gives the style of
// a scroll bar on to the list.
void ReadComboBox(HWND combo, DWORD& style, RECT& place) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    if (!GetComboBoxInfo(combo, &info)) return;
    style |= static_cast<DWORD>(GetWindowLong(info.hwndList, GWL_STYLE)) & WS_VSCROLL;
    SendMessage(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));
}

void ReadEntries(HWND combo, std::vector<std::wstring>& entries) {
    const LRESULT count = SendMessage(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT entry = 0; entry < count; ++entry) {
        wchar_t text[256] = L"";
        SendMessage(combo, CB_GETLBTEXT, static_cast<WPARAM>(entry),
                    reinterpret_cast<LPARAM>(text));
        entries.emplace_back(text);
    }
}

void FillComboBox(HWND combo, const std::vector<std::wstring>& entries) {
    for (const std::wstring& entry : entries)
        SendMessage(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    SendMessage(combo, CB_SETCURSEL, 0, 0);
}

void ReadRows(HWND list, Control& control) {
    const LRESULT count = SendMessage(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        wchar_t text[256] = L"";
        LVITEM item{};
        item.pszText = text;
        item.cchTextMax = 256;
        SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row),
                    reinterpret_cast<LPARAM>(&item));
        control.entries.emplace_back(text);
    }
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(
        reinterpret_cast<HIMAGELIST>(SendMessage(list, LVM_GETIMAGELIST, LVSIL_SMALL, 0)), &width,
        &height);
    control.rowImage = {width, height};
}

void FillListView(HWND list, const Control& control) {
    HIMAGELIST images = ImageList_Create(control.rowImage.cx, control.rowImage.cy, ILC_COLOR, 0, 1);
    SendMessage(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
    LVCOLUMN column{};
    column.mask = LVCF_WIDTH;
    column.cx = control.place.right - control.place.left;
    SendMessage(list, LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
    int row = 0;
    for (const std::wstring& entry : control.entries) {
        LVITEM item{};
        item.mask = LVIF_TEXT;
        item.iItem = row++;
        item.pszText = const_cast<wchar_t*>(entry.c_str());
        SendMessage(list, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void AddControl(HWND window, std::vector<Control>& controls) {
    wchar_t className[64] = L"";
    wchar_t text[256] = L"";
    GetClassName(window, className, 64);
    GetWindowText(window, text, 256);
    auto style = static_cast<DWORD>(GetWindowLong(window, GWL_STYLE));
    RECT place{};
    GetWindowRect(window, &place);
    std::vector<std::wstring> entries;
    if (std::wstring_view(className) == kComboBox) {
        ReadComboBox(window, style, place);
        ReadEntries(window, entries);
    }
    HWND page = GetParent(window);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&place), 2);
    controls.push_back({className, text, style,
                        static_cast<DWORD>(GetWindowLong(window, GWL_EXSTYLE)), place, entries,
                        SIZE{}});
    if (std::wstring_view(className) == WC_LISTVIEW) ReadRows(window, controls.back());
}

void PumpMessages() {
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessage(&message);
}

// The controls of a page, not the children that combo boxes and lists make for themselves.
std::vector<Control> ControlsOf(HWND page) {
    std::vector<Control> controls;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        AddControl(child, controls);
    return controls;
}

// As a page has one.
void AddMenuBar(HWND window) {
    SHMENUBARINFO bar{};
    bar.cbSize = sizeof(bar);
    bar.hwndParent = window;
    bar.dwFlags = SHCMBF_EMPTYBAR;
    bar.hInstRes = application.instance;
    SHCreateMenuBar(&bar);
}

HWND OpenBare(HWND main, const std::vector<Control>& controls) {
    RECT place{};
    GetWindowRect(main, &place);
    HWND window = CreateWindowEx(0, kBareClass, L"", WS_POPUP, place.left, place.top,
                                 place.right - place.left, place.bottom - place.top, main, nullptr,
                                 application.instance, nullptr);
    AddMenuBar(window);
    for (const Control& control : controls) {
        const RECT& at = control.place;
        HWND child =
            CreateWindowEx(control.extendedStyle, control.className.c_str(), control.text.c_str(),
                           control.style, at.left, at.top, at.right - at.left, at.bottom - at.top,
                           window, nullptr, application.instance, nullptr);
        SendMessage(child, WM_SETFONT, reinterpret_cast<WPARAM>(application.normalFont), 0);
        if (control.className == kComboBox) FillComboBox(child, control.entries);
        if (control.className == WC_LISTVIEW) FillListView(child, control);
    }
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    return window;
}

// The median times from the creation to the first paint; the closings are not timed.
Comparison CompareOpenings(HWND main, int row, const std::vector<Control>& controls) {
    std::vector<double> floors;
    std::vector<double> own;
    for (int round = 0; round < kRounds; ++round) {
        HWND bare = nullptr;
        floors.push_back(Milliseconds([&] { bare = OpenBare(main, controls); }));
        DestroyWindow(bare);
        PumpMessages();
        std::unique_ptr<SettingsPage> page;
        own.push_back(Milliseconds([&] { page.reset(CreatePage(main, row)); }));
        ClosePage(*page);
        PumpMessages();
    }
    return {Median(floors), Median(own)};
}

void ComparePages(HWND main) {
    for (int row = 0; row < kPageCount; ++row) {
        const std::unique_ptr<SettingsPage> page(CreatePage(main, row));
        const std::vector<Control> controls = ControlsOf(page->hwnd);
        ClosePage(*page);
        char name[64];
        std::snprintf(name, sizeof name, "page %d, %zu controls", row, controls.size());
        PrintRow(name, CompareOpenings(main, row, controls), 1.3);
    }
}

void MeasureSamples(HWND main) {
    HDC dc = GetDC(main);
    ItemSample sample(settingsStore);
    const WideString subject(L"Meeting with the whole team");
    const WideString location(L"Room 12");
    std::vector<double> times;
    for (int round = 0; round < 301; ++round) {
        times.push_back(Milliseconds([&] {
            sample.PaintAppointment(dc, 0, Scale(240), subject, location);
            sample.PaintTask(dc, 0, Scale(240), subject);
        }));
    }
    ReleaseDC(main, dc);
    std::printf("%-44s %21.3f\n", "both samples drawn, ms", Median(times));
}

} // namespace

int main() {
    application.instance = GetModuleHandle(nullptr);
    WNDCLASS bare{};
    bare.lpfnWndProc = DefWindowProc;
    bare.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    bare.lpszClassName = kBareClass;
    RegisterClass(&bare);
    HWND main = CreateMainWindow(application.instance);
    MakeRoomForMenuBar(main);
    PumpMessages();
    PrintHeading();
    ComparePages(main);
    MeasureSamples(main);
    DestroyWindow(main);
    return 0;
}
