#pragma once

#include <cstdint>
#include <string_view>

// The line grammar that backups, schemes and the filter file share: a section header in square
// brackets, and values that are a quoted name, "=" and a quoted text or "dword:" and a decimal
// number. Nothing is escaped. A line is taken with its line end, which is one character; in the
// filter file that is the carriage return. What is found lies in the line itself.

// "[name]"; the name may be empty.
[[nodiscard]] bool ParseSectionHeader(std::wstring_view line, std::wstring_view& name);

// What a line is meant as. One that looks like both is a text.
[[nodiscard]] bool LooksLikeStringValue(std::wstring_view line);
[[nodiscard]] bool LooksLikeDwordValue(std::wstring_view line);

// The name ends at the first "=" between quotes, so it can hold none; the text may hold any quote.
// Both are empty when the line is refused.
[[nodiscard]] bool ParseStringValueLine(std::wstring_view line, std::wstring_view& name,
                                        std::wstring_view& text);

// The name ends before the first "=", and is given even when the line holds no number. A number
// beyond 32 bits wraps, so −1 and 4294967295 are the same; one without a digit is 0. `number` is
// left alone when the line is refused.
[[nodiscard]] bool ParseDwordValueLine(std::wstring_view line, std::wstring_view& name,
                                       uint32_t& number);
