#include <gtest/gtest.h>

#include <stand_in.h>

#include <shellapi.h>

#include <set>
#include <string>
#include <vector>

namespace {

OSVERSIONINFOW Version() {
    OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    EXPECT_TRUE(GetVersionExW(&info));
    return info;
}

TEST(SystemTest, VersionIsTheDevicesNotThePcs) {
    const auto played = [](const wchar_t* variable) {
        SetEnvironmentVariableW(L"OVDEVICE_OS", variable);
        const OSVERSIONINFOW info = Version();
        EXPECT_EQ(info.dwPlatformId, 3u);
        return MAKELONG(info.dwMinorVersion, info.dwMajorVersion);
    };
    EXPECT_EQ(played(L"4.20"), MAKELONG(20, 4));
    EXPECT_EQ(played(L"6.0"), MAKELONG(0, 6));
    EXPECT_EQ(played(nullptr), MAKELONG(1, 5));
    for (const wchar_t* malformed :
         {L"4.", L".2", L"4", L"4.2.1", L"-4.2", L"4.2x", L"4.9999", L"4.2000000000000000000000"})
        EXPECT_EQ(played(malformed), MAKELONG(1, 5)) << malformed;
    SetEnvironmentVariableW(L"OVDEVICE_OS", L"4.20");
    StandInSetOsVersion(5, 2);
    EXPECT_EQ(Version().dwMinorVersion, 2u);
    StandInSetOsVersion(0, 0);
    EXPECT_EQ(Version().dwMinorVersion, 20u);
    SetEnvironmentVariableW(L"OVDEVICE_OS", nullptr);

    OSVERSIONINFOW tooSmall = {};
    EXPECT_FALSE(GetVersionExW(&tooSmall));
}

TEST(SystemTest, FileInfoTakesAPathWithoutADrive) {
    SHFILEINFOW info = {};
    EXPECT_NE(SHGetFileInfoW(L"\\windows", 0, &info, sizeof info, SHGFI_DISPLAYNAME), 0u);
    EXPECT_STREQ(info.szDisplayName, L"windows");
    EXPECT_EQ(SHGetFileInfoW(L"\\no such folder", 0, &info, sizeof info, SHGFI_DISPLAYNAME), 0u);
    const std::wstring tooLong = L"\\" + std::wstring(2 * MAX_PATH, L'x');
    EXPECT_EQ(SHGetFileInfoW(tooLong.c_str(), 0, &info, sizeof info, SHGFI_DISPLAYNAME), 0u);
}

using EnumFontsProc = int(WINAPI*)(HDC, LPCWSTR, FONTENUMPROCW, LPARAM);

int CALLBACK CollectFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM fonts) {
    const std::wstring style =
        std::to_wstring(font->lfWeight) + (font->lfItalic ? L" italic" : L"");
    reinterpret_cast<std::vector<std::wstring>*>(fonts)->push_back(font->lfFaceName +
                                                                   (L" " + style));
    return 1;
}

int CALLBACK StopAtSecond(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM count) {
    return ++*reinterpret_cast<int*>(count) == 2 ? 0 : 1;
}

std::vector<std::wstring> Fonts(EnumFontsProc enumFonts, const wchar_t* face) {
    const HDC dc = CreateCompatibleDC(nullptr);
    std::vector<std::wstring> fonts;
    enumFonts(dc, face, CollectFont, reinterpret_cast<LPARAM>(&fonts));
    DeleteDC(dc);
    return fonts;
}

// The faces, or the styles of one face, are those of the PC, but each only once.
TEST(SystemTest, EachFontIsNamedOnce) {
    const HMODULE gdi = GetModuleHandleW(L"gdi32.dll");
    const auto ofPc =
        reinterpret_cast<EnumFontsProc>(reinterpret_cast<void*>(GetProcAddress(gdi, "EnumFontsW")));
    for (const wchar_t* face : {static_cast<const wchar_t*>(nullptr), L"Tahoma"}) {
        const auto all = Fonts(ofPc, face);
        const auto named = Fonts(EnumFontsW, face);
        const std::set<std::wstring> distinct(all.begin(), all.end());
        ASSERT_GE(distinct.size(), 1u);
        EXPECT_LT(distinct.size(), all.size()) << "nothing to leave out";
        EXPECT_EQ(named.size(), distinct.size());
        EXPECT_EQ(std::set(named.begin(), named.end()), distinct);
    }
    int count = 0;
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(EnumFontsW(dc, nullptr, StopAtSecond, reinterpret_cast<LPARAM>(&count)), 0);
    DeleteDC(dc);
    EXPECT_EQ(count, 2);
}

} // namespace
