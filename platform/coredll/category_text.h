// The text form of the category database: UTF-8, one record a line, "number<TAB>flag<TAB>name".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct CategoryRecord {
    std::optional<std::int16_t> number;
    std::optional<std::int16_t> flag;
    std::optional<std::u16string> name;
};

// Takes any bytes, with or without a byte order mark, lines ended LF or CR LF. A field that is
// empty or absent, and a number that is malformed or beyond 16 bits, is missing from its record.
// Blank lines and lines that start with # are no records. The name is the rest of its line; bytes
// that are not UTF-8 become U+FFFD.
[[nodiscard]] std::vector<CategoryRecord> ParseCategoryText(std::string_view text);
