#include <algorithm>

#include "files/line_grammar.h"
#include "files/line_reader.h"
#include "files/line_writer.h"
#include "files/utf8.h"
#include "fuzz/fuzzing.h"
#include "tests/support/memory_stream.h"

namespace {

bool LiesIn(std::wstring_view part, std::wstring_view line) {
    return part.empty() ||
           (part.data() >= line.data() && part.data() + part.size() <= line.data() + line.size());
}

void ParseAnything(std::wstring_view line) {
    std::wstring_view name;
    std::wstring_view text;
    uint32_t number = 0;
    if (ParseSectionHeader(line, name)) Require(name.size() + 3 == line.size(), "a header");
    const bool isText = ParseStringValueLine(line, name, text);
    Require(LiesIn(name, line) && LiesIn(text, line), "a text's parts");
    Require(!isText || LooksLikeStringValue(line), "a text looks like one");
    (void)ParseDwordValueLine(line, name, number);
    Require(LiesIn(name, line), "a number's name");
}

// What is written, and can be, is read again.
void WriteAndRead(const std::wstring& name, const std::wstring& text) {
    const auto isLineBreak = [](wchar_t unit) { return unit == L'\n' || unit == L'\r'; };
    if (name.empty() || name.size() + text.size() < 2 || name.size() + text.size() > 700) return;
    if (std::ranges::any_of(name + text, isLineBreak)) return;
    if ((L"\"" + name + L"\"=\"").find(L"\"=\"") != name.size() + 1) return;
    MemorySink sink;
    LineWriter(sink).Text(name, text);
    MemorySource source(sink.content, 3);
    LineReader reader(source);
    const auto line = reader.Next();
    std::wstring_view readName;
    std::wstring_view readText;
    Require(line && ParseStringValueLine(*line, readName, readText), "a written text is read");
    Require(readName == name && readText == text, "as it was");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > 0) {
        const DecodedCharacter decoded = DecodeUtf8({data, size});
        Require(decoded.size >= 1 && decoded.size <= size, "a character's bytes");
    }
    const std::vector<wchar_t> exact = TextOf(data, size);
    ParseAnything({exact.data(), exact.size()});
    const std::wstring text(exact.begin(), exact.end());
    const size_t half = text.size() / 2;
    WriteAndRead(text.substr(0, half), text.substr(half));
    return 0;
}
