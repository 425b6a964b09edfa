#include "shell/services/resource_strings.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "tests/support/child_process.h"
#include "tests/support/string_library.h"

namespace {

constexpr UINT kId = 1436;

std::wstring OwnPath() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

TEST(ResourceStrings, ComeFromTheLibraryAndAreCutAtTheBuffer) {
    const std::wstring longText(1500, L'w');
    const std::wstring path = OwnPath() + L".dll";
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
        EXPECT_TRUE(LanguageText(kId).IsEmpty());
    }
    DeleteFileW(path.c_str());
}

// Is set for the copy of this program that the test below runs.
constexpr wchar_t kCopyVariable[] = L"OV_TEST_IN_COPY_WITH_TEXTS";

// Shows only in a program that has texts of its own, so the test runs itself in such a copy.
TEST(ResourceStrings, NoLibraryIsNotTheProgramItself) {
    if (GetEnvironmentVariableW(kCopyVariable, nullptr, 0) == 0) {
        const std::wstring copy = OwnPath() + L".texts.exe";
        ASSERT_TRUE(CopyFileW(OwnPath().c_str(), copy.c_str(), FALSE));
        ASSERT_TRUE(AddString(copy, kId, L"own"));
        ASSERT_TRUE(SetEnvironmentVariableW(kCopyVariable, L"1"));
        EXPECT_EQ(RunTests(copy, L"--gtest_filter=ResourceStrings.NoLibrary*"), 0U);
        SetEnvironmentVariableW(kCopyVariable, nullptr);
        DeleteFileW(copy.c_str());
        return;
    }
    wchar_t own[16] = L"";
    ASSERT_GT(LoadStringW(nullptr, kId, own, 16), 0) << "the copy has no text";
    WideString text(L"before");
    EXPECT_EQ(LoadResString(nullptr, kId, text), 0);
    EXPECT_STREQ(text.CStr(), L"");
}

} // namespace
