#include "pages/general_page.h"

#include "tests/support/page_fixture.h"

namespace {
constexpr int kHeight = 1208;
constexpr int kLandscapeHeight = 1210;
constexpr int kSkinPath = 1212;
constexpr int kClear = 1213;
constexpr int kBrowse = 1214;
constexpr int kLanguage = 1216;
constexpr int kExclusiveDPad = 1233;
constexpr int kVgaMode = 1236;
constexpr int kThinLines = 1237;

class GeneralPageTest : public PageFixture {
  protected:
    GeneralPageTest() : PageFixture(0) {}

    // What the page stores when it is closed with a language chosen.
    std::wstring PathOfLanguage(int entry) {
        Choose(window_, kLanguage, entry);
        Close();
        return settingsStore.SelectedLangResFile.value.CStr();
    }
};

// Whether or not they are enabled.
TEST_F(GeneralPageTest, OffersHeightsAndKeepsOthers) {
    Store(L"dHeightLimit", 77);
    Open();
    EXPECT_FALSE(IsEnabled(kHeight));
    EXPECT_EQ(EntriesOf(Control(kHeight)).find(L"80|100|120|"), 0u);
    EXPECT_EQ(EntriesOf(Control(kLandscapeHeight)).find(L"0|80|100|"), 0u);
    EXPECT_NE(EntriesOf(Control(kLandscapeHeight)).find(L"|580|600"), std::wstring::npos);
    EXPECT_EQ(TextOf(Control(kHeight)), L"77");
    SetDlgItemText(window_, kLandscapeHeight, L"0x1F4");
    Close();
    EXPECT_EQ(settingsStore.dHeightLimit.value, 77u);
    EXPECT_EQ(settingsStore.dHeightLimitLandscape.value, 500u);
}

TEST_F(GeneralPageTest, HasWhatThePlatformOffers) {
    constexpr struct {
        DWORD major;
        DWORD minor;
        bool hasExclusiveDPad;
    } kVersions[] = {{3, 0, false}, {4, 20, false}, {4, 21, true}, {5, 1, true}};
    Store(L"ExclusiveDPadNavig", 1);
    for (const auto& version : kVersions) {
        StandInSetOsVersion(version.major, version.minor);
        Open();
        EXPECT_EQ(Control(kExclusiveDPad) != nullptr, version.hasExclusiveDPad) << version.major;
        Close();
        EXPECT_EQ(settingsStore.ExclusiveDPadNavig.changed, version.hasExclusiveDPad);
        EXPECT_EQ(settingsStore.ExclusiveDPadNavig.value, 1u);
    }
}

TEST_F(GeneralPageTest, HasTheBoxesOfWideScreensThereAlone) {
    const bool isWide = GetSystemMetrics(SM_CXSCREEN) >= 480;
    Store(L"MyVgaMode", 1);
    Open();
    EXPECT_EQ(Control(kVgaMode) != nullptr, isWide);
    EXPECT_EQ(Control(kThinLines) != nullptr, isWide);
    EXPECT_EQ(IsTicked(kVgaMode), isWide);
    Tap(window_, kVgaMode);
    Tap(window_, kThinLines);
    Close();
    EXPECT_EQ(settingsStore.MyVgaMode.value, isWide ? 0u : 1u);
    EXPECT_EQ(settingsStore.UseThinLines.value, isWide ? 1u : 0u);
    // As on a screen that was narrow when the page was opened and is wide now.
    Store(L"UseThinLines", 1);
    Open();
    if (isWide) DestroyWindow(Control(kThinLines));
    Close();
    EXPECT_EQ(settingsStore.UseThinLines.value, 1u);
    EXPECT_FALSE(settingsStore.UseThinLines.changed);
}

TEST_F(GeneralPageTest, ListsLanguages) {
    const auto install = [this](const wchar_t* library, const wchar_t* name) {
        folder_->Write(L"LangRes\\readme.txt", "");
        const std::wstring installed = std::wstring(L"\\Program Files\\Teskel\\Orvane\\") + library;
        const std::wstring copy = folder_->PathOf(std::wstring(L"LangRes\\") + name);
        EXPECT_TRUE(CopyFile(installed.c_str(), copy.c_str(), FALSE));
        return copy;
    };
    Store(L"SelectedLangResFile", L"\\Lost.dll");
    Open();
    Close();
    EXPECT_STREQ(settingsStore.SelectedLangResFile.value.CStr(), L"\\Lost.dll") << "there is none";

    const std::wstring english = install(L"LangRes\\OVEngRc.dll", L"Bbb.dll");
    const std::wstring german = install(L"LangRes\\OVGerRc.dll", L"Ccc.dll");
    Store(L"SelectedLangResFile", german);
    Open();
    EXPECT_EQ(EntriesOf(Control(kLanguage)), L"English|Deutsch");
    EXPECT_EQ(Chosen(kLanguage), 1);
    EXPECT_EQ(PathOfLanguage(0), english);

    install(L"LowDpiRes.dll", L"Aaa.dll"); // Loads, but has no texts.
    Open();
    EXPECT_EQ(EntriesOf(Control(kLanguage)), L"English|Deutsch");
    EXPECT_EQ(PathOfLanguage(1), english) << "a nameless library shifts the paths";
}

TEST_F(GeneralPageTest, ClearsAndBrowsesTheSkinPath) {
    const std::wstring folder = folder_->PathOf(L"LangRes");
    folder_->Write(L"LangRes\\readme.txt", "");
    Store(L"SkinPath", folder);
    Open();
    EXPECT_EQ(TextOf(Control(kSkinPath)), folder);
    for (const UINT button : {IDCANCEL, IDOK}) {
        SetDlgItemText(window_, kSkinPath, (folder + L"\\").c_str());
        TapAndWork(kBrowse, kFolderDialog, {[&](HWND dialog) {
                       EXPECT_EQ(TextOf(owner_), L"Select Skin Path");
                       SendMessage(dialog, WM_COMMAND, button, 0);
                   }});
        EXPECT_EQ(TextOf(Control(kSkinPath)), folder + (button == IDOK ? L"" : L"\\"));
    }
    Tap(window_, kClear);
    Close();
    settingsStore.Save();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, key_, L"SkinPath")) << "empty is the default";
}
} // namespace
