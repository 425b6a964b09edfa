#include "pages/special_events_page.h"

#include "files/category_store.h"
#include "tests/support/page_fixture.h"

namespace {
constexpr int kDateFormat = 1205;
constexpr int kDaySpan = 1209;
constexpr int kCategory1 = 1213; // Of four, each behind its label.

class SpecialEventsPageTest : public PageFixture {
  protected:
    SpecialEventsPageTest() : PageFixture(6, L"\\SEvents") {}

    void OpenWith(const char* categories) {
        folder_->SetCategories(categories);
        categoryStore.LoadCategoryStore();
        Open();
    }
};

TEST_F(SpecialEventsPageTest, OffersDatesAsTheyAreToday) {
    Open();
    const auto today = [](const wchar_t* picture) {
        wchar_t text[64] = L"";
        GetDateFormat(LOCALE_USER_DEFAULT, 0, nullptr, picture, text, 64);
        return L"|" + std::wstring(text);
    };
    EXPECT_EQ(EntriesOf(Control(kDateFormat)), Text(IDS_SEVENTS_DATE_DEVICE) + today(L"MM/dd") +
                                                   today(L"MM/dd/yy") + today(L"dd/MM") +
                                                   today(L"dd/MM/yy"));
}

TEST_F(SpecialEventsPageTest, ADaySpanIsTheNumberShown) {
    for (const uint32_t stored : {15u, 365u, 45u, 0u}) {
        Store(L"SEApptsDaySpan", stored);
        const uint32_t shown = stored == 15 || stored == 365 ? stored : 30;
        Open();
        EXPECT_EQ(TextOf(Control(kDaySpan)), std::to_wstring(shown));
        Close();
        EXPECT_EQ(settingsStore.SEApptsDaySpan.value, shown);
    }
}

TEST_F(SpecialEventsPageTest, CategoriesAreKeptByName) {
    Store(L"AdditionalFilterCat1", L"Vanished");
    Store(L"AdditionalFilterCat2", L"wORK");
    Store(L"AdditionalFilterCat3", L"Off"); // May be called as the entry for none.
    Store(L"AdditionalFilterCat4", L"Family");
    OpenWith("1\t0\tWork\n2\t0\tFamily\n3\t0\tBirthday & more\n4\t0\tOff\n");
    EXPECT_EQ(EntriesOf(Control(kCategory1)), L"Off|Birthday & more|Family|Off|Work");
    const int shown[] = {0, 4, 3, 2};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Chosen(kCategory1 + 2 * i), shown[i]) << i;
    SendMessage(Control(kCategory1 + 6), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Close();
    EXPECT_STREQ(settingsStore.AdditionalFilterCat1.value.CStr(), L"");
    EXPECT_STREQ(settingsStore.AdditionalFilterCat2.value.CStr(), L"Work");
    EXPECT_STREQ(settingsStore.AdditionalFilterCat3.value.CStr(), L"Off");
    EXPECT_STREQ(settingsStore.AdditionalFilterCat4.value.CStr(), L"");
}
} // namespace
