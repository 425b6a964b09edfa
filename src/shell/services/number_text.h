#pragma once

#include <cstdint>

// Numbers as people and the platform write them. Leading blanks and one sign are skipped, reading
// stops at the first character that is no digit, and a text without a number gives 0. What exceeds
// 32 bits wraps instead of stopping at the largest number, so that every stored number, shown as
// signed or as unsigned, reads back as itself.

// Base by prefix: "0x" hexadecimal, a leading "0" octal, else decimal.
[[nodiscard]] uint32_t NumberFromText(const wchar_t* text);

// Always base 10.
[[nodiscard]] uint32_t NumberFromDecimalText(const wchar_t* text);
