// The texts of the language libraries: each there, once, and made of the same parts.
#include <map>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "tests/resources/language_library.h"

namespace {

// The conversions of a format, each from its '%' to its letter.
std::vector<std::wstring> FormatMarks(const std::wstring& text) {
    std::vector<std::wstring> marks;
    for (size_t at = text.find(L'%'); at != std::wstring::npos; at = text.find(L'%', at)) {
        const size_t end = std::min(text.find_first_of(L"%diuxXcsS", at + 1), text.size() - 1);
        marks.push_back(text.substr(at, end - at + 1));
        at = end + 1;
    }
    return marks;
}

// The colon of a label, and the space before what the program adds.
std::wstring Ending(const std::wstring& text) {
    return text.substr(text.find_last_not_of(L" :") + 1);
}

TEST(ResourceIds, NoTwoTextsShareANumber) {
    std::map<UINT, const char*> names;
    for (const TextName& text : kTexts) {
        const auto [other, fresh] = names.emplace(text.id, text.name);
        EXPECT_TRUE(fresh) << text.name << " and " << other->second << " are both " << text.id;
    }
}

using LanguageTexts = LanguageLibrary;

TEST_P(LanguageTexts, AreAllThere) {
    for (const TextName& text : kTexts)
        EXPECT_FALSE(Text(text.id).empty()) << text.name;
}

TEST_P(LanguageTexts, HaveTheFormatMarksAndEndingsOfEnglish) {
    for (const TextName& text : kTexts) {
        const std::wstring english = TextIn(english_.Get(), text.id);
        EXPECT_EQ(FormatMarks(Text(text.id)), FormatMarks(english)) << text.name;
        EXPECT_EQ(Ending(Text(text.id)), Ending(english)) << text.name;
    }
}

// UTF-8 read as a single-byte encoding leaves these behind; a label would swallow an ampersand.
TEST_P(LanguageTexts, ArriveInTheRightEncoding) {
    EXPECT_EQ(Text(IDS_ABOUT_RIGHTS).substr(0, 2), L"\u00A9 ");
    for (const TextName& text : kTexts)
        EXPECT_EQ(Text(text.id).find_first_of(L"\u00C2\u00C3\uFFFD&"), std::wstring::npos)
            << text.name << ": " << Narrow(Text(text.id));
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTexts, testing::ValuesIn(kLanguages), LanguageTestName);

} // namespace
