#include "category_text.h"

#include <charconv>

namespace {

constexpr char16_t kReplacement = 0xFFFD;

// Takes off and answers what stands before the separator, which goes too; all when there is none.
std::string_view TakeUntil(std::string_view& rest, char separator) {
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

std::optional<std::int16_t> ParseNumber(std::string_view field) {
    std::int16_t number = 0;
    const char* end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, number);
    if (error != std::errc{} || stop != end) return {};
    return number;
}

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// How many bytes a sequence that starts so has; 0 when none does.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// Takes off one character; one byte only where the bytes are no character.
char32_t TakeCodePoint(std::string_view& rest) {
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(rest[0]);
    const std::size_t length = SequenceLength(lead);
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    bool isSound = length != 0 && length <= rest.size();
    for (std::size_t i = 1; isSound && i < length; ++i) {
        isSound = IsContinuation(rest[i]);
        point = point << 6 | (static_cast<unsigned char>(rest[i]) & 0x3F);
    }
    isSound = isSound && point >= kLeast[length] && point <= 0x10FFFF &&
              !(point >= 0xD800 && point <= 0xDFFF);
    rest.remove_prefix(isSound ? length : 1);
    return isSound ? point : kReplacement;
}

std::u16string DecodeUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const char32_t point = TakeCodePoint(bytes);
        if (point < 0x10000) {
            text += static_cast<char16_t>(point);
        } else {
            text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
        }
    }
    return text;
}

CategoryRecord ParseRecord(std::string_view line) {
    CategoryRecord record;
    record.number = ParseNumber(TakeUntil(line, '\t'));
    record.flag = ParseNumber(TakeUntil(line, '\t'));
    if (!line.empty()) record.name = DecodeUtf8(line);
    return record;
}

} // namespace

std::vector<CategoryRecord> ParseCategoryText(std::string_view text) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
    std::vector<CategoryRecord> records;
    while (!text.empty()) {
        std::string_view line = TakeUntil(text, '\n');
        if (line.ends_with('\r')) line.remove_suffix(1);
        const bool isBlank = line.find_first_not_of(" \t") == std::string_view::npos;
        if (!isBlank && line[0] != '#') records.push_back(ParseRecord(line));
    }
    return records;
}
