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

UniqueKey OpenForTest(SettingGroup group) {
    Setting setting;
    setting.group = group;
    return UniqueKey(OpenGroupKey(setting.group));
}

TEST_F(SettingKinds, EveryGroupHasItsKeyAndNoOtherNumberHas) {
    for (uint32_t number = 0; number < 15; ++number) {
        const GroupKey where = KeyOfGroup(static_cast<SettingGroup>(number));
        EXPECT_FALSE(HasKey(where.root, where.path));
        EXPECT_TRUE(OpenForTest(static_cast<SettingGroup>(number)));
        EXPECT_TRUE(HasKey(where.root, where.path)) << where.path;
    }
    for (const uint32_t number : {15U, 0xFFFFFFFFU}) {
        const auto group = static_cast<SettingGroup>(number);
        EXPECT_EQ(KeyOfGroup(group).root, nullptr);
        EXPECT_EQ(KeyOfGroup(group).path, nullptr);
        EXPECT_FALSE(OpenForTest(group));
    }
}

TEST_F(SettingKinds, NumbersTakeUpToFourBytesOfAnyType) {
    struct Case {
        DWORD type;
        std::string bytes;
        uint32_t number;
    };
    const Case cases[] = {
        {REG_DWORD, {"\x01\x02\x03\x84", 4}, 0x84030201},
        {REG_SZ, {"A\0B\0", 4}, 0x00420041},
        {REG_BINARY, "\xFF", 0xFF},
        {REG_BINARY, {"\x01\x02\x03", 3}, 0x030201},
        {REG_DWORD, "", 0},
        {REG_BINARY, "12345", 77},
        {REG_SZ, {"l\0o\0n\0g\0\0\0", 10}, 77},
    };
    for (const Case& c : cases) {
        SetValue(HKEY_CURRENT_USER, kRoot, L"Number", c.type, c.bytes.data(), c.bytes.size());
        DwordSetting setting;
        setting.value = 0xDDDDDDDD;
        EXPECT_EQ(setting.Load(nullptr, 77, L"Number", SettingGroup::Root), c.number)
            << c.bytes.size() << " bytes of type " << c.type;
        EXPECT_EQ(setting.value, c.number);
        EXPECT_EQ(setting.defaultValue, 77U);
        EXPECT_FALSE(setting.changed);
    }
}

TEST_F(SettingKinds, TextsAreBoundedByTheirSize) {
    struct Case {
        DWORD type;
        std::string bytes;
        const wchar_t* text;
    };
    const Case cases[] = {
        {REG_SZ, {"a\0b\0\0\0", 6}, L"ab"},
        {REG_SZ, {"a\0b\0", 4}, L"ab"},  // Without a terminator.
        {REG_SZ, {"a\0b\0c", 5}, L"ab"}, // Half a character.
        {REG_BINARY, "x", L""},          // Not even one.
        {REG_SZ, "", L""},
        {REG_MULTI_SZ, {"a\0\0\0b\0\0\0\0\0", 10}, L"a"},
        {REG_DWORD, {"A\0B\0", 4}, L"AB"},
    };
    for (const Case& c : cases) {
        SetValue(HKEY_CURRENT_USER, kRoot, L"Text", c.type, c.bytes.data(), c.bytes.size());
        StringSetting setting;
        EXPECT_STREQ(setting.Load(nullptr, L"default", L"Text", SettingGroup::Root), c.text)
            << c.bytes.size() << " bytes of type " << c.type;
        EXPECT_FALSE(setting.changed);
    }
    StringSetting missing;
    EXPECT_STREQ(missing.Load(nullptr, L"default", L"Missing", SettingGroup::Root), L"default");

    const std::wstring huge(500'000, L'h');
    SetText(HKEY_CURRENT_USER, kRoot, L"Text", huge);
    StringSetting setting;
    EXPECT_EQ(setting.Load(nullptr, L"", L"Text", SettingGroup::Root), huge);
    setting.Set(setting.value.CStr() + 100'000);
    setting.Save(nullptr);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), huge.substr(100'000));
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

TEST_F(SettingKinds, APassedKeyIsUsedAndLeftOpen) {
    SetNumber(HKEY_CURRENT_USER, kTasks, L"Number", 4);
    const UniqueKey tasks = OpenForTest(SettingGroup::Tasks);
    StandInResetCalls();
    DwordSetting number;
    StringSetting text;
    EXPECT_EQ(number.Load(tasks.Get(), 0, L"Number", SettingGroup::Root), 4U);
    text.Load(tasks.Get(), L"", L"Text", SettingGroup::Root);
    number.Set(8);
    text.Set(L"t");
    number.Save(tasks.Get());
    text.Save(tasks.Get());
    EXPECT_EQ(StandInCallCount(kRegCreateKeyCalls | kRegOpenKeyCalls | kRegCloseKeyCalls), 0U);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kTasks, L"Number"), 8U);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kTasks, L"Text"), L"t");
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, std::wstring(kRoot) + L"\\Calendar"));
}

