#include "ui/key_navigation.h"

#include <commctrl.h>

#include <initializer_list>

#include "ui/button_strip.h"
#include "ui/colour_surface.h"

namespace {
enum class ControlKind {
    Other,
    Button,
    ButtonStrip,
    ColourSurface,
    Combo,
    Edit,
    ListView,
    ListBox,
    TabStrip,
    TrackBar,
};

ControlKind KindOf(HWND control) {
    constexpr struct {
        const wchar_t* className;
        ControlKind kind;
    } kClasses[] = {
        {L"Button", ControlKind::Button},
        {L"ComboBox", ControlKind::Combo},
        {L"Edit", ControlKind::Edit},
        {WC_LISTVIEW, ControlKind::ListView},
        {L"ListBox", ControlKind::ListBox},
        {WC_TABCONTROL, ControlKind::TabStrip},
        {kButtonStripClass, ControlKind::ButtonStrip},
        {kColourSurfaceClass, ControlKind::ColourSurface},
        {TRACKBAR_CLASS, ControlKind::TrackBar},
    };
    wchar_t name[64];
    if (!GetClassName(control, name, 64)) return ControlKind::Other;
    for (const auto& entry : kClasses) {
        if (lstrcmpi(name, entry.className) == 0) return entry.kind;
    }
    return ControlKind::Other;
}

// The control of `root` that a window is or belongs to: an edit field inside a combo box stands
// for the combo box. Null for a window outside.
HWND ControlOf(HWND root, HWND window) {
    while (window && GetParent(window) != root)
        window = GetParent(window);
    return window;
}

bool TakesFocus(HWND control) {
    const auto style = static_cast<DWORD>(GetWindowLong(control, GWL_STYLE));
    if (!(style & WS_VISIBLE) || (style & WS_DISABLED)) return false;
    return (style & WS_TABSTOP) || KindOf(control) == ControlKind::TabStrip;
}

HWND NextInRing(HWND root, HWND control, bool forward) {
    HWND next = GetWindow(control, forward ? GW_HWNDNEXT : GW_HWNDPREV);
    return next ? next : GetWindow(GetWindow(root, GW_CHILD), forward ? GW_HWNDFIRST : GW_HWNDLAST);
}

// A list without a focused row would show no focus at all.
void FocusFirstRow(HWND list) {
    if (SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) >= 0) return;
    LVITEM item{};
    item.state = item.stateMask = LVIS_FOCUSED;
    SendMessage(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
}

void GiveFocus(HWND control) {
    SetFocus(control);
    const ControlKind kind = KindOf(control);
    if (kind == ControlKind::ListView) FocusFirstRow(control);
    // A field entered by key is typed over, as everywhere on the device.
    if (kind == ControlKind::Edit) SendMessage(control, EM_SETSEL, 0, -1);
}

// A list of rows leaves Left and Right to the keys: they part from it with its row selected.
bool IsListOfRows(HWND control) {
    return KindOf(control) == ControlKind::ListView &&
           (GetWindowLong(control, GWL_STYLE) & LVS_TYPEMASK) == LVS_REPORT;
}

// The arrow keys select each row that they come to, but the one that they enter a list by.
void SelectMarkedRow(HWND list) {
    if (SendMessage(list, LVM_GETSELECTEDCOUNT, 0, 0) > 0) return;
    const LRESULT row = SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
    LVITEM item{};
    item.state = item.stateMask = LVIS_SELECTED;
    if (row >= 0)
        SendMessage(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                    reinterpret_cast<LPARAM>(&item));
}

void MoveFocus(HWND root, HWND control, bool forward) {
    for (HWND next = NextInRing(root, control, forward); next && next != control;
         next = NextInRing(root, next, forward)) {
        if (TakesFocus(next)) {
            GiveFocus(next);
            if (IsListOfRows(next)) SelectMarkedRow(next);
            return;
        }
    }
}

void SwitchTab(HWND strip, bool forward) {
    const auto count = static_cast<int>(SendMessage(strip, TCM_GETITEMCOUNT, 0, 0));
    const auto current = static_cast<int>(SendMessage(strip, TCM_GETCURSEL, 0, 0));
    if (count < 2) return;
    const int next = (current + (forward ? 1 : count - 1)) % count;
    // TCM_SETCURFOCUS notifies the page as a tap does; TCM_SETCURSEL would not.
    SendMessage(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(next), 0);
    // From another control: that one is hidden now, and its tab's first one follows it.
    HWND focus = GetFocus();
    if (focus != strip && !(focus && IsWindowVisible(focus) && ControlOf(GetParent(strip), focus)))
        FocusFirstControl(GetParent(strip));
}

HWND FindTabStrip(HWND root) {
    HWND child = GetWindow(root, GW_CHILD);
    while (child && KindOf(child) != ControlKind::TabStrip)
        child = GetWindow(child, GW_HWNDNEXT);
    return child;
}

// Left and Right on a closed drop-down list; its page is told as after a choice by tap.
void StepCombo(HWND root, HWND combo, bool forward) {
    const auto count = static_cast<int>(SendMessage(combo, CB_GETCOUNT, 0, 0));
    const auto current = static_cast<int>(SendMessage(combo, CB_GETCURSEL, 0, 0));
    const int next = forward ? current + 1 : current - 1;
    if (next < 0 || next >= count) return;
    SendMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(next), 0);
    const auto id = static_cast<UINT>(GetDlgCtrlID(combo));
    for (const UINT notification : {CBN_SELENDOK, CBN_SELCHANGE}) {
        // A page may answer a choice with a message, and be closed behind it.
        if (!IsWindow(combo)) return;
        SendMessage(root, WM_COMMAND, MAKEWPARAM(id, notification),
                    reinterpret_cast<LPARAM>(combo));
    }
}

