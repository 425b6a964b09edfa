// Tables of texts by their numbers, written as words.
#pragma once

#include <windows.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "shell/services/resource_strings.h"

inline std::vector<std::wstring> Words(const wchar_t* text) {
    std::wistringstream stream(text);
    std::vector<std::wstring> words;
    for (std::wstring word; stream >> word;)
        words.push_back(word);
    return words;
}

// A word with the texts put in for its numbers and spaces for "_"; numbers below 100 are
// themselves.
inline std::wstring Expand(const std::wstring& word) {
    std::wstring expanded;
    for (size_t i = 0; i < word.size();) {
        const size_t end = std::min(word.find_first_not_of(L"0123456789", i), word.size());
        if (end >= i + 3)
            expanded += LanguageText(static_cast<UINT>(std::stoi(word.substr(i)))).CStr();
        else if (end > i)
            expanded += word.substr(i, end - i);
        else
            expanded += word[i] == L'_' ? L' ' : word[i];
        i = std::max(end, i + 1);
    }
    return expanded;
}
