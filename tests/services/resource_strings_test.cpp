#include "shell/services/resource_strings.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "tests/support/string_library.h"

namespace {

constexpr UINT kId = 1436;

std::wstring TemporaryFile(const wchar_t* name) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + name;
}

std::wstring OwnPath() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

TEST(ResourceStrings, ComeFromTheLibraryAndAreCutAtTheBuffer) {
    const std::wstring longText(1500, L'w');
    const std::wstring path = TemporaryFile(L"ResourceStrings.dll");
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

DWORD RunInCopy(const std::wstring& copy) {
    std::wstring command = L"\"" + copy + L"\" --gtest_filter=ResourceStrings.NoLibrary*";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES; // None: its report would look like this program's.
    PROCESS_INFORMATION child = {};
    SetEnvironmentVariableW(kCopyVariable, L"1");
    const BOOL started = CreateProcessW(copy.c_str(), command.data(), nullptr, nullptr, FALSE, 0,
                                        nullptr, nullptr, &start, &child);
    SetEnvironmentVariableW(kCopyVariable, nullptr);
    DWORD exitCode = ~0U;
    if (!started) return exitCode;
    WaitForSingleObject(child.hProcess, INFINITE);
    GetExitCodeProcess(child.hProcess, &exitCode);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    return exitCode;
}

// Shows only in a program that has texts of its own, so the test runs itself in such a copy.
TEST(ResourceStrings, NoLibraryIsNotTheProgramItself) {
    if (GetEnvironmentVariableW(kCopyVariable, nullptr, 0) == 0) {
        const std::wstring copy = OwnPath() + L".texts.exe";
        ASSERT_TRUE(CopyFileW(OwnPath().c_str(), copy.c_str(), FALSE));
        ASSERT_TRUE(AddString(copy, kId, L"own"));
        EXPECT_EQ(RunInCopy(copy), 0U);
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
