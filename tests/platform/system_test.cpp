#include <gtest/gtest.h>

#include <stand_in.h>

#include <set>
#include <string>
#include <vector>

namespace {

TEST(SystemTest, VersionIsTheDevicesNotThePcs) {
    const auto played = [](const wchar_t* variable) {
        SetEnvironmentVariableW(L"OVDEVICE_OS", variable);
        OSVERSIONINFOW info = {};
        info.dwOSVersionInfoSize = sizeof info;
        EXPECT_TRUE(GetVersionExW(&info));
        EXPECT_EQ(info.dwPlatformId, 3u);
        return MAKELONG(info.dwMinorVersion, info.dwMajorVersion);
    };
    EXPECT_EQ(played(L"4.20"), MAKELONG(20, 4));
    StandInSetOsVersion(5, 2);
    EXPECT_EQ(played(L"4.20"), MAKELONG(2, 5));
    StandInSetOsVersion(0, 0);
    for (const wchar_t* other : {static_cast<const wchar_t*>(nullptr), L"4.2x", L"4.9999"})
        EXPECT_EQ(played(other), MAKELONG(1, 5));
    SetEnvironmentVariableW(L"OVDEVICE_OS", nullptr);
}

using EnumFontsProc = int(WINAPI*)(HDC, LPCWSTR, FONTENUMPROCW, LPARAM);

int CALLBACK CollectFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM faces) {
    reinterpret_cast<std::vector<std::wstring>*>(faces)->emplace_back(font->lfFaceName);
    return 1;
}

std::vector<std::wstring> Faces(EnumFontsProc enumFonts) {
    const HDC dc = CreateCompatibleDC(nullptr);
    std::vector<std::wstring> faces;
    enumFonts(dc, nullptr, CollectFont, reinterpret_cast<LPARAM>(&faces));
    DeleteDC(dc);
    return faces;
}

// The faces are those of the PC, but each only once.
TEST(SystemTest, EachFaceIsNamedOnce) {
    const HMODULE gdi = GetModuleHandleW(L"gdi32.dll");
    const auto all = Faces(reinterpret_cast<EnumFontsProc>(
        reinterpret_cast<void*>(GetProcAddress(gdi, "EnumFontsW"))));
    const auto named = Faces(EnumFontsW);
    const std::set<std::wstring> distinct(all.begin(), all.end());
    EXPECT_LT(distinct.size(), all.size()) << "nothing to leave out";
    EXPECT_EQ(named.size(), distinct.size());
    EXPECT_EQ(std::set(named.begin(), named.end()), distinct);
}

TEST(SystemTest, DeletedKeyGoesWithEverythingBelowIt) {
    for (const wchar_t* path : {L"Software\\Tree\\1\\a", L"Software\\Tree\\1\\b\\c"}) {
        HKEY key = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, 0, nullptr, &key, nullptr);
        RegCloseKey(key);
    }
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Tree"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Tree"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, L""), ERROR_INVALID_PARAMETER);
}

} // namespace
