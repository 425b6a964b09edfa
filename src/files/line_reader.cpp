#include "files/line_reader.h"

#include <algorithm>

#include "files/utf8.h"

LineReader::LineReader(ByteSource& source) : bytes_(source), line_(new wchar_t[kMaxLine]) {}

std::optional<std::wstring_view> LineReader::Next() {
    size_t length = 0;
    while (length < kMaxLine) {
        length += TakePlain(length);
        if (length == kMaxLine) break;
        const size_t taken = Take(length);
        if (taken == 0) break;
        length += taken;
        if (line_[length - 1] == L'\n') break;
    }
    if (length == 0) return std::nullopt;
    return std::wstring_view(line_.get(), length);
}

size_t LineReader::TakePlain(size_t place) {
    const std::span<const uint8_t> ahead = bytes_.Ahead(1);
    const size_t most = std::min(ahead.size(), kMaxLine - place);
    size_t count = 0;
    for (; count < most && ahead[count] >= ' ' && ahead[count] < 0x80; ++count)
        line_[place + count] = static_cast<wchar_t>(ahead[count]);
    bytes_.Skip(count);
    return count;
}

size_t LineReader::Take(size_t place) {
    const std::span<const uint8_t> ahead = bytes_.Ahead(4);
    if (ahead.empty()) return 0;
    if (ahead.size() > 1 && ahead[0] == '\r' && ahead[1] == '\n') {
        bytes_.Skip(2);
        line_[place] = L'\n';
        return 1;
    }
    const DecodedCharacter decoded = DecodeUtf8(ahead);
    const bool isPair = decoded.character > 0xFFFF;
    // A pair that does not fit goes to the next line whole.
    if (isPair && place + 2 > kMaxLine) return 0;
    bytes_.Skip(decoded.size);
    if (!isPair) {
        line_[place] = static_cast<wchar_t>(decoded.character);
        return 1;
    }
    line_[place] = static_cast<wchar_t>(0xD7C0 + (decoded.character >> 10));
    line_[place + 1] = static_cast<wchar_t>(0xDC00 + (decoded.character & 0x3FF));
    return 2;
}
