#include "pages/contacts_page.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/include/stand_in.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"
#include "ui/key_navigation.h"
#include "ui/list_items.h"

namespace {
constexpr wchar_t kContacts[] = L"Software\\Teskel\\Orvane\\Contacts";
constexpr wchar_t kAlphabets[] = L"Software\\Teskel\\Orvane\\Contacts\\Alphabets";
constexpr int kList = 1219;
constexpr int kLanguages = 6; // Built-in alphabets, which come first.

class ContactsPageTest : public PageFixture {
  protected:
    ContactsPageTest() : PageFixture(4) {}

    void SetUp() override {
        PageFixture::SetUp();
        folder_ = std::make_unique<InstallFolder>();
    }

    void TearDown() override {
        folder_.reset();
        PageFixture::TearDown();
    }

    // Nothing is changed, but every key that the program keeps is there.
    void OpenAndSave() {
        Open();
        Close();
        settingsStore.Save();
    }

    HWND List() const { return GetDlgItem(page_->hwnd, kList); }

    bool IsTicked(int row) const { return IsRowTicked(List(), row); }
    void Tick(int row, bool isTicked) const { TickRow(List(), row, isTicked); }

    std::unique_ptr<InstallFolder> folder_;
};

TEST_F(ContactsPageTest, StoresNothingThatWasNotChanged) {
    OpenAndSave();
    const std::wstring below = std::wstring(kContacts) + L"\\";
    for (const auto& [name, value] : GetTree(HKEY_CURRENT_USER)) {
        if (name.starts_with(below)) {
            EXPECT_EQ(value.type, static_cast<DWORD>(REG_NONE)) << testing::PrintToString(name);
        }
    }
}

TEST_F(ContactsPageTest, KeepsWhatItCannotOffer) {
    const wchar_t* const names[] = {L"ContactsLayout",         L"CntctsTitleStruct",
                                    L"CntctsPhoneColumnWidth", L"CntctsBreakLineStyle",
                                    L"CntctsActiveSearchBar",  L"CntctsDPadActionOverride",
                                    L"CntctsIncldCounters",    L"CntctsOnClickActionOpenItem"};
    for (const wchar_t* name : names)
        SetNumber(HKEY_CURRENT_USER, kContacts, name, 4711);
    SetNumber(HKEY_CURRENT_USER, kContacts, L"CntctsActiveLanguages", 0x80000041);
    HWND window = Open();
    EXPECT_EQ(TextOf(GetDlgItem(window, 1205)), L"4711");
    EXPECT_EQ(IsDlgButtonChecked(window, 1215), 1u);
    Close();
    settingsStore.Save();
    for (const wchar_t* name : names)
        EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kContacts, name), 4711u) << name;

    SetNumber(HKEY_CURRENT_USER, kContacts, L"CntctsPhoneColumnWidth", 0x80000000);
    window = Open();
    EXPECT_EQ(TextOf(GetDlgItem(window, 1205)), L"2147483648");
    Choose(window, 1201, 0);
    Tap(window, 1215);
    Tick(1, true);
    Close();
    EXPECT_EQ(settingsStore.CntctsPhoneColumnWidth.value, 0x80000000u);
    EXPECT_EQ(settingsStore.ContactsLayout.value, 0u);
    EXPECT_EQ(settingsStore.CntctsOnClickActionOpenItem.value, 0u);
    EXPECT_EQ(settingsStore.CntctsActiveLanguages.value, 0x80000043u);

    Choose(Open(), 1205, 2);
    Close();
    EXPECT_EQ(settingsStore.CntctsPhoneColumnWidth.value, 60u) << "the number, not the entry";
}

