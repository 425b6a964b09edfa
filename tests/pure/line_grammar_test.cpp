#include "files/line_grammar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/line_reader.h"
#include "files/line_writer.h"
#include "tests/support/memory_stream.h"

namespace {

std::vector<std::wstring> LinesOf(const std::string& bytes, size_t step = 1 << 20) {
    MemorySource source(bytes, step);
    LineReader reader(source);
    std::vector<std::wstring> lines;
    while (const auto line = reader.Next())
        lines.emplace_back(*line);
    return lines;
}

TEST(LineGrammar, SectionHeaders) {
    struct Case {
        const wchar_t* line;
        const wchar_t* name; // Null: refused.
    };
    const Case cases[] = {
        {L"[a]\n", L"a"},           {L"[]\n", L""},   {L"[a]b]\n", L"a]b"},
        {L"[a]", nullptr},          {L"[]", nullptr}, {L" [a]\n", nullptr},
        {L"[a] \n", nullptr},       {L"", nullptr},   {L"\n", nullptr},
        {L"[a\\b c]\r", L"a\\b c"},
    };
    for (const Case& c : cases) {
        std::wstring_view name;
        EXPECT_EQ(ParseSectionHeader(c.line, name), c.name != nullptr) << c.line;
        EXPECT_EQ(name, c.name != nullptr ? c.name : L"") << c.line;
    }
}

TEST(LineGrammar, TextValues) {
    struct Case {
        const wchar_t* line;
        const wchar_t* name; // Null: refused.
        const wchar_t* text;
    };
    const Case cases[] = {
        {L"\"a\"=\"b\"\n", L"a", L"b"},
        {L"\"ab\"=\"\"\n", L"ab", L""},
        {L"\"a\"=\"say \"no\"\"\n", L"a", L"say \"no\""},
        {L"\"a\"=\"b\"=\"c\"\n", L"a", L"b\"=\"c"},
        {L"\"a%s\"=\"C:\\new\"\n", L"a%s", L"C:\\new"},
        {L"\"Title\"=\"Work\"\r", L"Title", L"Work"},
        {L"\"=\"text\"\n", L"", L"text"},
        {L"\"abcd\"=\"\n", L"abcd", L""},   // The mark's own quote is taken for the last one.
        {L"\"\"=\"\"\n", nullptr, nullptr}, // Seven characters.
        {L"\"a\"=\"b\"", nullptr, nullptr},
        {L"\"a\"=\"b\" \n", nullptr, nullptr},
        {L"a\"=\"bcd\"\n", nullptr, nullptr},
        {L"", nullptr, nullptr},
    };
    for (const Case& c : cases) {
        std::wstring_view name = L"old";
        std::wstring_view text = L"old";
        EXPECT_EQ(ParseStringValueLine(c.line, name, text), c.name != nullptr) << c.line;
        EXPECT_EQ(name, c.name != nullptr ? c.name : L"") << c.line;
        EXPECT_EQ(text, c.text != nullptr ? c.text : L"") << c.line;
    }
}

TEST(LineGrammar, NumberValues) {
    const std::wstring longName(300, L'n');
    const std::wstring longLine = L"\"" + longName + L"\"=dword:7\n";
    struct Case {
        std::wstring_view line;
        std::wstring_view name;
        uint32_t number; // 99: refused.
    };
    const Case cases[] = {
        {L"\"a\"=dword:5\n", L"a", 5},
        {L"\"100% n\"=dword:-1\n", L"100% n", 0xFFFFFFFF},
        {L"\"a\"=dword:4294967295\n", L"a", 0xFFFFFFFF},
        {L"\"a\"=dword:4294967297x\n", L"a", 1},
        {L"\"a\"=dword:\n", L"a", 0},
        {L"\"a\"=dword:", L"a", 99},
        {L"\"a=b\"=dword:5\n", L"", 5},
        {L"\"ab=c\"=dword:5\n", L"a", 5}, // One more than the "=" is taken for the quote.
        {L"=dword:5", L"", 5},
        {L"\"=dword:5", L"", 5},
        {L"\"Color\"=\"red\"\n", L"Color", 99},
        {L"nothing", L"", 99},
        {L"", L"", 99},
        {longLine, longName, 7},
    };
    for (const Case& c : cases) {
        std::wstring_view name;
        uint32_t number = 99;
        EXPECT_EQ(ParseDwordValueLine(c.line, name, number), c.number != 99)
            << std::wstring(c.line);
        EXPECT_TRUE(name == c.name) << std::wstring(c.line);
        EXPECT_EQ(number, c.number) << std::wstring(c.line);
    }
}

TEST(LineReader, EndsLinesAtEitherLineEnd) {
    const std::vector<std::wstring> expected = {L"\n", L"a\n", L"b\n", L"c\rd\n", L"\x1A e"};
    for (const size_t step : {1, 2, 3, 1000}) {
        EXPECT_EQ(LinesOf("\r\na\nb\r\nc\rd\n\x1A e", step), expected) << step;
    }
    EXPECT_TRUE(LinesOf("").empty());
}

TEST(LineReader, CutsLongLines) {
    const std::string full(LineReader::kMaxLine, 'x');
    const std::vector<std::wstring> whole = {std::wstring(full.size() - 1, L'x') + L"\n", L"y"};
    EXPECT_EQ(LinesOf(full.substr(1) + "\r\ny"), whole);
    const std::vector<std::wstring> parts = {std::wstring(full.size(), L'x'), L"\n"};
    EXPECT_EQ(LinesOf(full + "\r\n"), parts) << "the line end comes alone";
    const auto pair = LinesOf(full.substr(1) + "\xF0\x9F\x98\x80");
    ASSERT_EQ(pair.size(), 2U);
    EXPECT_EQ(pair[1].size(), 2U) << "a pair is never parted";
    EXPECT_EQ(LinesOf(std::string(1 << 20, 'z')).size(), (1 << 20) / LineReader::kMaxLine + 1);
}

TEST(LineReader, ReadsBytesThatAreNoUtf8AsLatin) {
    EXPECT_EQ(
        LinesOf("\xFC\x80 \xC3\xBC \xE2\x82\xAC \xED\xA0\x80 \xC0\x80 \xF8 \xE0\x80\x80 "
                "\xF4\x90\x80\x80 \xE2\x82"),
        (std::vector<std::wstring>{
            L"\xFC\x80 \xFC \x20AC \xD800 \xC0\x80 \xF8 \xE0\x80\x80 \xF4\x90\x80\x80 \xE2\x82"}));
}

TEST(LineWriter, WritesWhatTheReaderReads) {
    std::wstring all;
    for (uint32_t unit = 1; unit <= 0xFFFF; ++unit) {
        if (unit != L'\n' && unit != L'\r') all.push_back(static_cast<wchar_t>(unit));
    }
    all += L"\xD83D\xDE00\xD83D";
    MemorySink sink;
    {
        LineWriter lines(sink);
        for (size_t start = 0; start < all.size(); start += 700)
            lines.Text(L"n", all.substr(start, 700));
    }
    MemorySource source(sink.content);
    LineReader reader(source);
    std::wstring read;
    while (const auto line = reader.Next()) {
        std::wstring_view name;
        std::wstring_view text;
        ASSERT_TRUE(ParseStringValueLine(*line, name, text));
        read += text;
    }
    EXPECT_EQ(read, all);
}

TEST(LineWriter, WritesTheGrammar) {
    MemorySink sink;
    {
        LineWriter lines(sink);
        lines.Section(L"Key\\Sub");
        lines.Text(L"t\u00FC", L"a \"b\" %d");
        lines.Number(L"n", 0xFFFFFFFF);
        lines.Number(L"m", 0x7FFFFFFF);
        lines.Number(L"k", 0x80000000);
        lines.Text(std::wstring(400, L'x'), std::wstring(500, L'y'));
    }
    const std::string expected = "\r\n[Key\\Sub]\r\n\"t\xC3\xBC\"=\"a \"b\" %d\"\r\n"
                                 "\"n\"=dword:-1\r\n\"m\"=dword:2147483647\r\n"
                                 "\"k\"=dword:-2147483648\r\n";
    EXPECT_EQ(sink.content.substr(0, expected.size()), expected);
    EXPECT_EQ(sink.content.size() - expected.size(), 800U) << "cut, line end and all";
}

} // namespace