TEST_F(SettingKinds, FailingCallsGiveDefaultsAndDropWrites) {
    SetNumber(HKEY_CURRENT_USER, kRoot, L"Number", 5);
    SetText(HKEY_CURRENT_USER, kRoot, L"Text", L"stored");
    DwordSetting number;
    StringSetting text;
    for (const ULONG failing : {kRegCreateKeyCalls, kRegQueryValueCalls}) {
        StandInFailCall(failing, 1, ERROR_ACCESS_DENIED);
        EXPECT_EQ(number.Load(nullptr, 1, L"Number", SettingGroup::Root), 1U);
        StandInFailCall(failing, 1, ERROR_ACCESS_DENIED);
        EXPECT_STREQ(text.Load(nullptr, L"d", L"Text", SettingGroup::Root), L"d");
    }
    // The size is told, the text is not.
    StandInFailCall(kRegQueryValueCalls, 2, ERROR_MORE_DATA);
    EXPECT_STREQ(text.Load(nullptr, L"d", L"Text", SettingGroup::Root), L"d");

    number.Set(3);
    text.Set(L"new");
    for (const ULONG failing : {kRegCreateKeyCalls, kRegSetValueCalls}) {
        StandInFailCall(failing, 1, ERROR_ACCESS_DENIED);
        number.Save(nullptr);
        StandInFailCall(failing, 1, ERROR_ACCESS_DENIED);
        text.Save(nullptr);
    }
    StandInResetCalls();
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kRoot, L"Number"), 5U);
    EXPECT_EQ(GetText(HKEY_CURRENT_USER, kRoot, L"Text"), L"stored");
}

TEST_F(SettingKinds, FlagsAreTakenOnlyWhenTheyFit) {
    struct Case {
        DWORD type;
        size_t size;
        bool taken;
    };
    const BYTE stored[] = {1, 2, 3, 4, 5, 6, 7};
    const UniqueKey key = OpenForTest(SettingGroup::Tasks);
    for (const Case& c :
         {Case{REG_BINARY, 6, true}, Case{REG_BINARY, 5, false}, Case{REG_BINARY, 7, false},
          Case{REG_BINARY, 0, false}, Case{REG_SZ, 6, false}, Case{REG_DWORD, 4, false}}) {
        SetValue(HKEY_CURRENT_USER, kTasks, L"FoldState", c.type, stored, c.size);
        for (const bool allSet : {false, true}) {
            BitsSetting flags;
            flags.Load(key.Get(), 41, allSet, L"FoldState", SettingGroup::Tasks);
            ASSERT_EQ(flags.byteCount, 6U);
            for (size_t at = 0; at < 6; ++at) {
                const BYTE untouched = allSet ? 0xFF : 0;
                EXPECT_EQ(flags.bits[at], c.taken ? stored[at] : untouched) << c.type << c.size;
            }
        }
    }
    SetValue(HKEY_CURRENT_USER, kTasks, L"FoldState", REG_BINARY, stored, 6);
    BitsSetting flags;
    flags.Load(nullptr, 41, false, L"FoldState", SettingGroup::Tasks);
    EXPECT_EQ(flags.bits[0], 0) << "read although no key was passed";
    for (const ULONG failing : {1UL, 2UL}) {
        StandInFailCall(kRegQueryValueCalls, failing, ERROR_MORE_DATA);
        flags.Load(key.Get(), 41, true, L"FoldState", SettingGroup::Tasks);
        EXPECT_EQ(flags.bits[5], 0xFF);
    }
    StandInResetCalls();
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
    EXPECT_EQ(font.logFont.lfUnderline, 0);
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
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfHeight"), 0xFFFFFFECU);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfWeight"), 100U);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfItalic"), 1U);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfUnderline"), 255U);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfStrikeOut"), 0U);
    EXPECT_EQ(GetNumber(HKEY_CURRENT_USER, kFonts, L"FontXlfColor"), 0xFFU);

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
