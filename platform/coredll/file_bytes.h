#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// The whole of a file of at most `limit` bytes; none, with the last error set, when it is longer or
// cannot be read.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> ReadWholeFile(LPCWSTR path,
                                                                     std::size_t limit);
