#pragma once

#include <cstdint>
#include <vector>

#include "shell/services/wide_string.h"

// A category as the device's database of personal information holds it.
struct CategoryRecord {
    WideString name;
    uint16_t number;
    bool flag;
};

// The categories of the device, in the database's order; none where there is no database. Records
// without a name or a number are left out.
[[nodiscard]] std::vector<CategoryRecord> ReadCategoriesDatabase();
