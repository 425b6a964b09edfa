#pragma once

#include <array>
#include <cstdint>

#include "files/byte_stream.h"
#include "shell/services/wide_string.h"

// A category filter: a named set of categories that the dashboard can show in place of all items.
struct FilterEntry {
    WideString title;
    int32_t sensitivity = 0; // The selected entry of the Category page's list.
    bool visible = true;
    bool includeUncategorized = false; // Shows items without a category as well.
};

// There are always 32; the filter of index n, from 1, stands at n − 1.
using Filters = std::array<FilterEntry, 32>;

void SetDefaultFilters(Filters& filters);

// Reads a filter file: one byte a character, zero bytes dropped, so a title keeps what is below
// U+0100 and other characters fall apart. The filters are the defaults unless the file holds
// exactly 32 filters in order; what a filter's lines do not hold has its default. Of a line, 4,096
// characters count.
void ReadFilters(ByteSource& file, Filters& filters);

// Writes a filter file, UTF-16 without a mark, one write a line.
void WriteFilters(const Filters& filters, ByteSink& file);