TEST_F(ContactsPageTest, ListsAlphabetsGoodAndBad) {
    folder_->Write(L"CustomAlphabets\\Greek.txt", "Letters of Greece\nAB\nCD\nEF\n");
    folder_->Write(L"CustomAlphabets\\broken.TXT", "Only a name\n");
    folder_->Write(L"CustomAlphabets\\One.txt", "One\nX\n");
    folder_->Write(L"CustomAlphabets\\Picture.png", "A\nB\n");
    folder_->Write(L"CustomAlphabets\\.txt", "Nameless\nA\n");
    SetText(HKEY_CURRENT_USER, kAlphabets, L"0", L"Vanished");
    SetText(HKEY_CURRENT_USER, kAlphabets, L"1", L"gREEK");
    SetNumber(HKEY_CURRENT_USER, kAlphabets, L"2", 7);
    SetText(HKEY_CURRENT_USER, kAlphabets, L"3", L"");
    Open();
    const std::wstring rows = RowsOf(List());
    const std::wstring unreadable = LanguageText(IDS_ALPHABET_UNREADABLE).CStr();
    const std::wstring missing = LanguageText(IDS_ALPHABET_MISSING).CStr();
    const std::wstring buttons = LanguageText(IDS_ALPHABET_BUTTONS).CStr();
    EXPECT_EQ(rows.substr(rows.find(L"|broken")),
              L"|broken (" + unreadable + L")|Letters of Greece (" + buttons + L" 3)|One (" +
                  buttons + L" 1)|Vanished (" + missing + L")");
    EXPECT_EQ(rows.find(LanguageText(IDS_ALPHABET_ENGLISH).CStr()), 0u);
    const bool ticked[] = {false, true, false, true};
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(IsTicked(kLanguages + row), ticked[row]) << row;
    Tick(kLanguages, true);
    EXPECT_FALSE(IsTicked(kLanguages)) << "what cannot be read cannot be active";
    Close();
    settingsStore.Save();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"0"), L"Vanished") << "nothing was changed";
    EXPECT_TRUE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2"));

    Open();
    Tick(kLanguages + 2, true);
    Tick(kLanguages + 3, false);
    Close();
    EXPECT_TRUE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2")) << "not before the program's OK";
    settingsStore.Save();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"0"), L"Greek");
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"1"), L"One");
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kAlphabets, L"2"));
}

TEST_F(ContactsPageTest, AnUnreadableAlphabetThatIsActiveStays) {
    folder_->Write(L"CustomAlphabets\\Bad.txt", "Only a name\n");
    folder_->Write(L"CustomAlphabets\\Good.txt", "Good\nA\n");
    SetText(HKEY_CURRENT_USER, kAlphabets, L"0", L"Bad");
    Open();
    EXPECT_TRUE(IsTicked(kLanguages));
    Tick(kLanguages + 1, true);
    Close();
    settingsStore.Save();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"0"), L"Bad");
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"1"), L"Good");
}

TEST_F(ContactsPageTest, NoAlphabetCanBeActiveWhileItIsUnknownWhichAre) {
    folder_->Write(L"CustomAlphabets\\Good.txt", "Good\nA\n");
    SetText(HKEY_CURRENT_USER, kAlphabets, L"0", L"Other");
    StandInResetCalls();
    StandInFailCall(kRegEnumValueCalls, 1, ERROR_ACCESS_DENIED);
    Open();
    StandInResetCalls();
    Tick(0, false);
    Tick(kLanguages, true);
    EXPECT_FALSE(IsTicked(0)) << "those that are built in are known";
    EXPECT_FALSE(IsTicked(kLanguages)) << "it would be lost";
    Close();
    settingsStore.Save();
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kAlphabets, L"0"), L"Other");
}

TEST_F(ContactsPageTest, EnterTicksTheFocusedAlphabet) {
    Open();
    ShowTab(2);
    FocusFirstControl(page_->hwnd);
    EXPECT_EQ(GetFocus(), List());
    EXPECT_TRUE(IsTicked(0));
    SendMessage(List(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessage(List(), WM_KEYDOWN, VK_DOWN, 0);
    SendMessage(List(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_FALSE(IsTicked(0));
    EXPECT_TRUE(IsTicked(1));
    Close();
    EXPECT_EQ(settingsStore.CntctsActiveLanguages.value, 2u);
}
} // namespace
