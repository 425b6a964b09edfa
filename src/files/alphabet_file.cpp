#include "files/alphabet_file.h"

#include <algorithm>
#include <string_view>

#include "files/line_reader.h"

namespace {
constexpr wchar_t kByteOrderMark = 0xFEFF;
// Blank lines and blanks around the letters are free to a degree.
constexpr size_t kMaxCharacters = 4096;

bool IsControl(wchar_t character) {
    return character < L' ' || (character >= 0x7F && character < 0xA0);
}

bool IsBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

std::wstring_view Trimmed(std::wstring_view line) {
    while (!line.empty() && (IsBlank(line.back()) || line.back() == L'\n'))
        line.remove_suffix(1);
    while (!line.empty() && IsBlank(line.front()))
        line.remove_prefix(1);
    return line;
}

// Whether a trimmed line can be a name or a group.
bool IsText(std::wstring_view line, size_t limit) {
    return !line.empty() && line.size() <= limit && !std::ranges::any_of(line, IsControl);
}

WideString StringOf(std::wstring_view text) {
    WideString string;
    string.Assign(text.data(), text.size());
    return string;
}

// Whether the rest of the line comes as a line of its own. A pair may have left the last place
// free.
bool IsCut(std::wstring_view line) {
    return line.size() + 1 >= LineReader::kMaxLine && line.back() != L'\n';
}

bool ReadName(LineReader& lines, WideString& name) {
    auto line = lines.Next();
    if (!line || IsCut(*line)) return false;
    if (line->front() == kByteOrderMark) line->remove_prefix(1);
    const std::wstring_view text = Trimmed(*line);
    name = StringOf(text);
    return IsText(text, kMaxAlphabetName);
}
} // namespace

std::optional<Alphabet> ReadAlphabet(ByteSource& file) {
    LineReader lines(file);
    Alphabet alphabet;
    if (!ReadName(lines, alphabet.name)) return std::nullopt;
    size_t characters = 0;
    while (const auto line = lines.Next()) {
        characters += line->size();
        if (characters > kMaxCharacters || IsCut(*line)) return std::nullopt;
        const std::wstring_view group = Trimmed(*line);
        if (group.empty()) continue;
        if (!IsText(group, kMaxAlphabetGroup) || alphabet.groups.size() == kMaxAlphabetGroups)
            return std::nullopt;
        alphabet.groups.push_back(StringOf(group));
    }
    if (alphabet.groups.empty()) return std::nullopt;
    return alphabet;
}
