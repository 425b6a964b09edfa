#include <gtest/gtest.h>

#include <string>

#include "platform/include/stand_in.h"
#include "settings/font_setting.h"
#include "settings/setting.h"
#include "settings/system_colour.h"
#include "tests/support/registry_fixture.h"

namespace {

constexpr wchar_t kRoot[] = L"Software\\Teskel\\Orvane";
constexpr wchar_t kTasks[] = L"Software\\Teskel\\Orvane\\Tasks";
constexpr wchar_t kFonts[] = L"Software\\Teskel\\Orvane\\Fonts";
constexpr wchar_t kColours[] = L"SOFTWARE\\Microsoft\\Color";

// The size of the last value that was handed to the platform. A PC stores a terminator along where
// it finds one behind the value, so that the registry does not show what was handed over.
DWORD lastSize = 0;

LONG WINAPI SetValueExNotingSize(HKEY key, const wchar_t* name, DWORD reserved, DWORD type,
                                 const BYTE* data, DWORD size) {
    lastSize = size;
    FARPROC call = GetProcAddress(GetModuleHandleW(L"coredll.dll"), "RegSetValueExW");
    return reinterpret_cast<decltype(&SetValueExNotingSize)>(reinterpret_cast<void*>(call))(
        key, name, reserved, type, data, size);
}

} // namespace

// Takes the place of the import for everything in this program.
extern "C" {
extern decltype(&SetValueExNotingSize) __imp_RegSetValueExW;
decltype(&SetValueExNotingSize) __imp_RegSetValueExW = SetValueExNotingSize;
}

namespace {

class SettingKinds : public RegistryFixture {};

// Whatever its type: a number takes up to four bytes, a text ends at the first NUL or with the
// value.
TEST_F(SettingKinds, BytesOfAnyTypeCountAsNumbersAndTexts) {
    struct Case {
        DWORD type;
        std::string bytes;
        uint32_t number;
        const wchar_t* text;
    };
    const Case cases[] = {
        {REG_DWORD, {"\x01\x02\x03\x84", 4}, 0x84030201, L"\x0201\x8403"},
        {REG_SZ, {"A\0B\0", 4}, 0x00420041, L"AB"}, // Without a terminator.
        {REG_BINARY, {"\x01\x02\x03", 3}, 0x030201, L"\x0201"},
        {REG_DWORD, "", 0, L""},
        {REG_BINARY, "x", 'x', L""},
        {REG_SZ, {"a\0b\0c", 5}, 77, L"ab"},
        {REG_SZ, {"a\0b\0\0\0", 6}, 77, L"ab"},
        {REG_MULTI_SZ, {"a\0\0\0b\0\0\0\0\0", 10}, 77, L"a"},
    };
    DwordSetting number;
    StringSetting text;
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.bytes.size() << " bytes of type " << c.type);
        SetValue(HKEY_CURRENT_USER, kRoot, L"Value", c.type, c.bytes.data(), c.bytes.size());
        EXPECT_EQ(number.Load(nullptr, 77, L"Value", SettingGroup::Root), c.number);
        EXPECT_EQ(number.value, c.number);
        EXPECT_FALSE(number.changed);
        EXPECT_STREQ(text.Load(nullptr, L"default", L"Value", SettingGroup::Root), c.text);
        EXPECT_FALSE(text.changed);
    }
    EXPECT_STREQ(text.Load(nullptr, L"default", L"Missing", SettingGroup::Root), L"default");
    const std::wstring huge(500'000, L'h');
    SetText(HKEY_CURRENT_USER, kRoot, L"Value", huge);
    EXPECT_EQ(text.Load(nullptr, L"", L"Value", SettingGroup::Root), huge);
}

TEST_F(SettingKinds, OnlyWhatWasSetIsSavedAndDefaultsAreDeleted) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"Number", 5);
    SetText(HKEY_CURRENT_USER, kRoot, L"Text", L"stored");
    DwordSetting number;
    StringSetting text;
    number.Load(nullptr, 1, L"Number", SettingGroup::Root);
    text.Load(nullptr, L"Default", L"Text", SettingGroup::Root);

    // What the dashboard writes meanwhile survives, unless the value was set.
    SetNumber(HKEY_CURRENT_USER, kRoot, L"Number", 6);
    SetText(HKEY_CURRENT_USER, kRoot, L"Text", L"meanwhile");
    number.Save(nullptr);
    text.Save(nullptr);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"Number"), 6U);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"meanwhile");

    EXPECT_EQ(number.Set(9), 5U);
    EXPECT_EQ(number.Set(5), 9U);
    text.Set(L"stored");
    number.Save(nullptr);
    text.Save(nullptr);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"Number"), 5U) << "set back is still set";
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"stored");

    number.Set(1);
    text.Set(L"default"); // Compared exactly.
    number.Save(nullptr);
    text.Save(nullptr);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"Number"));
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"default");
    EXPECT_EQ(lastSize, sizeof L"default");
    text.Set(L"Default");
    text.Save(nullptr);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kRoot, L"Text"));
    EXPECT_EQ(number.Load(nullptr, 1, L"Number", SettingGroup::Root), 1U);
    EXPECT_FALSE(number.changed);
}

