#pragma once

#include <windows.h>

#include <set>

#include "shell/services/wide_string.h"

// The platform's order of texts, in which case makes no difference; so of file names as well.
struct TextOrder {
    bool operator()(const WideString& left, const WideString& right) const {
        return lstrcmpi(left.CStr(), right.CStr()) < 0;
    }
};

using TextSet = std::set<WideString, TextOrder>;
