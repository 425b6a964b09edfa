#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// What libFuzzer calls, over and over.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Ends the fuzzer, which keeps the input, when something does not hold.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// The input as a text, two bytes a character.
inline std::wstring TextOf(const uint8_t* data, size_t size) {
    std::wstring text;
    for (size_t place = 0; place + 1 < size; place += 2)
        text.push_back(static_cast<wchar_t>(data[place] | data[place + 1] << 8));
    return text;
}

inline std::string BytesOf(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}
