#include "pages/messages_page.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/page_fixture.h"

namespace {
constexpr wchar_t kMessages[] = L"Software\\Teskel\\Orvane\\Messages";

class MessagesPageTest : public PageFixture {
  protected:
    MessagesPageTest() : PageFixture(5) {}
};

struct Row {
    int id;
    const wchar_t* name;
    bool isCombo;
    uint32_t stored;
};
constexpr Row kRows[] = {
    {1201, L"MsgsDPadActionOverride", true, 0}, {1202, L"MsgsOpenOnClick", false, 2},
    {1203, L"MsgsPreviewWhenOpen", false, 1},   {1204, L"MsgsMrkReadOnPrev", false, 0},
    {1206, L"MsgsBreakLineStyle", true, 2},     {1207, L"MsgsIncldCounters", false, 0},
    {1208, L"MsgsIncldFoldBttns", false, 0},
};

// Each control alone is changed: two that were swapped would show.
TEST_F(MessagesPageTest, EveryControlShowsAndSavesItsOwnSetting) {
    for (const Row& changed : kRows) {
        for (const Row& row : kRows)
            SetNumber(HKEY_CURRENT_USER, kMessages, row.name, row.stored);
        HWND window = Open();
        const auto shown = [&](const Row& row) {
            return static_cast<uint32_t>(
                SendDlgItemMessage(window, row.id, row.isCombo ? CB_GETCURSEL : BM_GETCHECK, 0, 0));
        };
        for (const Row& row : kRows)
            EXPECT_EQ(shown(row), row.isCombo ? row.stored : row.stored != 0) << row.id;
        if (changed.isCombo)
            Choose(window, changed.id, 1);
        else
            Tap(window, changed.id);
        const uint32_t expected = shown(changed);
        Close();
        settingsStore.Save();
        settingsStore.Load(application.languageLibrary);
        Open();
        window = page_->hwnd;
        for (const Row& row : kRows) {
            const uint32_t before = row.isCombo ? row.stored : row.stored != 0;
            EXPECT_EQ(shown(row), row.id == changed.id ? expected : before)
                << row.id << " after " << changed.id;
        }
        Close();
    }
}

TEST_F(MessagesPageTest, DefaultsLeaveTheRegistry) {
    for (const Row& row : kRows)
        SetNumber(HKEY_CURRENT_USER, kMessages, row.name, row.stored);
    HWND window = Open();
    Choose(window, 1201, 1);
    Choose(window, 1206, 3);
    for (const int box : {1202, 1203, 1204, 1207, 1208})
        Tap(window, box);
    Close();
    settingsStore.Save();
    for (const Row& row : kRows)
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kMessages, row.name)) << row.id;
}
} // namespace
