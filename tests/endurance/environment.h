#pragma once

#include <cstdlib>

// A number of the environment, by which a person makes a test longer or other than usual.
inline int NumberFrom(const char* variable, int fallback) {
    const char* text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : fallback;
}
