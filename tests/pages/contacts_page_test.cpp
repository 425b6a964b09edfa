#include "pages/contacts_page.h"

#include "tests/support/page_fixture.h"
#include "ui/key_navigation.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kAlphabets[] = L"Software\\Teskel\\Orvane\\Contacts\\Alphabets";
constexpr int kLayout = 1201;
constexpr int kColumnWidth = 1205;
constexpr int kOpenItem = 1215;
constexpr int kList = 1219;
constexpr int kLanguages = 6; // Built-in alphabets, which come first.

class ContactsPageTest : public PageFixture {
  protected:
    ContactsPageTest() : PageFixture(4, L"\\Contacts") {}

    static void StoreAlphabet(const wchar_t* name, const wchar_t* alphabet) {
        SetText(HKEY_CURRENT_USER, kAlphabets, name, alphabet);
    }
    static std::wstring Stored(const wchar_t* name) {
        return GetText(HKEY_CURRENT_USER, kAlphabets, name).value_or(L"none");
    }
    void CloseAndSave() {
        Close();
        settingsStore.Save();
    }

    bool IsTicked(int row) const { return IsRowTicked(Control(kList), row); }
    void Tick(int row, bool isTicked) const { TickRow(Control(kList), row, isTicked); }
};

TEST_F(ContactsPageTest, KeepsWhatItCannotOffer) {
    const wchar_t* const names[] = {L"ContactsLayout",         L"CntctsTitleStruct",
                                    L"CntctsPhoneColumnWidth", L"CntctsBreakLineStyle",
                                    L"CntctsActiveSearchBar",  L"CntctsDPadActionOverride",
                                    L"CntctsIncldCounters",    L"CntctsOnClickActionOpenItem"};
    for (const wchar_t* name : names)
        Store(name, 4711);
    Store(L"CntctsActiveLanguages", 0x80000041);
    Open();
    EXPECT_EQ(TextOf(Control(kColumnWidth)), L"4711");
    EXPECT_TRUE(PageFixture::IsTicked(kOpenItem));
    CloseAndSave();
    for (const wchar_t* name : names)
        EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, key_, name), 4711u) << name;

    Store(L"CntctsPhoneColumnWidth", 0x80000000);
    Open();
    EXPECT_EQ(TextOf(Control(kColumnWidth)), L"2147483648");
    Choose(window_, kLayout, 0);
    Tap(window_, kOpenItem);
    Tick(1, true);
    Close();
    EXPECT_EQ(settingsStore.CntctsPhoneColumnWidth.value, 0x80000000u);
    EXPECT_EQ(settingsStore.ContactsLayout.value, 0u);
    EXPECT_EQ(settingsStore.CntctsOnClickActionOpenItem.value, 0u);
    EXPECT_EQ(settingsStore.CntctsActiveLanguages.value, 0x80000043u);

    Choose(Open(), kColumnWidth, 2);
    Close();
    EXPECT_EQ(settingsStore.CntctsPhoneColumnWidth.value, 60u) << "the number, not the entry";
}

TEST_F(ContactsPageTest, ListsAlphabetsGoodAndBad) {
    folder_->Write(L"CustomAlphabets\\Greek.txt", "Letters of Greece\nAB\nCD\nEF\n");
    folder_->Write(L"CustomAlphabets\\broken.TXT", "Only a name\n");
    folder_->Write(L"CustomAlphabets\\One.txt", "One\nX\n");
    folder_->Write(L"CustomAlphabets\\Picture.png", "A\nB\n");
    folder_->Write(L"CustomAlphabets\\.txt", "Nameless\nA\n");
    StoreAlphabet(L"0", L"Vanished");
    StoreAlphabet(L"1", L"gREEK");
    SetNumber(HKEY_CURRENT_USER, kAlphabets, L"2", 7);
    StoreAlphabet(L"3", L"");
    Open();
    const std::wstring rows = RowsOf(Control(kList));
    const std::wstring buttons = Text(IDS_ALPHABET_BUTTONS);
    EXPECT_EQ(rows.find(Text(IDS_ALPHABET_ENGLISH)), 0u);
    EXPECT_EQ(rows.substr(rows.find(L"|broken")),
              L"|broken (" + Text(IDS_ALPHABET_UNREADABLE) + L")|Letters of Greece (" + buttons +
                  L" 3)|One (" + buttons + L" 1)|Vanished (" + Text(IDS_ALPHABET_MISSING) + L")");
    const bool ticked[] = {false, true, false, true};
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(IsTicked(kLanguages + row), ticked[row]) << row;
    Tick(kLanguages, true);
    EXPECT_FALSE(IsTicked(kLanguages)) << "what cannot be read cannot be active";
    CloseAndSave();
    EXPECT_EQ(Stored(L"0"), L"Vanished") << "nothing was changed";
    EXPECT_TRUE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2"));

    Open();
    Tick(kLanguages + 2, true);
    Tick(kLanguages + 3, false);
    Close();
    EXPECT_TRUE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2")) << "not before the program's OK";
    settingsStore.Save();
    EXPECT_EQ(Stored(L"0") + L"|" + Stored(L"1"), L"Greek|One");
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2"));
}

TEST_F(ContactsPageTest, AnUnreadableAlphabetThatIsActiveStays) {
    folder_->Write(L"CustomAlphabets\\Bad.txt", "Only a name\n");
    folder_->Write(L"CustomAlphabets\\Good.txt", "Good\nA\n");
    StoreAlphabet(L"0", L"Bad");
    Open();
    EXPECT_TRUE(IsTicked(kLanguages));
    Tick(kLanguages + 1, true);
    CloseAndSave();
    EXPECT_EQ(Stored(L"0") + L"|" + Stored(L"1"), L"Bad|Good");
}

TEST_F(ContactsPageTest, NoAlphabetCanBeActiveWhileItIsUnknownWhichAre) {
    folder_->Write(L"CustomAlphabets\\Good.txt", "Good\nA\n");
    StoreAlphabet(L"0", L"Other");
    StandInResetCalls();
    StandInFailCall(kRegEnumValueCalls, 1, ERROR_ACCESS_DENIED);
    Open();
    StandInResetCalls();
    Tick(0, false);
    Tick(kLanguages, true);
    EXPECT_FALSE(IsTicked(0)) << "those that are built in are known";
    EXPECT_FALSE(IsTicked(kLanguages)) << "it would be lost";
    CloseAndSave();
    EXPECT_EQ(Stored(L"0"), L"Other");
}

TEST_F(ContactsPageTest, EnterTicksTheFocusedAlphabet) {
    Open();
    ShowTab(2);
    FocusFirstControl(window_);
    EXPECT_TRUE(IsTicked(0));
    SendMessage(GetFocus(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessage(GetFocus(), WM_KEYDOWN, VK_DOWN, 0);
    SendMessage(GetFocus(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_FALSE(IsTicked(0));
    EXPECT_TRUE(IsTicked(1));
    Close();
    EXPECT_EQ(settingsStore.CntctsActiveLanguages.value, 2u);
}
} // namespace