bool IsDropped(HWND control) {
    return KindOf(control) == ControlKind::Combo && SendMessage(control, CB_GETDROPPEDSTATE, 0, 0);
}

// The row of a list that Up (or Down) cannot leave any further: its first (or last).
bool IsAtListEdge(HWND list, bool forward) {
    const bool isListBox = KindOf(list) == ControlKind::ListBox;
    const auto count =
        static_cast<int>(SendMessage(list, isListBox ? LB_GETCOUNT : LVM_GETITEMCOUNT, 0, 0));
    if (count < 1) return true;
    const auto row = static_cast<int>(
        isListBox ? SendMessage(list, LB_GETCARETINDEX, 0, 0)
                  : SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    if (isListBox) return row == (forward ? count - 1 : 0);
    if (row < 0) return false;
    // Some list views name a row past the last one instead of none.
    const auto next = static_cast<int>(SendMessage(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row),
                                                   forward ? LVNI_BELOW : LVNI_ABOVE));
    return next < 0 || next >= count;
}

// A key that the mark of a colour surface has no way for leaves it.
bool OnSurfaceKey(HWND root, HWND surface, WPARAM key) {
    if (!SendMessage(surface, kMessageStepColour, key, 0))
        MoveFocus(root, surface, key == VK_DOWN || key == VK_RIGHT);
    return true;
}

bool OnUpOrDown(HWND root, HWND control, bool forward) {
    const ControlKind kind = KindOf(control);
    if (kind == ControlKind::ColourSurface)
        return OnSurfaceKey(root, control, forward ? VK_DOWN : VK_UP);
    const bool isList = kind == ControlKind::ListView || kind == ControlKind::ListBox;
    if (kind == ControlKind::Other || (isList && !IsAtListEdge(control, forward))) return false;
    MoveFocus(root, control, forward);
    return true;
}

bool OnLeftOrRight(HWND root, HWND control, HWND focus, bool forward) {
    switch (KindOf(control)) {
    case ControlKind::TabStrip:
        SwitchTab(control, forward);
        return true;
    case ControlKind::Combo:
        if (focus != control) return false; // The keys move the caret of its edit field.
        StepCombo(root, control, forward);
        return true;
    case ControlKind::ButtonStrip:
        if (!SendMessage(control, kMessageStepButton, forward, 0))
            MoveFocus(root, control, forward);
        return true;
    case ControlKind::ColourSurface:
        return OnSurfaceKey(root, control, forward ? VK_RIGHT : VK_LEFT);
    case ControlKind::ListView:
        if (!IsListOfRows(control)) return false;
        MoveFocus(root, control, forward);
        return true;
    case ControlKind::Button:
        MoveFocus(root, control, forward);
        return true;
    default:
        return false;
    }
}

bool OnEnter(HWND control) {
    switch (KindOf(control)) {
    case ControlKind::Button:
    case ControlKind::ButtonStrip:
        SendMessage(control, BM_CLICK, 0, 0);
        // A PC's box that changes draws itself without its focus.
        InvalidateRect(control, nullptr, TRUE);
        return true;
    case ControlKind::Combo:
        SendMessage(control, CB_SHOWDROPDOWN, TRUE, 0);
        return true;
    case ControlKind::Edit:
        return true; // A single line has no use for it but a beep.
    default:
        return false;
    }
}

bool OnTab(HWND root, HWND control) {
    const bool forward = GetKeyState(VK_SHIFT) >= 0;
    HWND strip = GetKeyState(VK_CONTROL) < 0 ? FindTabStrip(root) : nullptr;
    if (strip)
        SwitchTab(strip, forward);
    else
        MoveFocus(root, control, forward);
    return true;
}
// The window itself has the focus, as after the focused control was hidden: any key that moves
// begins at the first control.
bool OnWindowKey(HWND root, WPARAM key) {
    const bool moves = key == VK_TAB || key == VK_RETURN || (key >= VK_LEFT && key <= VK_DOWN);
    if (moves) FocusFirstControl(root);
    return moves;
}
} // namespace

bool TranslateNavigationKey(HWND root, const MSG& message) {
    if (message.message != WM_KEYDOWN || !root) return false;
    if (message.hwnd == root) return OnWindowKey(root, message.wParam);
    HWND control = ControlOf(root, message.hwnd);
    if (!control) return false;
    if (message.wParam == VK_TAB) return OnTab(root, control);
    if (IsDropped(control)) return false; // The open list has the keys.
    switch (message.wParam) {
    case VK_UP:
    case VK_DOWN:
        return OnUpOrDown(root, control, message.wParam == VK_DOWN);
    case VK_LEFT:
    case VK_RIGHT:
        return OnLeftOrRight(root, control, message.hwnd, message.wParam == VK_RIGHT);
    case VK_RETURN:
        return OnEnter(control);
    default:
        return false;
    }
}

void FocusFirstControl(HWND root) {
    HWND strip = nullptr;
    for (HWND child = GetWindow(root, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!TakesFocus(child)) continue;
        if (KindOf(child) != ControlKind::TabStrip) {
            GiveFocus(child);
            return;
        }
        strip = child;
    }
    if (strip) SetFocus(strip);
}
