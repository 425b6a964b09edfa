#include "shell/services/resource_strings.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "tests/support/string_library.h"

namespace {

TEST(ResourceStrings, ComeFromTheLibraryAndAreCutAtTheBuffer) {
    constexpr UINT kId = 1436;
    const std::wstring longText(1500, L'w');
    wchar_t own[MAX_PATH];
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    const std::wstring path = std::wstring(own) + L".dll";
    ASSERT_TRUE(MakeStringLibrary(path, kId, longText));
    {
        const UniqueModule library(LoadLibraryW(path.c_str()));
        ASSERT_TRUE(library);
        WideString text;
        EXPECT_EQ(LoadResString(library.Get(), kId, text), 1023);
        EXPECT_EQ(text.CStr(), longText.substr(0, 1023));
        EXPECT_EQ(LoadResString(library.Get(), kId + 1, text), 0);
        EXPECT_STREQ(text.CStr(), L"");

        application.languageLibrary = library.Get();
        EXPECT_EQ(LanguageText(kId).Length(), 1023U);
        application.languageLibrary = nullptr;
    }
    DeleteFileW(path.c_str());
}

} // namespace
