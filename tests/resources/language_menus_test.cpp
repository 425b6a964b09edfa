// The menus and dialogs of the language libraries: those of English, with other words.
#include <cwctype>
#include <set>
#include <string>

#include "resource_ids.h"
#include "tests/resources/language_library.h"

namespace {

// A letter to choose a menu's entry by, which is its own among its neighbours.
void ExpectMnemonic(const std::wstring& entry, std::set<wint_t>& letters) {
    const size_t mark = entry.find(L'&');
    ASSERT_NE(mark, std::wstring::npos) << Narrow(entry);
    const wint_t letter = towupper(entry[mark + 1]);
    EXPECT_TRUE(iswalpha(letter) && letters.insert(letter).second) << Narrow(entry);
    EXPECT_EQ(entry.find(L'&', mark + 1), std::wstring::npos) << Narrow(entry);
}

// The commands of a menu up to a bracket, those of the menus within it too; "key" follows where an
// entry names one.
std::string ShapeOf(HMENU menu) {
    std::string shape;
    std::set<wint_t> letters;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        item.dwTypeData = text;
        item.cch = 256;
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item);
        if (item.fType & MFT_SEPARATOR) {
            shape += "- ";
            continue;
        }
        ExpectMnemonic(text, letters);
        shape += item.hSubMenu ? ShapeOf(item.hSubMenu) : std::to_string(item.wID);
        shape += wcschr(text, L'\t') ? " key " : " ";
    }
    return shape + ") ";
}

// What a dialog's template says of each control: id, style and place.
std::string ControlsOf(HMODULE library, int id) {
    HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
    const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(library, found));
    HWND dialog = CreateDialogIndirectW(nullptr, form, nullptr, nullptr);
    std::string controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place;
        GetWindowRect(child, &place);
        for (const LONG number : {GetWindowLongW(child, GWL_ID), GetWindowLongW(child, GWL_STYLE),
                                  place.left, place.top, place.right, place.bottom})
            controls += std::to_string(number) + " ";
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
        EXPECT_EQ(ShapeOf(menu.Get()), ShapeOf(english.Get()));
    }
    EXPECT_EQ(ControlsOf(library_.Get(), IDD_FILTER_NAME),
              ControlsOf(english_.Get(), IDD_FILTER_NAME));
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageMenus, testing::ValuesIn(kLanguages), LanguageTestName);

} // namespace
