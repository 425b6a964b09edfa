#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// What libFuzzer calls, over and over.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Ends the fuzzer, which keeps the input, when something does not hold.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// The input as a text, two bytes a character, without a terminator: a look behind its end is seen.
inline std::vector<wchar_t> TextOf(const uint8_t* data, size_t size) {
    std::vector<wchar_t> text(size / 2);
    for (size_t place = 0; place < text.size(); ++place)
        text[place] = static_cast<wchar_t>(data[2 * place] | data[2 * place + 1] << 8);
    return text;
}

inline std::string BytesOf(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}
