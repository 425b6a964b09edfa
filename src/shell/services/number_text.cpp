#include "shell/services/number_text.h"

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

// "0x" is a prefix only before a hexadecimal digit; otherwise its "0" is the whole number.
uint32_t TakeBase(const wchar_t*& text) {
    if (text[0] != L'0') return 10;
    if ((text[1] == L'x' || text[1] == L'X') && DigitOf(text[2]) < 16) {
        text += 2;
        return 16;
    }
    return 8;
}

bool TakeSign(const wchar_t*& text) {
    while (IsBlank(*text))
        ++text;
    if (*text != L'-' && *text != L'+') return false;
    return *text++ == L'-';
}

uint32_t Digits(const wchar_t* text, uint32_t base, bool negative) {
    uint32_t number = 0;
    for (; DigitOf(*text) < base; ++text)
        number = number * base + DigitOf(*text);
    return negative ? 0 - number : number;
}

} // namespace

uint32_t NumberFromText(const wchar_t* text) {
    const bool negative = TakeSign(text);
    const uint32_t base = TakeBase(text);
    return Digits(text, base, negative);
}

uint32_t NumberFromDecimalText(const wchar_t* text) {
    const bool negative = TakeSign(text);
    return Digits(text, 10, negative);
}
