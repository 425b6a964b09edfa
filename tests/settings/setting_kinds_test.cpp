#include <gtest/gtest.h>

#include <string>

#include "settings/font_setting.h"
#include "settings/setting.h"
#include "tests/settings/store_fixture.h"

namespace {

constexpr wchar_t kTasks[] = L"Software\\Teskel\\Orvane\\Tasks";
constexpr wchar_t kFonts[] = L"Software\\Teskel\\Orvane\\Fonts";

class SettingKinds : public StoreFixture {};

TEST_F(SettingKinds, OnlyWhatWasSetIsSavedAndDefaultsAreDeleted) {
    DwordSetting number;
    StringSetting text;
    // What the dashboard writes between load and save.
    const auto saveBehind = [&](uint32_t storedNumber, const wchar_t* storedText) {
        SetUserNumber(kRoot, L"Number", storedNumber);
        SetText(HKEY_CURRENT_USER, kRoot, L"Text", storedText);
        number.Save(nullptr);
        text.Save(nullptr);
    };
    saveBehind(5, L"stored");
    number.Load(nullptr, 1, L"Number", SettingGroup::Root);
    text.Load(nullptr, L"Default", L"Text", SettingGroup::Root);
    saveBehind(6, L"meanwhile");
    EXPECT_EQ(GetUserNumber(kRoot, L"Number"), 6U);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"meanwhile");

    EXPECT_EQ(number.Set(9), 5U);
    EXPECT_EQ(number.Set(5), 9U);
    text.Set(L"stored");
    saveBehind(6, L"meanwhile");
    EXPECT_EQ(GetUserNumber(kRoot, L"Number"), 5U) << "set back is still set";
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"stored");

    number.Set(1);
    text.Set(L"default"); // Compared exactly.
    saveBehind(6, L"meanwhile");
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"Number"));
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"default");
    text.Set(L"Default");
    text.Save(nullptr);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"Text"));
}

TEST_F(SettingKinds, FlagsAreTakenOnlyWhenTheyFit) {
    const BYTE stored[] = {1, 2, 3, 4, 5, 6, 7};
    const UniqueKey key(OpenGroupKey(SettingGroup::Tasks));
    BitsSetting flags;
    const auto lastLoaded = [&](HKEY from, DWORD type, size_t size) {
        SetValue(HKEY_CURRENT_USER, kTasks, L"FoldState", type, stored, size);
        flags.Load(from, 41, false, L"FoldState", SettingGroup::Tasks);
        EXPECT_EQ(flags.byteCount, 6U);
        return flags.bits[5];
    };
    EXPECT_EQ(lastLoaded(key.Get(), REG_BINARY, 6), 6);
    EXPECT_EQ(lastLoaded(key.Get(), REG_BINARY, 5), 0);
    EXPECT_EQ(lastLoaded(key.Get(), REG_BINARY, 7), 0);
    EXPECT_EQ(lastLoaded(key.Get(), REG_SZ, 6), 0);
    EXPECT_EQ(lastLoaded(nullptr, REG_BINARY, 6), 0) << "read although no key was passed";
    flags.Load(key.Get(), 8, true, L"Other", SettingGroup::Tasks);
    EXPECT_EQ(flags.byteCount, 1U);
    EXPECT_EQ(flags.bits[0], 0xFF);
}

TEST_F(SettingKinds, FontsAreSixNumbersAndALogFont) {
    constexpr FontDefaults kDefaults = {.weight = 700, .height = 12, .strikeOut = true};
    FontSetting font;
    font.logFont.lfOrientation = 99;
    font.Load(nullptr, kDefaults, L"Tahoma", true, L"FontX", SettingGroup::Fonts);
    EXPECT_EQ(font.logFont.lfWeight, 700);
    EXPECT_EQ(font.logFont.lfHeight, 12);
    EXPECT_EQ(font.logFont.lfStrikeOut, 1);
    EXPECT_EQ(font.logFont.lfOrientation, 0);
    EXPECT_EQ(font.logFont.lfQuality, 5) << "ClearType";

    LOGFONT wanted = {};
    wanted.lfHeight = -20;
    wanted.lfWeight = 100;
    wanted.lfItalic = 1;
    wanted.lfUnderline = 255;
    wcscpy(wanted.lfFaceName, L"Courier");
    EXPECT_EQ(font.Set(&wanted, 0x0000FF), 0xFFFFFFFF);
    EXPECT_STREQ(font.logFont.lfFaceName, L"Tahoma") << "all fonts have one face";
    font.Save(nullptr);
    const std::pair<const wchar_t*, uint32_t> saved[] = {
        {L"FontXlfHeight", 0xFFFFFFEC}, {L"FontXlfWeight", 100},  {L"FontXlfItalic", 1},
        {L"FontXlfUnderline", 255},     {L"FontXlfStrikeOut", 0}, {L"FontXlfColor", 0xFF}};
    for (const auto& [name, number] : saved)
        EXPECT_EQ(GetUserNumber(kFonts, name), number) << name;

    const std::wstring longFace(100, L'f');
    SetUserNumber(kFonts, L"FontXlfItalic", 0x1FE);
    font.Load(nullptr, kDefaults, longFace.c_str(), false, L"FontX", SettingGroup::Fonts);
    EXPECT_EQ(font.logFont.lfHeight, -20);
    EXPECT_EQ(font.logFont.lfItalic, 0xFE);
    EXPECT_EQ(font.logFont.lfUnderline, 255);
    EXPECT_EQ(font.logFont.lfQuality, 0);
    EXPECT_EQ(font.logFont.lfFaceName, longFace.substr(0, LF_FACESIZE - 1));
    font.Set(nullptr, 0xFFFFFFFF);
    EXPECT_FALSE(font.weight.changed) << "the colour alone was set";
}

} // namespace