TEST_F(SettingKinds, FlagsAreTakenOnlyWhenTheyFit) {
    struct Case {
        DWORD type;
        size_t size;
        int taken;
    };
    const BYTE stored[] = {1, 2, 3, 4, 5, 6, 7};
    const UniqueKey key(OpenGroupKey(SettingGroup::Tasks));
    BitsSetting flags;
    for (const Case& c : {Case{REG_BINARY, 6, 6}, Case{REG_BINARY, 5, 0}, Case{REG_BINARY, 7, 0},
                          Case{REG_BINARY, 0, 0}, Case{REG_SZ, 6, 0}, Case{REG_DWORD, 4, 0}}) {
        SetValue(HKEY_CURRENT_USER, kTasks, L"FoldState", c.type, stored, c.size);
        for (const int untouched : {0, 0xFF}) {
            flags.Load(key.Get(), 41, untouched != 0, L"FoldState", SettingGroup::Tasks);
            ASSERT_EQ(flags.byteCount, 6U);
            EXPECT_EQ(flags.bits[5], c.taken ? c.taken : untouched) << c.type << c.size;
        }
    }
    SetValue(HKEY_CURRENT_USER, kTasks, L"FoldState", REG_BINARY, stored, 6);
    flags.Load(nullptr, 41, false, L"FoldState", SettingGroup::Tasks);
    EXPECT_EQ(flags.bits[0], 0) << "read although no key was passed";
    flags.Load(key.Get(), 8, false, L"Other", SettingGroup::Tasks);
    EXPECT_EQ(flags.byteCount, 1U);
}

TEST_F(SettingKinds, FontsAreSixNumbersAndALogFont) {
    constexpr FontDefaults kDefaults = {.weight = 700, .height = 12, .strikeOut = true};
    FontSetting font;
    font.logFont.lfOrientation = 99;
    font.Load(nullptr, kDefaults, L"Tahoma", true, L"FontX", SettingGroup::Fonts);
    EXPECT_EQ(font.logFont.lfWeight, 700);
    EXPECT_EQ(font.logFont.lfHeight, 12);
    EXPECT_EQ(font.logFont.lfStrikeOut, 1);
    EXPECT_EQ(font.logFont.lfItalic, 0);
    EXPECT_EQ(font.logFont.lfOrientation, 0);
    EXPECT_EQ(font.logFont.lfQuality, 5);
    EXPECT_STREQ(font.logFont.lfFaceName, L"Tahoma");
    EXPECT_EQ(font.colour.value, 0xFFFFFFFF);

    LOGFONT wanted = {};
    wanted.lfHeight = -20;
    wanted.lfWeight = 100;
    wanted.lfItalic = 1;
    wanted.lfUnderline = 255;
    wcscpy(wanted.lfFaceName, L"Courier");
    EXPECT_EQ(font.Set(&wanted, 0x0000FF), 0xFFFFFFFF);
    EXPECT_EQ(font.logFont.lfHeight, -20);
    EXPECT_STREQ(font.logFont.lfFaceName, L"Tahoma");
    font.Save(nullptr);
    const std::pair<const wchar_t*, uint32_t> saved[] = {
        {L"FontXlfHeight", 0xFFFFFFEC}, {L"FontXlfWeight", 100},  {L"FontXlfItalic", 1},
        {L"FontXlfUnderline", 255},     {L"FontXlfStrikeOut", 0}, {L"FontXlfColor", 0xFF}};
    for (const auto& [name, number] : saved)
        EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, name), number) << name;

    const std::wstring longFace(100, L'f');
    SetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfItalic", 0x1FF);
    font.Load(nullptr, kDefaults, longFace.c_str(), false, L"FontX", SettingGroup::Fonts);
    EXPECT_EQ(font.logFont.lfHeight, -20);
    EXPECT_EQ(font.logFont.lfItalic, 0xFF);
    EXPECT_EQ(font.logFont.lfQuality, 0);
    EXPECT_EQ(font.logFont.lfFaceName, longFace.substr(0, LF_FACESIZE - 1));

    EXPECT_EQ(font.Set(nullptr, 0xFFFFFFFF), 0xFFU);
    EXPECT_FALSE(font.weight.changed);
    font.Save(nullptr);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kFonts, L"FontXlfColor"));
}

TEST_F(SettingKinds, SystemColoursComeFromTheirOwnValueThenTheScheme) {
    EXPECT_EQ(SystemColour(4, 0x123456), 0x123456U);
    EXPECT_FALSE(HasKey(HKEY_LOCAL_MACHINE, kColours)) << "asking created the key";
    BYTE scheme[24];
    for (size_t at = 0; at < sizeof scheme; ++at)
        scheme[at] = static_cast<BYTE>(at);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"SHColor", REG_BINARY, scheme, sizeof scheme);
    EXPECT_EQ(SystemColour(0, 0x123456), 0x020100U);
    EXPECT_EQ(SystemColour(4, 0x123456), 0x121110U);
    EXPECT_EQ(SystemColour(5, 0x123456), 0x123456U) << "the last entry is not used";
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"SHColor", REG_BINARY, scheme, 21);
    EXPECT_EQ(SystemColour(4, 0x123456), 0x121110U);

    SetValue(HKEY_LOCAL_MACHINE, kColours, L"4", REG_BINARY, "\xAA\xBB\xCC\xDD\xEE", 5);
    EXPECT_EQ(SystemColour(4, 0x123456), 0xCCBBAAU);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"4", REG_BINARY, "\xAA", 1);
    EXPECT_EQ(SystemColour(4, 0x123456), 0x0000AAU);
    SetValue(HKEY_LOCAL_MACHINE, kColours, L"SHColor", REG_BINARY, nullptr, 0);
    EXPECT_EQ(SystemColour(0, 0x123456), 0x123456U);
}

} // namespace
