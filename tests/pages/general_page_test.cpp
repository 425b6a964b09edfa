#include "pages/general_page.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/include/stand_in.h"
#include "tests/support/dialog_steps.h"
#include "tests/support/install_folder.h"
#include "tests/support/page_fixture.h"

namespace {
class GeneralPageTest : public PageFixture {
  protected:
    GeneralPageTest() : PageFixture(0) {}

    void SetUp() override {
        PageFixture::SetUp();
        folder_.emplace();
        folder_->Write(L"LangRes\\readme.txt", "");
    }
    void TearDown() override {
        PageFixture::TearDown();
        folder_.reset();
        StandInSetOsVersion(0, 0);
    }

    [[nodiscard]] std::wstring InLanguageFolder(const wchar_t* name) const {
        return folder_->PathOf(std::wstring(L"LangRes\\") + name);
    }
    void CopyInstalled(const wchar_t* from, const wchar_t* to) const {
        const std::wstring installed = std::wstring(L"\\Program Files\\Teskel\\Orvane") + from;
        ASSERT_TRUE(CopyFile(installed.c_str(), InLanguageFolder(to).c_str(), FALSE)) << from;
    }

    std::optional<InstallFolder> folder_;
};

constexpr wchar_t kRoot[] = L"Software\\Teskel\\Orvane";

TEST_F(GeneralPageTest, ChangesReachTheStoreAndDefaultsLeaveTheRegistry) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"OnClick", 2);
    SetNumber(HKEY_CURRENT_USER, kRoot, L"GoofyMode", 1);
    HWND window = Open();
    EXPECT_EQ(SendDlgItemMessage(window, 1201, CB_GETCURSEL, 0, 0), 2);
    EXPECT_EQ(IsDlgButtonChecked(window, 1218), 1u);
    Choose(window, 1201, 0);
    Tap(window, 1218);
    Tap(window, 1206);
    SetDlgItemText(window, 1208, L"333");
    SetDlgItemText(window, 1210, L"010");
    SetDlgItemText(window, 1212, L"\\My Documents\\Skin");
    Choose(window, 1240, 5);
    Close();
    EXPECT_EQ(settingsStore.OnClick.value, 0u);
    EXPECT_EQ(settingsStore.dHeightLimit.value, 333u);
    EXPECT_EQ(settingsStore.dHeightLimitLandscape.value, 8u) << "a leading 0 is octal";
    EXPECT_EQ(settingsStore.LoadingDelay.value, 5u);

    settingsStore.Save();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"OnClick"));
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"GoofyMode"));
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"AutoHeight"), 0u);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"dHeightLimit"), 333u);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"dHeightLimitLandscape")) << "8 is below 60";
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"SkinPath"), L"\\My Documents\\Skin");
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"LoadingDelay"), 5u);
}

TEST_F(GeneralPageTest, OffersHeightsAndKeepsOthers) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"dHeightLimit", 77);
    HWND window = Open();
    HWND portrait = GetDlgItem(window, 1208);
    HWND landscape = GetDlgItem(window, 1210);
    EXPECT_EQ(SendMessage(portrait, CB_GETCOUNT, 0, 0), 27);
    EXPECT_EQ(EntriesOf(portrait).find(L"80|100|120|"), 0u);
    EXPECT_EQ(EntriesOf(landscape).find(L"0|80|100|"), 0u);
    EXPECT_NE(EntriesOf(landscape).find(L"|580|600"), std::wstring::npos);
    EXPECT_EQ(TextOf(portrait), L"77");
    SetWindowText(landscape, L"0x1F4");
    SetWindowText(portrait, L"tall");
    Close();
    EXPECT_EQ(settingsStore.dHeightLimitLandscape.value, 500u);
    EXPECT_EQ(settingsStore.dHeightLimit.value, 0u);
}

TEST_F(GeneralPageTest, EnablesByItsRules) {
    HWND window = Open();
    for (int id = 1207; id <= 1210; ++id)
        EXPECT_FALSE(IsEnabled(id)) << id;
    Tap(window, 1206);
    for (int id = 1207; id <= 1210; ++id)
        EXPECT_TRUE(IsEnabled(id)) << id;

    const auto expect = [this](bool mode, bool complete, bool scrolling, bool exclusive) {
        EXPECT_EQ(IsEnabled(1226), mode);
        EXPECT_EQ(IsEnabled(1227), mode);
        for (int id : {1228, 1229, 1232})
            EXPECT_EQ(IsEnabled(id), complete) << id;
        for (int id : {1230, 1231})
            EXPECT_EQ(IsEnabled(id), scrolling) << id;
        EXPECT_EQ(IsEnabled(1233), exclusive);
    };
    expect(true, true, false, true);
    Choose(window, 1227, 1);
    expect(true, false, true, true);
    Tap(window, 1225);
    expect(false, false, false, false);
    Close();
}

TEST_F(GeneralPageTest, SavesDisabledHeightsAsShown) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"dHeightLimit", 240);
    Open();
    EXPECT_FALSE(IsEnabled(1208));
    Close();
    EXPECT_EQ(settingsStore.dHeightLimit.value, 240u);
    EXPECT_TRUE(settingsStore.dHeightLimit.changed);
}

