#include "menu_bar_content.h"

#include <cstring>
#include <iterator>

namespace {

// A menu-bar resource: this header, then `count` buttons.
struct BarHeader {
    WORD menuId;
    WORD count;
};

struct BarButton {
    short image;
    WORD command;
    WORD state;
    WORD style;
    WORD stringId;
    WORD data;
    WORD menuIndex; // NOMENU, or the position of its pop-up in the menu.
};

// What the resource holds in raw bytes, which need not be aligned.
template <typename Record>
bool ReadRecord(const BYTE*& next, const BYTE* end, Record& record) {
    if (static_cast<size_t>(end - next) < sizeof(Record)) return false;
    memcpy(&record, next, sizeof(Record));
    next += sizeof(Record);
    return true;
}

// A device without a keyboard marks no letters: "&Save" is shown as "Save", "&&" as "&".
std::wstring WithoutMnemonic(const wchar_t* text) {
    std::wstring shown;
    for (; *text; ++text) {
        if (*text == L'&' && *++text == L'\0') break;
        shown += *text;
    }
    return shown;
}

std::wstring LoadText(HINSTANCE module, UINT id) {
    wchar_t text[128] = L"";
    LoadStringW(module, id, text, std::size(text));
    return WithoutMnemonic(text);
}

std::wstring MenuItemText(HMENU menu, UINT position) {
    wchar_t text[128] = L"";
    GetMenuStringW(menu, position, text, std::size(text), MF_BYPOSITION);
    return WithoutMnemonic(text);
}

// A plain menu gives its pop-ups no id; then the position serves as one.
UINT MenuItemId(HMENU menu, UINT position, HMENU popup) {
    const UINT id = GetMenuItemID(menu, static_cast<int>(position));
    if (!popup) return id;
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID;
    GetMenuItemInfoW(menu, position, TRUE, &info);
    const bool usable = info.wID != 0 && info.wID <= 0xFFFE;
    return usable ? info.wID : position;
}

std::optional<MenuBarContent> LoadFromMenu(HINSTANCE module, UINT id) {
    MenuBarContent content;
    content.menu = LoadMenuW(module, MAKEINTRESOURCEW(id));
    if (!content.menu) return {};
    const int count = GetMenuItemCount(content.menu);
    for (UINT i = 0; i < static_cast<UINT>(count); ++i) {
        MenuBarItem item;
        item.popup = GetSubMenu(content.menu, static_cast<int>(i));
        item.text = MenuItemText(content.menu, i);
        item.command = MenuItemId(content.menu, i, item.popup);
        const UINT state = GetMenuState(content.menu, i, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED);
        if (state != 0) item.state = 0;
        content.items.push_back(item);
    }
    return content;
}

bool AddButton(MenuBarContent& content, HINSTANCE module, const BarButton& button) {
    MenuBarItem item;
    item.image = button.image;
    item.command = button.command;
    item.state = static_cast<BYTE>(button.state);
    if (button.stringId != 0) item.text = LoadText(module, button.stringId);
    if (button.menuIndex != NOMENU) {
        item.popup = GetSubMenu(content.menu, button.menuIndex);
        if (!item.popup) return false;
    }
    content.items.push_back(item);
    return true;
}

bool AddButtons(MenuBarContent& content, HINSTANCE module, const BYTE* next, const BYTE* end,
                WORD count) {
    for (WORD i = 0; i < count; ++i) {
        BarButton button;
        if (!ReadRecord(next, end, button) || !AddButton(content, module, button)) return false;
    }
    return true;
}

std::optional<MenuBarContent> LoadFromBarResource(HINSTANCE module, UINT id) {
    HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(id), RT_RCDATA);
    if (!resource) return {};
    const auto* next = static_cast<const BYTE*>(LockResource(LoadResource(module, resource)));
    const BYTE* end = next + SizeofResource(module, resource);
    BarHeader header;
    if (!ReadRecord(next, end, header)) return {};

    MenuBarContent content;
    content.menu = LoadMenuW(module, MAKEINTRESOURCEW(header.menuId));
    if (AddButtons(content, module, next, end, header.count)) return content;
    if (content.menu) DestroyMenu(content.menu);
    SetLastError(ERROR_INVALID_DATA);
    return {};
}

} // namespace

std::optional<MenuBarContent> LoadMenuBarContent(const SHMENUBARINFO& info) {
    if (info.dwFlags & SHCMBF_EMPTYBAR) return MenuBarContent{};
    if (info.dwFlags & SHCMBF_HMENU) return LoadFromMenu(info.hInstRes, info.nToolBarId);
    return LoadFromBarResource(info.hInstRes, info.nToolBarId);
}
