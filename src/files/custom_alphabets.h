#pragma once

#include <optional>
#include <vector>

#include "files/alphabet_file.h"
#include "shell/services/wide_string.h"

// One of the alphabets in the install folder's "CustomAlphabets".
struct CustomAlphabet {
    WideString fileName; // Without its extension; the settings know the alphabet by it.
    std::optional<Alphabet> alphabet; // None: the file cannot be opened, or holds none.
};

// All of them, unreadable ones too, by the names of their files.
[[nodiscard]] std::vector<CustomAlphabet> ReadCustomAlphabets();
