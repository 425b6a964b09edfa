// The messages that programs send to a menu bar.
#include "menu_bar.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kMostButtons = 64; // Beyond any screen; keeps a wrong count harmless.

} // namespace

LRESULT MenuBar::HandleShellMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case SHCMBM_GETMENU:
        return reinterpret_cast<LRESULT>(menu_);
    case SHCMBM_GETSUBMENU: {
        const MenuBarItem* item = FindItem(static_cast<UINT>(lParam));
        return reinterpret_cast<LRESULT>(item ? item->popup : nullptr);
    }
    case SHCMBM_SETSUBMENU:
        return SetSubMenu(static_cast<UINT>(wParam), reinterpret_cast<HMENU>(lParam));
    case SHCMBM_OVERRIDEKEY:
        return OverrideKey(LOWORD(wParam), lParam);
    }
    return 0;
}

LRESULT MenuBar::HandleToolbarMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto id = static_cast<UINT>(wParam);
    switch (message) {
    case TB_SETIMAGELIST:
        return SetImages(reinterpret_cast<HIMAGELIST>(lParam));
    case TB_ADDBUTTONSA:
    case TB_ADDBUTTONSW:
        return AddButtons(wParam, reinterpret_cast<const TBBUTTON*>(lParam));
    case TB_BUTTONCOUNT:
        return static_cast<LRESULT>(items_.size());
    case TB_ENABLEBUTTON:
        return EnableItem(id, LOWORD(lParam) != 0);
    case TB_SETSTATE:
        return SetState(id, static_cast<BYTE>(lParam));
    case TB_GETSTATE: {
        const MenuBarItem* item = FindItem(id);
        return item ? item->state : -1;
    }
    case TB_GETITEMRECT:
        return GetPlace(wParam, reinterpret_cast<RECT*>(lParam));
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

MenuBarItem* MenuBar::FindItem(UINT id) {
    const auto found = std::ranges::find(items_, id, &MenuBarItem::command);
    return found == items_.end() ? nullptr : &*found;
}

// Gives the pop-up that was there before.
LRESULT MenuBar::SetSubMenu(UINT id, HMENU popup) {
    MenuBarItem* item = FindItem(id);
    return reinterpret_cast<LRESULT>(item ? std::exchange(item->popup, popup) : nullptr);
}

LRESULT MenuBar::OverrideKey(WORD key, LPARAM maskAndFlags) {
    const WORD mask = LOWORD(maskAndFlags);
    const WORD flags = HIWORD(maskAndFlags);
    auto found = std::ranges::find(overrides_, key, &KeyOverride::key);
    if (found == overrides_.end()) found = overrides_.insert(found, {key, 0});
    found->flags = static_cast<WORD>((found->flags & ~mask) | (flags & mask));
    return TRUE;
}

bool MenuBar::IsOverridden(WORD key) const {
    const auto found = std::ranges::find(overrides_, key, &KeyOverride::key);
    return found != overrides_.end() && (found->flags & SHMBOF_NODEFAULT);
}

// Icon buttons: what else the structures hold, such as texts, a menu bar does not show.
LRESULT MenuBar::AddButtons(size_t count, const TBBUTTON* buttons) {
    if (!buttons || count > kMostButtons) return FALSE;
    for (const TBBUTTON* button = buttons; button != buttons + count; ++button) {
        MenuBarItem item;
        item.image = std::max(button->iBitmap, 0);
        item.command = static_cast<UINT>(button->idCommand);
        item.state = button->fsState;
        items_.push_back(item);
    }
    Arrange();
    return TRUE;
}

LRESULT MenuBar::SetState(UINT id, BYTE state) {
    MenuBarItem* item = FindItem(id);
    if (!item) return FALSE;
    item->state = state;
    Arrange();
    return TRUE;
}

LRESULT MenuBar::EnableItem(UINT id, bool enable) {
    const MenuBarItem* item = FindItem(id);
    if (!item) return FALSE;
    const int others = item->state & ~TBSTATE_ENABLED;
    return SetState(id, static_cast<BYTE>(enable ? others | TBSTATE_ENABLED : others));
}

LRESULT MenuBar::GetPlace(size_t index, RECT* place) const {
    if (!place || index >= items_.size() || !items_[index].IsShown()) return FALSE;
    *place = items_[index].place;
    return TRUE;
}

// Gives the list before, which the program owns unless the bar loaded it itself.
LRESULT MenuBar::SetImages(HIMAGELIST images) {
    HIMAGELIST previous = std::exchange(images_, images);
    InvalidateRect(window_, nullptr, FALSE);
    return reinterpret_cast<LRESULT>(previous);
}
