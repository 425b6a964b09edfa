#include "tests/resources/text_room.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "tests/resources/language_library.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/window_support.h"
#include "ui/controls.h"

namespace {

// What a control keeps free of text, in units.
constexpr int kPushButton = 4;
constexpr int kBoxAndGap = 22;
constexpr int kEntryMargins = 8; // Of a drop-down list, beside its arrow.
constexpr int kRowMargins = 12;
constexpr int kPageEdge = 2; // Before a label that begins at the very edge of its page.

constexpr LONG kUnbounded = 0x7FFF;

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessage(control, WM_GETFONT, 0, 0));
}

bool IsOfClass(HWND control, const wchar_t* name) {
    wchar_t className[64];
    GetClassName(control, className, 64);
    return lstrcmpi(className, name) == 0;
}

void Report(const std::wstring& text, const SIZE& size, const SIZE& room, Misfits& misfits) {
    misfits.insert(Narrow(text) + ": " + std::to_string(size.cx) + " x " + std::to_string(size.cy) +
                   " in " + std::to_string(room.cx) + " x " + std::to_string(room.cy));
}

// A text that its control does not wrap.
void CheckLine(HWND control, const std::wstring& line, LONG width, Misfits& misfits) {
    const SIZE size = WrappedSize(FontOf(control), line, kUnbounded);
    if (size.cx > width) Report(line, size, {width, size.cy}, misfits);
}

void CheckLabel(HWND label, Misfits& misfits) {
    SIZE room = ClientSize(label);
    POINT start{};
    MapWindowPoints(label, GetParent(label), &start, 1);
    if (start.x == 0) room.cx -= Scale(kPageEdge);
    CheckText(FontOf(label), TextOf(label), room, misfits);
}

void CheckButton(HWND button, Misfits& misfits) {
    const LONG style = GetWindowLong(button, GWL_STYLE);
    const bool isBox = (style & BS_TYPEMASK) == BS_AUTOCHECKBOX;
    const int margins = Scale(isBox ? kBoxAndGap : kPushButton);
    CheckLine(button, TextOf(button), ClientSize(button).cx - margins, misfits);
}

// Texts that are parted by "|".
void CheckLines(HWND control, const std::wstring& lines, LONG width, Misfits& misfits) {
    std::wistringstream texts(lines);
    for (std::wstring text; std::getline(texts, text, L'|');)
        CheckLine(control, text, width, misfits);
}

void CheckEntries(HWND combo, Misfits& misfits) {
    const LONG room = ClientSize(combo).cx - GetSystemMetrics(SM_CXVSCROLL) - Scale(kEntryMargins);
    CheckLines(combo, EntriesOf(combo), room, misfits);
}

void CheckRows(HWND list, Misfits& misfits) {
    const auto column = static_cast<LONG>(SendMessage(list, LVM_GETCOLUMNWIDTH, 0, 0));
    CheckLines(list, RowsOf(list), column - Scale(kRowMargins), misfits);
}

void CheckTabs(HWND strip, Misfits& misfits) {
    const LRESULT last = SendMessage(strip, TCM_GETITEMCOUNT, 0, 0) - 1;
    RECT place{};
    SendMessage(strip, TCM_GETITEMRECT, static_cast<WPARAM>(last),
                reinterpret_cast<LPARAM>(&place));
    const SIZE room = ClientSize(strip);
    const bool hasArrows = FindWindowEx(strip, nullptr, UPDOWN_CLASS, nullptr) != nullptr;
    if (hasArrows || place.right > room.cx) Report(L"tabs", {place.right, room.cy}, room, misfits);
}

} // namespace

SIZE WrappedSize(HFONT font, const std::wstring& text, LONG width) {
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const SelectScope selected(dc.Get(), font);
    RECT place{0, 0, width, 0};
    DrawText(dc.Get(), text.c_str(), -1, &place, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return {place.right, place.bottom};
}

void CheckText(HFONT font, const std::wstring& text, const SIZE& room, Misfits& misfits) {
    const SIZE size = WrappedSize(font, text, room.cx);
    if (size.cx > room.cx || size.cy > room.cy) Report(text, size, room, misfits);
}

void CheckControls(HWND window, Misfits& misfits) {
    struct Kind {
        const wchar_t* className;
        void (*check)(HWND control, Misfits& misfits);
    };
    constexpr Kind kKinds[] = {{L"Static", CheckLabel},
                               {L"Button", CheckButton},
                               {L"ComboBox", CheckEntries},
                               {WC_LISTVIEW, CheckRows},
                               {WC_TABCONTROL, CheckTabs}};
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        for (const Kind& kind : kKinds) {
            if (IsWindowVisible(child) && IsOfClass(child, kind.className))
                kind.check(child, misfits);
        }
    }
}
