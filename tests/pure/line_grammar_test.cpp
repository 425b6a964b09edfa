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

// What cannot be parsed gives no parts.
TEST(LineGrammar, SectionHeaders) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"[a\\b c]\r", L"a\\b c"}, {L"[a]b]\n", L"a]b"}, {L"[]\n", L""}};
    std::wstring_view name;
    for (const auto& [line, parsed] : cases) {
        EXPECT_TRUE(ParseSectionHeader(line, name)) << line;
        EXPECT_EQ(name, parsed);
    }
    for (const wchar_t* line : {L"[a]", L"[]", L" [a]\n", L"[a] \n", L""}) {
        EXPECT_FALSE(ParseSectionHeader(line, name)) << line;
        EXPECT_EQ(name, L"") << line;
    }
}

TEST(LineGrammar, TextValues) {
    struct Case {
        const wchar_t* line;
        const wchar_t* name;
        const wchar_t* text;
    };
    const Case cases[] = {
        {L"\"ab\"=\"\"\n", L"ab", L""},
        {L"\"a%s\"=\"say \"no\"\"\r", L"a%s", L"say \"no\""},
        {L"\"a\"=\"b\"=\"c\"\n", L"a", L"b\"=\"c"},
        {L"\"=\"text\"\n", L"", L"text"},
        {L"\"abcd\"=\"\n", L"abcd", L""}, // The mark's own quote is taken for the last one.
    };
    std::wstring_view name;
    std::wstring_view text;
    for (const Case& c : cases) {
        EXPECT_TRUE(ParseStringValueLine(c.line, name, text)) << c.line;
        EXPECT_EQ(name, c.name);
        EXPECT_EQ(text, c.text);
    }
    // The first has only seven characters.
    for (const wchar_t* line :
         {L"\"\"=\"\"\n", L"\"a\"=\"b\"", L"\"a\"=\"b\" \n", L"a\"=\"bcd\"\n"}) {
        EXPECT_FALSE(ParseStringValueLine(line, name, text)) << line;
        EXPECT_TRUE(name.empty() && text.empty()) << line;
    }
}

TEST(LineGrammar, NumberValues) {
    struct Case {
        const wchar_t* line;
        const wchar_t* name;
        uint32_t number;
    };
    const Case cases[] = {
        {L"\"100% n\"=dword:-1\n", L"100% n", 0xFFFFFFFF},
        {L"\"a\"=dword:4294967297x\n", L"a", 1},
        {L"\"a\"=dword:\n", L"a", 0},
        {L"\"a=b\"=dword:5\n", L"", 5},
        {L"\"ab=c\"=dword:5\n", L"a", 5}, // One more than the "=" is taken for the quote.
        {L"=dword:5", L"", 5},
    };
    std::wstring_view name;
    uint32_t number = 0;
    for (const Case& c : cases) {
        EXPECT_TRUE(ParseDwordValueLine(c.line, name, number)) << c.line;
        EXPECT_EQ(name, c.name);
        EXPECT_EQ(number, c.number) << c.line;
    }
    EXPECT_FALSE(ParseDwordValueLine(L"\"a\"=dword:", name, number));
    EXPECT_FALSE(ParseDwordValueLine(L"\"Color\"=\"red\"\n", name, number));
    EXPECT_EQ(name, L"Color");
    EXPECT_EQ(number, 5U) << "stays as it was";
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
    // The first and the last of each size, and half of a pair.
    const std::wstring text = L"\x7F\x80\x7FF\x800\xFFFF\xD83D\xDE00\xDBFF\xDFFF\xD83D";
    MemorySink sink;
    LineWriter(sink).Text(L"n", text);
    EXPECT_EQ(LinesOf(sink.content)[0], L"\"n\"=\"" + text + L"\"\n");
}

TEST(LineWriter, WritesTheGrammar) {
    MemorySink sink;
    {
        LineWriter lines(sink);
        lines.Section(L"Key\\Sub");
        lines.Text(L"t\u00FC", L"a \"b\" %d");
        lines.Number(L"m", 0x7FFFFFFF);
        lines.Number(L"k", 0x80000000);
        lines.Text(std::wstring(400, L'x'), std::wstring(500, L'y'));
    }
    const std::string expected = "\r\n[Key\\Sub]\r\n\"t\xC3\xBC\"=\"a \"b\" %d\"\r\n"
                                 "\"m\"=dword:2147483647\r\n"
                                 "\"k\"=dword:-2147483648\r\n";
    EXPECT_EQ(sink.content.substr(0, expected.size()), expected);
    EXPECT_EQ(sink.content.size() - expected.size(), 800U) << "cut, line end and all";
}

} // namespace
