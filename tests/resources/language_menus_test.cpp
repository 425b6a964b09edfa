// The menus and dialogs of the language libraries: those of English, with other words.
#include <cwctype>
#include <set>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "tests/resources/language_library.h"

namespace {

struct MenuEntry {
    UINT command; // 0 for a separator.
    HMENU menu;   // Null for a command.
    std::wstring text;
};

std::vector<MenuEntry> Entries(HMENU menu) {
    std::vector<MenuEntry> entries;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        item.dwTypeData = text;
        item.cch = 256;
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item);
        const bool isCommand = !(item.fType & MFT_SEPARATOR) && !item.hSubMenu;
        entries.push_back({isCommand ? item.wID : 0, item.hSubMenu, text});
    }
    return entries;
}

// Each entry but a separator has one letter to choose it by, its own among its neighbours.
void ExpectDistinctMnemonics(const std::vector<MenuEntry>& entries) {
    std::set<wint_t> letters;
    for (const MenuEntry& entry : entries) {
        if (!entry.command && !entry.menu) continue;
        const std::string name = Narrow(entry.text);
        const size_t mark = entry.text.find(L'&');
        ASSERT_NE(mark, std::wstring::npos) << name;
        const wint_t letter = towupper(entry.text[mark + 1]);
        EXPECT_TRUE(iswalpha(letter)) << name;
        EXPECT_TRUE(letters.insert(letter).second) << name;
        EXPECT_EQ(entry.text.find(L'&', mark + 1), std::wstring::npos) << name;
    }
}

// Entry by entry, and so in the menus below; a key's name after a tab where English has one.
void ExpectLikeEnglish(HMENU menu, HMENU english) {
    const std::vector<MenuEntry> entries = Entries(menu);
    const std::vector<MenuEntry> wanted = Entries(english);
    ASSERT_EQ(entries.size(), wanted.size());
    ExpectDistinctMnemonics(entries);
    for (size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].command, wanted[i].command) << Narrow(wanted[i].text);
        EXPECT_EQ(entries[i].text.find(L'\t') == std::wstring::npos,
                  wanted[i].text.find(L'\t') == std::wstring::npos);
        ASSERT_EQ(!entries[i].menu, !wanted[i].menu);
        if (entries[i].menu) ExpectLikeEnglish(entries[i].menu, wanted[i].menu);
    }
}

// What a dialog's template says of each control: class, id, style and place.
std::vector<std::wstring> Controls(HMODULE library, int id) {
    HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!found) return {};
    const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(library, found));
    HWND dialog = CreateDialogIndirectW(nullptr, form, nullptr, nullptr);
    std::vector<std::wstring> controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[64];
        GetClassNameW(child, name, 64);
        RECT place;
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
        std::wstring control = name;
        for (const LONG number :
             {static_cast<LONG>(GetDlgCtrlID(child)), GetWindowLongW(child, GWL_STYLE), place.left,
              place.top, place.right, place.bottom})
            control += L" " + std::to_wstring(number);
        controls.push_back(control);
    }
    DestroyWindow(dialog);
    return controls;
}

using LanguageMenus = LanguageLibrary;

TEST_P(LanguageMenus, AreThoseOfEnglish) {
    for (const int id : {IDM_MAIN, IDM_FONTS}) {
        const UniqueMenu menu(LoadMenuW(library_.Get(), MAKEINTRESOURCEW(id)));
        const UniqueMenu english(LoadMenuW(english_.Get(), MAKEINTRESOURCEW(id)));
        ASSERT_TRUE(menu) << id;
        ExpectLikeEnglish(menu.Get(), english.Get());
    }
}

TEST_P(LanguageMenus, ComeWithTheDialogOfEnglish) {
    const std::vector<std::wstring> controls = Controls(english_.Get(), IDD_FILTER_NAME);
    EXPECT_EQ(controls.size(), 4U);
    EXPECT_EQ(Controls(library_.Get(), IDD_FILTER_NAME), controls);
}

// What the program counts on.
TEST(EnglishMenus, HaveTheProgramsCommands) {
    const UniqueModule english = LoadLanguage("OVEngRc");
    const auto commands = [](HMENU menu, int popUp) {
        std::vector<UINT> numbers;
        for (const MenuEntry& entry : Entries(GetSubMenu(menu, popUp)))
            numbers.push_back(entry.command);
        return numbers;
    };
    const UniqueMenu menu(LoadMenuW(english.Get(), MAKEINTRESOURCEW(IDM_MAIN)));
    EXPECT_EQ(GetMenuItemCount(menu.Get()), 2);
    EXPECT_EQ(commands(menu.Get(), 0), (std::vector<UINT>{IDOK, IDCANCEL}));
    EXPECT_EQ(commands(menu.Get(), 1), (std::vector<UINT>{IDC_EXPORT_BACKUP, 0, IDC_IMPORT_BACKUP,
                                                          0, IDC_ABOUT, 0, IDC_OPEN_OPTIONS}));
    const UniqueMenu fonts(LoadMenuW(english.Get(), MAKEINTRESOURCEW(IDM_FONTS)));
    EXPECT_EQ(commands(fonts.Get(), 0), (std::vector<UINT>{IDC_SAME_SIZE}));
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageMenus, testing::ValuesIn(kLanguages), LanguageTestName);

} // namespace
