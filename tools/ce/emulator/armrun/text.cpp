// Texts: the C library's wide functions with characters of 16 bits, and formatting.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwctype>

#include "host.h"

namespace {

using Wide = const char16_t*;
using View = std::u16string_view;

char16_t LowerOne(char16_t character) {
    return static_cast<char16_t>(towlower(character));
}

int32_t Compare(View left, View right) {
    const int order = left.compare(right);
    return (order > 0) - (order < 0);
}

// A place in a text that was found, as the C library gives it.
Wide PlaceIn(Wide text, size_t position) {
    return position == View::npos ? nullptr : text + position;
}

uint32_t wcslen_(Wide text) {
    return static_cast<uint32_t>(View(text).size());
}

int32_t wcscmp_(Wide left, Wide right) {
    return Compare(left, right);
}

int32_t wcsncmp_(Wide left, Wide right, uint32_t count) {
    return Compare(View(left).substr(0, count), View(right).substr(0, count));
}

int32_t CompareNoCase(Wide left, Wide right) {
    return Compare(Lower(left), Lower(right));
}

int32_t wcsnicmp_(Wide left, Wide right, uint32_t count) {
    return Compare(Lower(View(left).substr(0, count)), Lower(View(right).substr(0, count)));
}

char16_t* wcscpy_(char16_t* to, Wide from) {
    memmove(to, from, 2 * (View(from).size() + 1));
    return to;
}

char16_t* wcsncpy_(char16_t* to, Wide from, uint32_t count) {
    const View copied = View(from).substr(0, count);
    memmove(to, copied.data(), 2 * copied.size());
    std::fill(to + copied.size(), to + count, u'\0');
    return to;
}

char16_t* wcscat_(char16_t* to, Wide from) {
    wcscpy_(to + View(to).size(), from);
    return to;
}

Wide wcschr_(Wide text, uint32_t character) {
    return PlaceIn(text, View(text, View(text).size() + 1).find(static_cast<char16_t>(character)));
}

Wide wcsrchr_(Wide text, uint32_t character) {
    return PlaceIn(text, View(text, View(text).size() + 1).rfind(static_cast<char16_t>(character)));
}

Wide wcsstr_(Wide text, Wide part) {
    return PlaceIn(text, View(text).find(part));
}

uint32_t wcstoul_(Wide text, uint32_t* end, uint32_t base) {
    const std::string bytes = Utf8(text);
    char* stop = nullptr;
    const unsigned long number = strtoul(bytes.c_str(), &stop, static_cast<int>(base));
    if (end) *end = guest.AddressOf(text + (stop - bytes.c_str()));
    return static_cast<uint32_t>(std::min(number, 0xFFFFFFFFUL));
}

uint32_t towlower_(uint32_t character) {
    return LowerOne(static_cast<char16_t>(character));
}

uint32_t towupper_(uint32_t character) {
    return towupper(static_cast<wint_t>(character));
}

uint32_t strlen_(const char* text) {
    return static_cast<uint32_t>(strlen(text));
}

int32_t strcmp_(const char* left, const char* right) {
    return strcmp(left, right);
}

// One conversion of a format: "%" flags, width and precision, size, kind.
struct Conversion {
    std::string flags;
    char16_t kind = 0;
    bool narrow = false;
};

Conversion ReadConversion(Wide& format) {
    Conversion read;
    while (*format && std::strchr("-+ #0123456789.", static_cast<char>(*format)))
        read.flags += static_cast<char>(*format++);
    for (; *format == u'l' || *format == u'h' || *format == u'w'; ++format)
        read.narrow = *format == u'h';
    if (*format) read.kind = *format++;
    return read;
}

std::u16string FormatText(const Conversion& conversion, View text) {
    const size_t point = conversion.flags.find('.');
    if (point != std::string::npos)
        text = text.substr(0, strtoul(conversion.flags.c_str() + point + 1, nullptr, 10));
    std::u16string padded(text);
    const bool left = conversion.flags.starts_with('-');
    const size_t width = strtoul(conversion.flags.c_str() + (left ? 1 : 0), nullptr, 10);
    if (padded.size() < width) padded.insert(left ? padded.size() : 0, width - padded.size(), u' ');
    return padded;
}

std::u16string FormatNumber(const Conversion& conversion, uint32_t number) {
    char digits[256];
    const std::string format = "%" + conversion.flags + static_cast<char>(conversion.kind);
    snprintf(digits, sizeof digits, format.c_str(), number);
    return Utf16(digits);
}

// What the program formats: texts, characters and numbers of 32 bits, a word each.
std::u16string Format(Wide format, const uint32_t* words) {
    std::u16string result;
    while (*format) {
        if (*format != u'%') {
            result += *format++;
            continue;
        }
        const Conversion conversion = ReadConversion(++format);
        switch (conversion.kind) {
        case u'%':
            result += u'%';
            break;
        case u'c':
            result += static_cast<char16_t>(*words++);
            break;
        case u's':
            if (conversion.narrow)
                result += FormatText(conversion, Utf16(guest.At<char>(*words)));
            else
                result += FormatText(conversion, guest.At<char16_t>(*words));
            ++words;
            break;
        case u'd':
        case u'i':
        case u'u':
        case u'x':
        case u'X':
            result += FormatNumber(conversion, *words++);
            break;
        default:
            Fail("a format with %%%c", conversion.kind);
        }
    }
    return result;
}

// As many characters as there is room for; -1, without an end, when it does not fit.
int32_t vsnwprintf_(char16_t* buffer, uint32_t size, Wide format, const uint32_t* words) {
    const std::u16string text = Format(format, words);
    memcpy(buffer, text.data(), 2 * std::min<size_t>(text.size(), size));
    if (text.size() < size) buffer[text.size()] = 0;
    return text.size() > size ? -1 : static_cast<int32_t>(text.size());
}

int32_t wvsprintfW(char16_t* buffer, Wide format, const uint32_t* words) {
    constexpr uint32_t kLongest = 1024;
    PutText(buffer, kLongest, Format(format, words));
    return static_cast<int32_t>(View(buffer).size());
}

double floor_(double number) {
    return std::floor(number);
}

double ceil_(double number) {
    return std::ceil(number);
}

} // namespace

