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

constexpr ControlCase kControls[] = {
    {1201, L"MsgsDPadActionOverride", true, 0, 1}, {1202, L"MsgsOpenOnClick", false, 1, 0},
    {1203, L"MsgsPreviewWhenOpen", false, 1, 0},   {1204, L"MsgsMrkReadOnPrev", false, 0, 1},
    {1206, L"MsgsBreakLineStyle", true, 2, 1},     {1207, L"MsgsIncldCounters", false, 0, 1},
    {1208, L"MsgsIncldFoldBttns", false, 0, 1},
};

TEST_F(MessagesPageTest, EveryControlShowsAndSavesItsOwnSetting) {
    ExpectEachControlToSaveItsOwn(kMessages, kControls);
}

TEST_F(MessagesPageTest, DefaultsLeaveTheRegistry) {
    for (const ControlCase& control : kControls)
        SetNumber(HKEY_CURRENT_USER, kMessages, control.name, control.stored);
    SetNumber(HKEY_CURRENT_USER, kMessages, L"MsgsOpenOnClick", 2);
    HWND window = Open();
    EXPECT_EQ(IsDlgButtonChecked(window, 1202), 1u) << "any number but 0";
    Choose(window, 1201, 1);
    Choose(window, 1206, 3);
    for (const int box : {1202, 1203, 1204, 1207, 1208})
        Tap(window, box);
    Close();
    settingsStore.Save();
    for (const ControlCase& control : kControls)
        EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kMessages, control.name)) << control.id;
}
} // namespace
