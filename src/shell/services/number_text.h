#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// Numbers as people and the platform write them. Leading blanks and one sign are skipped, reading
// stops at the first character that is no digit, and a text without a number gives 0. What exceeds
// 32 bits wraps instead of stopping at the largest number, so that every stored number, shown as
// signed or as unsigned, reads back as itself.

// Base by prefix: "0x" hexadecimal, a leading "0" octal, else decimal.
[[nodiscard]] uint32_t NumberFromText(std::wstring_view text);

// Always base 10.
[[nodiscard]] uint32_t NumberFromDecimalText(std::wstring_view text);

// A number as signed decimal text.
class DecimalText {
  public:
    explicit DecimalText(int32_t number);

    [[nodiscard]] std::wstring_view View() const { return {text_, length_}; }
    [[nodiscard]] const wchar_t* CStr() const { return text_; }

  private:
    wchar_t text_[12] = {};
    size_t length_;
};