std::u16string Lower(View text) {
    std::u16string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerOne);
    return lower;
}

std::string Utf8(View text) {
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t point = text[i];
        const bool pair =
            (point & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
        if (pair) point = 0x10000 + ((point & 0x3FF) << 10 | (text[++i] & 0x3FF));
        const int more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        constexpr uint8_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
        bytes += static_cast<char>(kLead[more] | point >> (6 * more));
        for (int left = more - 1; left >= 0; --left)
            bytes += static_cast<char>(0x80 | (point >> (6 * left) & 0x3F));
    }
    return bytes;
}

std::u16string Utf16(std::string_view text) {
    std::u16string units;
    for (size_t i = 0; i < text.size();) {
        const auto lead = static_cast<uint8_t>(text[i++]);
        const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        uint32_t point = more == 0 ? lead : lead & (0x3FU >> more);
        for (int left = more; left > 0 && i < text.size(); --left)
            point = point << 6 | (static_cast<uint8_t>(text[i++]) & 0x3F);
        if (point >= 0x10000) {
            units += static_cast<char16_t>(0xD7C0 + (point >> 10));
            point = 0xDC00 | (point & 0x3FF);
        }
        units += static_cast<char16_t>(point);
    }
    return units;
}

void PutText(char16_t* buffer, uint32_t size, View text) {
    if (size == 0) return;
    const size_t count = std::min<size_t>(text.size(), size - 1);
    std::copy_n(text.data(), count, buffer);
    buffer[count] = 0;
}

const std::vector<HostEntry>& TextCalls() {
    using serve::Function;
    static const std::vector<HostEntry> entries = {
        {"wcslen", Function(wcslen_)},
        {"lstrlenW", Function(wcslen_)},
        {"wcscmp", Function(wcscmp_)},
        {"lstrcmpW", Function(wcscmp_)},
        {"wcsncmp", Function(wcsncmp_)},
        {"_wcsicmp", Function(CompareNoCase)},
        {"lstrcmpiW", Function(CompareNoCase)},
        {"_wcsnicmp", Function(wcsnicmp_)},
        {"wcscpy", Function(wcscpy_)},
        {"lstrcpyW", Function(wcscpy_)},
        {"wcsncpy", Function(wcsncpy_)},
        {"wcscat", Function(wcscat_)},
        {"wcschr", Function(wcschr_)},
        {"wcsrchr", Function(wcsrchr_)},
        {"wcsstr", Function(wcsstr_)},
        {"wcstoul", Function(wcstoul_)},
        {"towlower", Function(towlower_)},
        {"towupper", Function(towupper_)},
        {"strlen", Function(strlen_)},
        {"strcmp", Function(strcmp_)},
        {"_vsnwprintf", Function(vsnwprintf_)},
        SERVE(wvsprintfW),
        {"floor", Function(floor_)},
        {"ceil", Function(ceil_)},
    };
    return entries;
}
