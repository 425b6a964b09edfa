#include "files/settings_backup.h"

#include <gtest/gtest.h>

#include "files/scheme_files.h"
#include "settings/settings_store.h"
#include "tests/files/folder_fixture.h"
#include "tests/support/memory_stream.h"

namespace {

constexpr wchar_t kColours[] = L"Software\\Teskel\\Orvane\\Colors";
constexpr wchar_t kFonts[] = L"Software\\Teskel\\Orvane\\Fonts";

class SettingsBackupTest : public FolderFixture {
  protected:
    void SetUp() override {
        FolderFixture::SetUp();
        folder_->SetCategories("1\t0\tWork\n2\t0\tCaf\xC3\xA9\n");
        LoadInto(settingsStore);
        store_.LoadCategoryStore();
    }

    std::string Backup() const {
        MemorySink sink;
        WriteBackup(store_, sink);
        return sink.content;
    }
    bool Restore(const std::string& bytes) {
        MemorySource source(bytes);
        return ReadBackup(source, store_);
    }
    static std::wstring SchemeNames() {
        std::wstring names;
        for (const WideString& name : SchemeFileNames())
            names += std::wstring(name.CStr()) + L"|";
        return names;
    }

    CategoryStore store_;
};

TEST_F(SettingsBackupTest, WritesTheTreeTheCategoriesAndTheFilters) {
    SetUserNumber(kRoot, L"GoofyMode", 0xFFFFFFFF);
    SetUserNumber(L"Software\\Teskel\\Orvane\\Notes\\Folders", L"1", 2);
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Notes", L"100%s", L"say \"\u20AC\"");
    SetValue(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Notes", L"bits", REG_BINARY, "abc", 3);
    SetText(HKEY_CURRENT_USER, L"Software\\Elsewhere", L"not", L"ours");
    store_.FindCategory(L"Work")->colour = 255;
    store_.FindCategory(L"Work")->filters = 5;
    store_.FindFilter(1)->title = L"One";
    store_.FindFilter(1)->visible = false;
    std::string expected = "\r\n[Software\\Teskel\\Orvane]\r\n\"GoofyMode\"=dword:-1\r\n"
                           "\r\n[Software\\Teskel\\Orvane\\Categories]\r\n"
                           "\r\n[Software\\Teskel\\Orvane\\Notes]\r\n"
                           "\"100%s\"=\"say \"\xE2\x82\xAC\"\"\r\n"
                           "\r\n[Software\\Teskel\\Orvane\\Notes\\Folders]\r\n\"1\"=dword:2\r\n"
                           "\r\n[::Categories::]\r\n\"Category\"=\"Caf\xC3\xA9\"\r\n"
                           "\"FiltersFlag\"=dword:0\r\n\"Color\"=dword:-1\r\n"
                           "\"Category\"=\"Work\"\r\n\"FiltersFlag\"=dword:5\r\n"
                           "\"Color\"=dword:255\r\n\r\n[::Filters::]\r\n";
    for (int index = 1; index <= 32; ++index) {
        expected += "\"FilterName\"=\"" + (index == 1 ? "One" : "Filter " + std::to_string(index)) +
                    "\"\r\n\"Index\"=dword:" + std::to_string(index) +
                    "\r\n\"VisibleState\"=dword:" + (index == 1 ? "0" : "1") +
                    "\r\n\"IncludeUncategorized\"=dword:0\r\n";
    }
    // The store's load made empty keys for the groups without values here.
    std::string written = Backup();
    for (const char* key : {"Calendar", "Tasks", "Contacts", "Messages", "SEvents", "Fonts",
                            "Colors", "CustomPIM", "TabSettings"}) {
        const std::string section = "\r\n[Software\\Teskel\\Orvane\\" + std::string(key) + "]\r\n";
        const size_t place = written.find(section);
        ASSERT_NE(place, std::string::npos) << key;
        written.erase(place, section.size());
    }
    EXPECT_EQ(written, expected);
}

TEST_F(SettingsBackupTest, RestoresWhatItWrote) {
    SetText(HKEY_CURRENT_USER, kRoot, L"text", std::wstring(127, L'\u20AC'));
    SetText(HKEY_CURRENT_USER, kCalendar, L"quotes", L"\"a\" = \"b\"\t%d");
    SetUserNumber(kCalendar, std::wstring(200, L'n') + L" 100%", 0xFFFFFFFF);
    SetUserNumber(kCalendar, L"", 1);
    SetUserNumber(L"Software\\Teskel\\Orvane\\TabSettings\\Contacts\\deep", L"n", 0x80000000);
    const RegistryTree before = GetTree(HKEY_CURRENT_USER);
    const std::string backup = Backup();

    SetUserNumber(kRoot, L"new", 1);
    SetUserNumber(L"Software\\Teskel\\Orvane\\New\\Key", L"new", 1);
    SetUserNumber(kCalendar, L"", 2);
    RegDeleteKey(HKEY_CURRENT_USER, kTabs);
    EXPECT_TRUE(Restore(backup));
    EXPECT_EQ(GetTree(HKEY_CURRENT_USER), before);
}

TEST_F(SettingsBackupTest, ATooLongTextEndsItsKeysList) {
    constexpr wchar_t kKey[] = L"Software\\Teskel\\Orvane\\Values";
    constexpr wchar_t kSubkey[] = L"Software\\Teskel\\Orvane\\Values\\Sub";
    SetText(HKEY_CURRENT_USER, kKey, L"a", L"kept");
    SetText(HKEY_CURRENT_USER, kKey, L"b", std::wstring(128, L'x'));
    SetText(HKEY_CURRENT_USER, kKey, L"c", L"lost");
    const std::wstring unterminated(128, L'u');
    SetValue(HKEY_CURRENT_USER, kSubkey, L"u", REG_SZ, unterminated.data(), 256);
    SetUserNumber(kSubkey, L"v", 1);
    const std::string backup = Backup();
    EXPECT_NE(
        backup.find("\\Values]\r\n\"a\"=\"kept\"\r\n\r\n[Software\\Teskel\\Orvane\\Values\\Sub]"
                    "\r\n\"u\"=\"" +
                    std::string(128, 'u') + "\"\r\n\"v\"=dword:1\r\n"),
        std::string::npos);
}

TEST_F(SettingsBackupTest, RestoresSectionBySection) {
    SetUserNumber(kCalendar, L"kept", 1);
    SetUserNumber(L"Software\\Elsewhere", L"kept", 1);
    EXPECT_TRUE(Restore("\n[Software\\Teskel\\Orvane\\Tasks]\n\"n\"=dword:2\n"))
        << "without the root's section nothing is deleted";
    EXPECT_EQ(GetUserNumber(kCalendar, L"kept"), 1U);
    EXPECT_EQ(GetUserNumber(L"Software\\Teskel\\Orvane\\Tasks", L"n"), 2U);

    EXPECT_FALSE(Restore("[Software\\Teskel\\Orvane]\n"));
    EXPECT_EQ(GetUserNumber(kCalendar, L"kept"), 1U) << "refused before anything is done";

    // The user's own registry has no name here, and is left alone.
    for (const char* path : {"", "\\", "\\Software\\Teskel"})
        EXPECT_FALSE(Restore("\n[" + std::string(path) + "]\n\"n\"=dword:2\n")) << path;
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, L"", L"n"));

    EXPECT_FALSE(Restore("\n[Software\\Teskel\\Orvane]\n\"n\"=dword:3\n\n[" +
                         std::string(300, 'k') + "]\n\n[Software\\Teskel\\Orvane\\Tasks]\n"))
        << "a key that cannot be made ends it";
    EXPECT_EQ(GetUserNumber(kRoot, L"n"), 3U) << "what was read stays";
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, kCalendar)) << "what the root's section deleted is gone";
    EXPECT_EQ(GetUserNumber(L"Software\\Elsewhere", L"kept"), 1U);
}

