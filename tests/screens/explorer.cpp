#include "tests/screens/explorer.h"

#include <aygshell.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/window_support.h"
#include "ui/button_strip.h"
#include "ui/colour_surface.h"
#include "ui/list_items.h"

namespace {
constexpr int kPages = 12;
constexpr int kMostKeys = 500; // In one place; the largest ring of controls has not a tenth.
constexpr int kMessageText = 0xFFFF;

// The window's own control that a window is or belongs to.
HWND ControlOf(HWND window, HWND inside) {
    if (!IsChild(window, inside)) return nullptr;
    while (GetParent(inside) != window)
        inside = GetParent(inside);
    return inside;
}

bool IsMessageBox(HWND window) {
    return GetDlgItem(window, kMessageText) != nullptr;
}

bool CanBePressed(HWND control) {
    const int id = GetDlgCtrlID(control);
    const std::wstring name = ClassOf(control);
    return id != IDOK && id != IDCANCEL && (name == L"Button" || name == kButtonStripClass);
}

bool IsBox(HWND control) {
    return ClassOf(control) == L"Button" &&
           (GetWindowLong(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX;
}

// Dialogs made from templates share a class; their controls' ids tell them apart.
std::wstring NameOf(HWND window) {
    std::wstring name = ClassOf(window);
    if (name != L"#32770") return name;
    for (HWND control : ChildrenOf(window))
        name += L" " + std::to_wstring(GetDlgCtrlID(control));
    return name;
}
} // namespace

HWND StripOf(HWND window) {
    return FindWindowEx(window, nullptr, WC_TABCONTROL, nullptr);
}

int TabOf(HWND window) {
    HWND strip = StripOf(window);
    return strip ? static_cast<int>(SendMessage(strip, TCM_GETCURSEL, 0, 0)) : 0;
}

std::string Explorer::Place(HWND window) const {
    const std::wstring name = NameOf(window);
    std::string place(name.begin(), name.end());
    place += " tab " + std::to_string(TabOf(window));
    if (HWND focus = ControlOf(window, program_.Focus()))
        place += ", focus on " + std::to_string(GetDlgCtrlID(focus));
    return place;
}

HWND Explorer::Focused(HWND window) {
    HWND focus = program_.Focus();
    HWND control = ControlOf(window, focus);
    const bool isFound = control && IsWindowVisible(focus) && IsWindowEnabled(control);
    EXPECT_TRUE(isFound) << Place(window);
    return isFound ? control : nullptr;
}

void Explorer::Leave(HWND control, bool forward) {
    const bool isList = IsListView(control);
    program_.Press(forward ? (isList ? VK_RIGHT : VK_DOWN) : (isList ? VK_LEFT : VK_UP));
}

void Explorer::FocusByKeys(HWND window, HWND control) {
    for (int i = 0; i < kMostKeys; ++i) {
        HWND focused = Focused(window);
        if (focused == control || !focused) return;
        Leave(focused, true);
    }
    ADD_FAILURE() << "never comes to " << GetDlgCtrlID(control) << " of " << Place(window);
}

void Explorer::VisitProgram() {
    ASSERT_TRUE(program_.Main());
    Look(program_.Main());
    VisitPages();
    VisitMenuEntry(program_.Main(), VK_F1, 1); // The first saves and closes.
    for (int entry = 0; entry < 3; ++entry)
        VisitMenuEntry(program_.Main(), VK_F2, entry);
}

// The list shows its pages in rows and columns, which the arrow keys go through.
void Explorer::VisitPages() {
    HWND main = program_.Main();
    HWND list = FindWindowEx(main, nullptr, WC_LISTVIEW, nullptr);
    for (int row = 0; row < kPages; ++row) {
        for (int key = 0; key < kPages && FocusedRow(list) != row; ++key) {
            const int before = FocusedRow(list);
            program_.Press(VK_RIGHT);
            if (FocusedRow(list) != before) continue;
            program_.Press(VK_DOWN);
            for (int i = 0; i < kPages; ++i)
                program_.Press(VK_LEFT);
        }
        ASSERT_EQ(FocusedRow(list), row);
        program_.Press(VK_RETURN);
        HWND page = program_.Active();
        ASSERT_NE(page, main) << row;
        Visit(page);
        if (IsWindow(page)) program_.Post(page, WM_COMMAND, IDOK);
        EXPECT_FALSE(IsWindow(page)) << row;
        EXPECT_EQ(program_.Focus(), list) << row;
    }
}

void Explorer::VisitMenuEntry(HWND window, WORD softKey, int entry) {
    program_.PressSoftKey(softKey);
    ASSERT_TRUE(program_.HasOpenMenu());
    for (int i = 0; i < entry; ++i)
        program_.Press(VK_DOWN);
    program_.Press(VK_RETURN);
    EXPECT_FALSE(program_.HasOpenMenu());
    EXPECT_NE(program_.Active(), window);
    VisitOpened(window);
}

void Explorer::Visit(HWND window) {
    if (IsMessageBox(window)) {
        EXPECT_EQ(ClassOf(program_.Focus()), L"Button");
        return;
    }
    visited.insert(NameOf(window));
    HWND strip = StripOf(window);
    const auto tabs = strip ? static_cast<int>(SendMessage(strip, TCM_GETITEMCOUNT, 0, 0)) : 1;
    for (int tab = 0; tab < tabs && IsWindow(window); ++tab) {
        if (tab > 0) {
            FocusByKeys(window, strip);
            program_.Press(VK_RIGHT);
            VisitOpened(window); // What the tab before showed may be refused.
        }
        ASSERT_EQ(TabOf(window), tab) << Place(window);
        VisitTab(window);
    }
    if (SendMessage(SHFindMenuBar(window), SHCMBM_GETMENU, 0, 0)) VisitMenuEntry(window, VK_F1, 0);
}

void Explorer::VisitTab(HWND window) {
    Look(window);
    for (HWND control : ChildrenOf(window)) {
        if (IsListView(control) && IsOperable(control)) VisitRows(window, control);
    }
    if (IsWindow(window)) PressButtons(window);
}

// Down goes from row to row and leaves the last one, Up comes back and leaves the first.
void Explorer::VisitRows(HWND window, HWND list) {
    FocusByKeys(window, list);
    // The list that has the focus from the start is the one whose row is only marked.
    if (SelectedRow(list) < 0) {
        program_.Press(VK_RIGHT);
        FocusByKeys(window, list);
    }
    for (int i = 0; i < kMostKeys && FocusedRow(list) > 0; ++i)
        program_.Press(VK_UP);
    for (int row = 0; row < RowCount(list) && IsWindow(window); ++row) {
        ASSERT_EQ(Focused(window), list) << Place(window);
        ASSERT_EQ(FocusedRow(list), row) << Place(window);
        EXPECT_EQ(SelectedRow(list), row) << Place(window);
        Look(window);
        PressButtons(window);
        if (!IsWindow(window) || !IsOperable(list)) return;
        FocusByKeys(window, list);
        row = FocusedRow(list); // It may have been moved.
        program_.Press(VK_DOWN);
        VisitOpened(window); // What the row showed may be refused.
    }
    EXPECT_NE(Focused(window), list) << "trapped in " << Place(window);
    program_.Press(VK_UP);
    EXPECT_EQ(Focused(window), list) << Place(window);
}

void Explorer::Look(HWND window) {
    Sight sight;
    for (HWND control : ChildrenOf(window))
        sight.emplace_back(GetDlgCtrlID(control), IsShown(control), IsOperable(control));
    if (sights_.emplace(NameOf(window) + std::to_wstring(TabOf(window)), sight).second)
        OnSight(window);
}

// Boxes are ticked, what opens is visited, choosers show their menus.
void Explorer::PressButtons(HWND window) {
    for (HWND control : ChildrenOf(window)) {
        if (!IsWindow(control) || !IsOperable(control) || !CanBePressed(control)) continue;
        if (IsBox(control) && !ticks_) continue;
        if (!pressed_.emplace(NameOf(window), TabOf(window), GetDlgCtrlID(control)).second)
            continue;
        FocusByKeys(window, control);
        program_.Press(VK_RETURN);
        VisitOpened(window);
        if (!IsWindow(window)) return;
        Focused(window);
        Look(window);
        if (IsBox(control)) program_.Press(VK_RETURN); // As it was.
    }
}

void Explorer::VisitOpened(HWND window) {
    if (program_.HasOpenMenu()) {
        program_.Press(VK_DOWN);
        program_.Press(VK_ESCAPE);
        EXPECT_FALSE(program_.HasOpenMenu()) << Place(window);
        return;
    }
    HWND opened = program_.Active();
    if (!opened || opened == window || !IsWindow(window)) return;
    Visit(opened);
    CloseOpened(opened);
    // A message may follow a dialog.
    if (program_.Active() != window && program_.Active() != opened) VisitOpened(window);
}

void Explorer::CloseOpened(HWND opened) {
    if (!IsWindow(opened)) return;
    const std::string place = Place(opened);
    program_.Press(VK_ESCAPE);
    if (IsWindow(opened) && IsMessageBox(opened)) { // A question without Cancel: the last answer.
        program_.Press(VK_RIGHT);
        program_.Press(VK_RETURN);
    }
    EXPECT_FALSE(IsWindow(opened)) << place;
    if (IsWindow(opened)) program_.Post(opened, WM_COMMAND, IDCANCEL);
}
