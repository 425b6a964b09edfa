// The language libraries that are built, and what each must hold.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "shell/services/handles.h"

inline constexpr const char* kLanguages[] = {
#include "language_table.inc"
};

struct TextName {
    const char* name;
    UINT id;
};
inline constexpr TextName kTexts[] = {
#include "resource_text_table.inc"
};

inline std::string Narrow(const std::wstring& text) {
    std::string bytes(text.size() * 3, '\0');
    const int count =
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<size_t>(count));
    return bytes;
}

// The path of an installed library.
inline std::wstring LanguagePath(const std::string& name) {
    return L"\\Program Files\\Teskel\\Orvane\\LangRes\\" + std::wstring(name.begin(), name.end()) +
           L".dll";
}

inline UniqueModule LoadLanguage(const std::string& name) {
    return UniqueModule(LoadLibraryW(LanguagePath(name).c_str()));
}

// Empty where the library lacks it.
inline std::wstring TextIn(HMODULE library, UINT id) {
    wchar_t text[1024];
    const int length = LoadStringW(library, id, text, 1024);
    return std::wstring(text, static_cast<size_t>(length));
}

// The name of a language's tests.
inline std::string LanguageTestName(const testing::TestParamInfo<const char*>& language) {
    return language.param;
}

// One language, beside the English that the others translate.
class LanguageLibrary : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        ASSERT_TRUE(library_) << GetParam();
        ASSERT_TRUE(english_);
    }

    [[nodiscard]] std::wstring Text(UINT id) const { return TextIn(library_.Get(), id); }

    UniqueModule library_ = LoadLanguage(GetParam());
    UniqueModule english_ = LoadLanguage("OVEngRc");
};
