#include "pages/special_events_page.h"

#include <gtest/gtest.h>

#include <string>

#include "files/category_store.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"
#include "ui/controls.h"

namespace {
constexpr wchar_t kEvents[] = L"Software\\Teskel\\Orvane\\SEvents";

class SpecialEventsPageTest : public PageFixture {
  protected:
    SpecialEventsPageTest() : PageFixture(6) {}

    HWND OpenWith(const char* categories) {
        const InstallFolder folder;
        folder.SetCategories(categories);
        settingsStore.Load(application.languageLibrary);
        categoryStore.LoadCategoryStore();
        return Open();
    }
};

TEST_F(SpecialEventsPageTest, ShowsNumbersForPositions) {
    HWND window = Open();
    for (const int id : {1203, 1211})
        EXPECT_EQ(EntriesOf(GetDlgItem(window, id)), L"1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16");
    const auto today = [](const wchar_t* picture) {
        wchar_t text[64] = L"";
        GetDateFormat(LOCALE_USER_DEFAULT, 0, nullptr, picture, text, 64);
        return L"|" + std::wstring(text);
    };
    EXPECT_EQ(EntriesOf(GetDlgItem(window, 1205)), LanguageText(IDS_SEVENTS_DATE_DEVICE).CStr() +
                                                       today(L"MM/dd") + today(L"MM/dd/yy") +
                                                       today(L"dd/MM") + today(L"dd/MM/yy"));
    Close();
}

TEST_F(SpecialEventsPageTest, ADaySpanIsTheNumberShown) {
    struct Case {
        uint32_t stored;
        const wchar_t* shown;
        uint32_t saved;
    };
    for (const Case& span : {Case{15, L"15", 15},
                             {30, L"30", 30},
                             {365, L"365", 365},
                             {45, L"30", 30},
                             {0xFFFFFFFF, L"30", 30},
                             {0, L"30", 30}}) {
        SetNumber(HKEY_CURRENT_USER, kEvents, L"SEApptsDaySpan", span.stored);
        HWND combo = GetDlgItem(Open(), 1209);
        EXPECT_EQ(EntriesOf(combo), L"15|30|60|120|365");
        EXPECT_EQ(TextOf(combo), span.shown);
        Close();
        EXPECT_EQ(settingsStore.SEApptsDaySpan.value, span.saved);
    }
    Choose(Open(), 1209, 3);
    Close();
    EXPECT_EQ(settingsStore.SEApptsDaySpan.value, 120u);
}

TEST_F(SpecialEventsPageTest, CategoriesAreKeptByName) {
    SetText(HKEY_CURRENT_USER, kEvents, L"AdditionalFilterCat1", L"Vanished");
    SetText(HKEY_CURRENT_USER, kEvents, L"AdditionalFilterCat2", L"wORK");
    SetText(HKEY_CURRENT_USER, kEvents, L"AdditionalFilterCat4", L"Family");
    HWND window = OpenWith("1\t0\tWork\n2\t0\tFamily\n3\t0\tBirthday & more\n");
    const std::wstring none = LanguageText(IDS_CHOICE_OFF).CStr();
    EXPECT_EQ(EntriesOf(GetDlgItem(window, 1213)), none + L"|Birthday & more|Family|Work");
    const int shown[] = {0, 3, 0, 2};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(SendDlgItemMessage(window, 1213 + 2 * i, CB_GETCURSEL, 0, 0), shown[i]) << i;
    }
    Choose(window, 1217, 1);
    SendDlgItemMessage(window, 1219, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Close();
    EXPECT_TRUE(settingsStore.AdditionalFilterCat1.value.IsEmpty());
    EXPECT_TRUE(settingsStore.AdditionalFilterCat2.value == L"Work");
    EXPECT_TRUE(settingsStore.AdditionalFilterCat3.value == L"Birthday & more");
    EXPECT_TRUE(settingsStore.AdditionalFilterCat4.value.IsEmpty());
}

TEST_F(SpecialEventsPageTest, ACategoryMayBeCalledAsTheEntryForNone) {
    SetText(HKEY_CURRENT_USER, kEvents, L"AdditionalFilterCat1", L"Off");
    SetText(HKEY_CURRENT_USER, kEvents, L"AdditionalFilterCat2", L"Vanished");
    HWND window = OpenWith("1\t0\tOff\n2\t0\tFamily\n");
    ASSERT_EQ(EntriesOf(GetDlgItem(window, 1213)), L"Off|Family|Off");
    const int shown[] = {2, 0, 0};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(SelectedIndex(window, static_cast<UINT>(1213 + 2 * i)), shown[i]) << i;
    Close();
    EXPECT_STREQ(settingsStore.AdditionalFilterCat1.value.CStr(), L"Off");
    EXPECT_TRUE(settingsStore.AdditionalFilterCat2.value.IsEmpty());
}
} // namespace
