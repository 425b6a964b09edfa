#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(SystemTest, VersionIsTheDevicesNotThePcs) {
    for (const auto& [variable, version] :
         {std::pair(L"4.20", MAKELONG(20, 4)), std::pair(L"4.2x", MAKELONG(1, 5))}) {
        SetEnvironmentVariableW(L"OVDEVICE_OS", variable);
        OSVERSIONINFOW info = {};
        info.dwOSVersionInfoSize = sizeof info;
        EXPECT_TRUE(GetVersionExW(&info));
        EXPECT_EQ(info.dwPlatformId, 3u);
        EXPECT_EQ(MAKELONG(info.dwMinorVersion, info.dwMajorVersion), version);
    }
    SetEnvironmentVariableW(L"OVDEVICE_OS", nullptr);
}

} // namespace
