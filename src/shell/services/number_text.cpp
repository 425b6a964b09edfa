#include "shell/services/number_text.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace {

constexpr uint32_t kNoDigit = 36;

bool IsBlank(wchar_t character) {
    return character == L' ' || (character >= L'\t' && character <= L'\r');
}

uint32_t DigitOf(wchar_t character) {
    if (character >= L'0' && character <= L'9') return static_cast<uint32_t>(character - L'0');
    if (character >= L'a' && character <= L'f') return static_cast<uint32_t>(character - L'a') + 10;
    if (character >= L'A' && character <= L'F') return static_cast<uint32_t>(character - L'A') + 10;
    return kNoDigit;
}

// NUL for an empty text.
wchar_t First(std::wstring_view text) {
    return text.empty() ? L'\0' : text.front();
}

// "0x" is a prefix only before a hexadecimal digit; otherwise its "0" is the whole number.
uint32_t TakeBase(std::wstring_view& text) {
    if (First(text) != L'0') return 10;
    if (text.size() > 2 && (text[1] == L'x' || text[1] == L'X') && DigitOf(text[2]) < 16) {
        text.remove_prefix(2);
        return 16;
    }
    return 8;
}

bool TakeSign(std::wstring_view& text) {
    while (IsBlank(First(text)))
        text.remove_prefix(1);
    const wchar_t sign = First(text);
    if (sign == L'-' || sign == L'+') text.remove_prefix(1);
    return sign == L'-';
}

uint32_t Digits(std::wstring_view text, uint32_t base, bool negative) {
    uint32_t number = 0;
    for (const wchar_t character : text) {
        if (DigitOf(character) >= base) break;
        number = number * base + DigitOf(character);
    }
    return negative ? 0 - number : number;
}

} // namespace

uint32_t NumberFromText(std::wstring_view text) {
    const bool negative = TakeSign(text);
    const uint32_t base = TakeBase(text);
    return Digits(text, base, negative);
}

uint32_t NumberFromDecimalText(std::wstring_view text) {
    const bool negative = TakeSign(text);
    return Digits(text, 10, negative);
}

DecimalText::DecimalText(int32_t number) {
    char digits[11]; // As many as −2147483648 takes.
    const char* end = std::to_chars(digits, std::end(digits), number).ptr;
    std::copy(static_cast<const char*>(digits), end, text_);
    length_ = static_cast<size_t>(end - digits);
}