TEST_F(SettingsBackupTest, ChangesOnlyCategoriesAndFiltersThatAreThere) {
    store_.FindFilter(3)->sensitivity = 4;
    EXPECT_TRUE(Restore("\n[::Categories::]\n\"Category\"=\"work\"\n\"FiltersFlag\"=dword:9\n"
                        "\"Color\"=dword:9\n\"Category\"=\"Caf\xC3\xA9\"\n"
                        "\"FiltersFlag\"=dword:-2147483648\n\"Color\"=dword:-1\n"
                        "\n[::Filters::]\n\"FilterName\"=\"Three\"\n\"Index\"=dword:3\n"
                        "\"VisibleState\"=dword:0\n\"IncludeUncategorized\"=dword:2\n"
                        "\"FilterName\"=\"None\"\n\"Index\"=dword:33\n\"VisibleState\"=dword:0\n"
                        "\"IncludeUncategorized\"=dword:1\n"));
    EXPECT_EQ(store_.All().size(), 2U);
    EXPECT_EQ(store_.FindCategory(L"Work")->filters, 0U);
    EXPECT_EQ(store_.FindCategory(L"Caf\u00E9")->filters, 0x80000000U);
    const FilterEntry& third = *store_.FindFilter(3);
    EXPECT_STREQ(third.title.CStr(), L"Three");
    EXPECT_FALSE(third.visible);
    EXPECT_TRUE(third.includeUncategorized);
    EXPECT_EQ(third.sensitivity, 4) << "not of a backup";
}