TEST_F(GeneralPageTest, HasWhatThePlatformOffers) {
    struct Version {
        DWORD major;
        DWORD minor;
        bool hasExclusiveDPad;
    };
    for (const Version& version :
         {Version{3, 0, false}, {4, 20, false}, {4, 21, true}, {5, 1, true}}) {
        StandInSetOsVersion(version.major, version.minor);
        SetNumber(HKEY_CURRENT_USER, kRoot, L"ExclusiveDPadNavig", 1);
        HWND window = Open();
        EXPECT_EQ(GetDlgItem(window, 1233) != nullptr, version.hasExclusiveDPad) << version.major;
        const bool wide = GetSystemMetrics(SM_CXSCREEN) >= 480;
        EXPECT_EQ(GetDlgItem(window, 1236) != nullptr, wide);
        EXPECT_EQ(GetDlgItem(window, 1237) != nullptr, wide);
        Close();
        EXPECT_EQ(settingsStore.ExclusiveDPadNavig.changed, version.hasExclusiveDPad);
        EXPECT_EQ(settingsStore.ExclusiveDPadNavig.value, 1u);
    }
}

TEST_F(GeneralPageTest, ListsLanguagesAndSelectsTheCurrentOne) {
    CopyInstalled(L"\\LangRes\\OVEngRc.dll", L"Aaa.dll");
    CopyInstalled(L"\\LangRes\\OVGerRc.dll", L"Bbb.dll");
    SetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile", InLanguageFolder(L"Bbb.dll").c_str());
    HWND window = Open();
    EXPECT_EQ(EntriesOf(GetDlgItem(window, 1216)), L"English|Deutsch");
    EXPECT_EQ(SendDlgItemMessage(window, 1216, CB_GETCURSEL, 0, 0), 1);
    Choose(window, 1216, 0);
    Close();
    EXPECT_EQ(settingsStore.SelectedLangResFile.value.CStr(), InLanguageFolder(L"Aaa.dll"));
}

TEST_F(GeneralPageTest, ANamelessLibraryShiftsThePaths) {
    CopyInstalled(L"\\LowDpiRes.dll", L"Aaa.dll"); // Loads, but has no texts.
    CopyInstalled(L"\\LangRes\\OVEngRc.dll", L"Bbb.dll");
    CopyInstalled(L"\\LangRes\\OVGerRc.dll", L"Ccc.dll");
    HWND window = Open();
    EXPECT_EQ(EntriesOf(GetDlgItem(window, 1216)), L"English|Deutsch");
    Choose(window, 1216, 1);
    Close();
    EXPECT_EQ(settingsStore.SelectedLangResFile.value.CStr(), InLanguageFolder(L"Bbb.dll"));
}

TEST_F(GeneralPageTest, KeepsTheLanguageWhenThereIsNone) {
    SetText(HKEY_CURRENT_USER, kRoot, L"SelectedLangResFile", L"\\Lost.dll");
    Open();
    Close();
    EXPECT_STREQ(settingsStore.SelectedLangResFile.value.CStr(), L"\\Lost.dll");
}

TEST_F(GeneralPageTest, ClearsAndBrowsesTheSkinPath) {
    const std::wstring folder = folder_->PathOf(L"LangRes");
    SetText(HKEY_CURRENT_USER, kRoot, L"SkinPath", folder);
    HWND window = Open();
    HWND edit = GetDlgItem(window, 1212);
    EXPECT_EQ(TextOf(edit), folder);
    Tap(window, 1213);
    EXPECT_EQ(TextOf(edit), L"");
    for (const UINT button : {IDCANCEL, IDOK}) {
        SetWindowText(edit, (folder + L"\\").c_str());
        const DialogSteps answer(L"SelectFolderWin", {[&](HWND dialog) {
                                     EXPECT_EQ(TextOf(owner_), L"Select Skin Path");
                                     SendMessage(dialog, WM_COMMAND, button, 0);
                                 }});
        Tap(window, 1214);
        EXPECT_EQ(TextOf(edit), folder + (button == IDOK ? L"" : L"\\"));
    }
    Tap(window, 1213);
    Close();
    settingsStore.Save();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"SkinPath")) << "empty is the default";
}

TEST_F(GeneralPageTest, SavesOnlyWhatThePageShows) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"UseThinLines", 1);
    HWND window = Open();
    // As on a screen that was narrow when the page was opened and is wide now.
    if (HWND box = GetDlgItem(window, 1237)) DestroyWindow(box);
    Close();
    EXPECT_EQ(settingsStore.UseThinLines.value, 1u);
    EXPECT_FALSE(settingsStore.UseThinLines.changed);
}

TEST_F(GeneralPageTest, SavesTheBoxesOfWideScreens) {
    if (GetSystemMetrics(SM_CXSCREEN) < 480) GTEST_SKIP() << "needs the wide screen";
    SetNumber(HKEY_CURRENT_USER, kRoot, L"MyVgaMode", 1);
    HWND window = Open();
    EXPECT_EQ(IsDlgButtonChecked(window, 1236), 1u);
    EXPECT_EQ(IsDlgButtonChecked(window, 1237), 0u);
    Tap(window, 1237);
    Tap(window, 1236);
    Close();
    EXPECT_EQ(settingsStore.MyVgaMode.value, 0u);
    EXPECT_EQ(settingsStore.UseThinLines.value, 1u);
}

} // namespace
