#include "tests/resources/text_room.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "tests/resources/language_library.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/window_support.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {

// What a control keeps free of text, in units.
constexpr int kPushButton = 4;
constexpr int kBoxAndGap = 22;
constexpr int kEntryMargins = 8; // Of a drop-down list, beside its arrow.
constexpr int kRowMargins = 12;
constexpr int kPageEdge = 2; // Before a label that begins at the very edge of its page.

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessage(control, WM_GETFONT, 0, 0));
}

bool IsOfClass(HWND control, const wchar_t* name) {
    wchar_t className[64];
    GetClassName(control, className, 64);
    return lstrcmpi(className, name) == 0;
}

void ExpectLineToFit(HWND control, const std::wstring& line, int width) {
    EXPECT_LE(WrappedSize(FontOf(control), line, 0x7FFF).cx, width)
        << GetDlgCtrlID(control) << ": " << Narrow(line);
}

void ExpectLabelToFit(HWND label) {
    SIZE room = ClientSize(label);
    RECT place;
    GetWindowRect(label, &place);
    POINT start{place.left, place.top};
    ScreenToClient(GetParent(label), &start);
    if (start.x == 0) room.cx -= Scale(kPageEdge);
    ExpectToFit(FontOf(label), TextOf(label), room);
}

void ExpectButtonToFit(HWND button) {
    const LONG style = GetWindowLong(button, GWL_STYLE);
    const bool isBox = (style & BS_TYPEMASK) == BS_AUTOCHECKBOX;
    const int margins = Scale(isBox ? kBoxAndGap : kPushButton);
    ExpectLineToFit(button, TextOf(button), ClientSize(button).cx - margins);
}

void ExpectEntriesToFit(HWND combo) {
    const int room = ClientSize(combo).cx - GetSystemMetrics(SM_CXVSCROLL) - Scale(kEntryMargins);
    const std::wstring entries = EntriesOf(combo) + L"|";
    for (size_t start = 0, end; (end = entries.find(L'|', start)) != std::wstring::npos;
         start = end + 1)
        ExpectLineToFit(combo, entries.substr(start, end - start), room);
}

void ExpectRowsToFit(HWND list) {
    const int room =
        static_cast<int>(SendMessage(list, LVM_GETCOLUMNWIDTH, 0, 0)) - Scale(kRowMargins);
    wchar_t text[512];
    for (int row = 0; row < RowCount(list); ++row) {
        LVITEM item{};
        item.pszText = text;
        item.cchTextMax = 512;
        SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row),
                    reinterpret_cast<LPARAM>(&item));
        ExpectLineToFit(list, text, room);
    }
}

void ExpectTabsToFit(HWND strip) {
    const LRESULT last = SendMessage(strip, TCM_GETITEMCOUNT, 0, 0) - 1;
    RECT place{};
    SendMessage(strip, TCM_GETITEMRECT, static_cast<WPARAM>(last),
                reinterpret_cast<LPARAM>(&place));
    EXPECT_LE(place.right, ClientSize(strip).cx) << "tabs";
}

} // namespace

SIZE WrappedSize(HFONT font, const std::wstring& text, LONG width) {
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const SelectScope selected(dc.Get(), font);
    RECT place{0, 0, width, 0};
    DrawText(dc.Get(), text.c_str(), -1, &place, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return {place.right, place.bottom};
}

void ExpectToFit(HFONT font, const std::wstring& text, const SIZE& room) {
    const SIZE size = WrappedSize(font, text, room.cx);
    EXPECT_LE(size.cx, room.cx) << Narrow(text);
    EXPECT_LE(size.cy, room.cy) << Narrow(text);
}

void ExpectTextsToFit(HWND window, BOOL(WINAPI* isMeant)(HWND control)) {
    struct Kind {
        const wchar_t* className;
        void (*expectToFit)(HWND control);
    };
    constexpr Kind kKinds[] = {{L"Static", ExpectLabelToFit},
                               {L"Button", ExpectButtonToFit},
                               {L"ComboBox", ExpectEntriesToFit},
                               {WC_LISTVIEW, ExpectRowsToFit},
                               {WC_TABCONTROL, ExpectTabsToFit}};
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        for (const Kind& kind : kKinds) {
            if (isMeant(child) && IsOfClass(child, kind.className)) kind.expectToFit(child);
        }
    }
}