TEST_F(SettingsBackupTest, SchemesHoldColoursFontsAndCategories) {
    SetUserNumber(kColours, L"GeneralFontColor", 0xFFFFFFFF);
    SetText(HKEY_CURRENT_USER, kFonts, L"FontFaceToUse", L"Arial");
    SetUserNumber(kRoot, L"GoofyMode", 1);
    WriteScheme(L"Mine", store_);
    folder_->Write(L"Schemes\\Other.scmx", "");
    EXPECT_EQ(SchemeNames(), L"Mine.scm|");
    EXPECT_TRUE(SchemeExists(L"mine"));
    EXPECT_FALSE(SchemeExists(L"Other"));
    EXPECT_EQ(folder_->Read(L"Schemes\\Mine.scm"),
              "\r\n[Software\\Teskel\\Orvane\\Colors]\r\n\"GeneralFontColor\"=dword:-1\r\n"
              "\r\n[Software\\Teskel\\Orvane\\Fonts]\r\n\"FontFaceToUse\"=\"Arial\"\r\n"
              "\r\n[::Categories::]\r\n\"Category\"=\"Caf\xC3\xA9\"\r\n\"FiltersFlag\"=dword:0\r\n"
              "\"Color\"=dword:-1\r\n\"Category\"=\"Work\"\r\n\"FiltersFlag\"=dword:0\r\n"
              "\"Color\"=dword:-1\r\n");

    SetUserNumber(kColours, L"HighlightBgClr", 5);
    SetUserNumber(kFonts, L"FontGnrlSize", 30);
    store_.FindCategory(L"Work")->colour = 255;
    EXPECT_EQ(ReadScheme(L"gone.scm", store_), SchemeOutcome::CannotOpen);
    EXPECT_EQ(GetUserNumber(kColours, L"HighlightBgClr"), 5U);
    EXPECT_EQ(ReadScheme(L"Mine.scm", store_), SchemeOutcome::Read);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kColours, L"HighlightBgClr"));
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kFonts, L"FontGnrlSize"));
    EXPECT_EQ(GetUserNumber(kColours, L"GeneralFontColor"), 0xFFFFFFFFU);
    EXPECT_EQ(GetUserNumber(kRoot, L"GoofyMode"), 1U);
    EXPECT_EQ(store_.FindCategory(L"Work")->colour, kNoColour);

    EXPECT_EQ(ReadScheme(L"Other.scmx", store_), SchemeOutcome::Damaged);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, kColours));
    DeleteSchemeFile(L"Mine.scm");
    EXPECT_EQ(SchemeNames(), L"");
}

} // namespace
