#include "files/utf8.h"

namespace {

// Bytes of a sequence by its first; 0 for one that begins none.
size_t SequenceSize(uint8_t first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first < 0xE0) return 2;
    if (first >= 0xE0 && first < 0xF0) return 3;
    if (first >= 0xF0 && first < 0xF5) return 4;
    return 0;
}

// The least character that takes so many bytes: less, in as many, is no UTF-8.
constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
constexpr char32_t kGreatest = 0x10FFFF;

} // namespace

DecodedCharacter DecodeUtf8(std::span<const uint8_t> bytes) {
    const DecodedCharacter single = {bytes[0], 1};
    const size_t size = SequenceSize(bytes[0]);
    if (size < 2 || size > bytes.size()) return single;
    char32_t character = bytes[0] & (0x7FU >> size);
    for (size_t index = 1; index < size; ++index) {
        if ((bytes[index] & 0xC0U) != 0x80) return single;
        character = character << 6 | (bytes[index] & 0x3FU);
    }
    if (character < kLeast[size] || character > kGreatest) return single;
    return {character, size};
}

size_t EncodeUtf8(char32_t character, uint8_t* bytes) {
    if (character < 0x80) {
        bytes[0] = static_cast<uint8_t>(character);
        return 1;
    }
    const size_t size = character < kLeast[3] ? 2 : character < kLeast[4] ? 3 : 4;
    for (size_t index = size - 1; index > 0; --index) {
        bytes[index] = static_cast<uint8_t>(0x80U | (character & 0x3FU));
        character >>= 6;
    }
    bytes[0] = static_cast<uint8_t>((0xF00U >> size) | character);
    return size;
}
