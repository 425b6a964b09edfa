#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// UTF-8, made to lose nothing of what the platform's 16-bit texts hold: a surrogate without its
// other half is written, and read again, as if it were a character.

struct DecodedCharacter {
    char32_t character;
    size_t size; // Bytes it took.
};

// The first character of at least one byte. A byte that begins no sequence stands for the character
// of its own number, so that a file in a Latin code page stays readable.
[[nodiscard]] DecodedCharacter DecodeUtf8(std::span<const uint8_t> bytes);

// Puts the bytes of a character into a buffer of 4; gives how many.
size_t EncodeUtf8(char32_t character, uint8_t* bytes);
