#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "files/byte_stream.h"
#include "shell/services/wide_string.h"

// An alphabet that someone made for a search bar: the letters that share one of its buttons make a
// group.
struct Alphabet {
    WideString name;
    std::vector<WideString> groups; // At least one; in the order of the bar.
};

inline constexpr size_t kMaxAlphabetName = 40; // Characters of 16 bits, as below.
inline constexpr size_t kMaxAlphabetGroup = 16;
inline constexpr size_t kMaxAlphabetGroups = 64;

// Reads an alphabet file: UTF-8, the name in the first line, then a group of letters a line. Blanks
// around a line and empty lines after the first do not count. None when it holds no alphabet within
// these limits, or control characters, as a file of another kind does; of a file of any size, a few
// thousand characters are read.
[[nodiscard]] std::optional<Alphabet> ReadAlphabet(ByteSource& file);
