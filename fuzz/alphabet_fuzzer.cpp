#include "files/alphabet_file.h"

#include "files/utf8.h"
#include "fuzz/fuzzing.h"
#include "tests/support/memory_stream.h"

namespace {

// A text as a line of a file. Blanks around it do not count.
std::string LineOf(const WideString& text) {
    std::string line = " \t";
    for (size_t place = 0; place < text.Length(); ++place) {
        uint8_t bytes[4];
        const size_t size = EncodeUtf8(static_cast<char16_t>(text.CStr()[place]), bytes);
        line.append(reinterpret_cast<const char*>(bytes), size);
    }
    return line + " \r\n";
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    MemorySource source(BytesOf(data, size), 7);
    const auto read = ReadAlphabet(source);
    if (!read) return 0;
    Require(!read->name.IsEmpty() && read->name.Length() <= kMaxAlphabetName, "a name");
    Require(!read->groups.empty() && read->groups.size() <= kMaxAlphabetGroups, "groups");
    std::string written = LineOf(read->name);
    for (const WideString& group : read->groups) {
        Require(!group.IsEmpty() && group.Length() <= kMaxAlphabetGroup, "letters");
        written += LineOf(group);
    }
    MemorySource copy(written, 5);
    const auto again = ReadAlphabet(copy);
    Require(again && again->name == read->name, "the name is kept");
    Require(again->groups == read->groups, "the groups are kept");
    return 0;
}
