// How the arguments of the system's calls are passed. The system takes an argument of 64 bits from
// whatever registers come next; the compiler skips one, or a place on the stack, to begin at an
// even one. So the two agree only where such an argument begins there by itself.
#pragma once

#include <cstddef>

template <typename... Arguments>
consteval bool FollowsTheRule() {
    size_t words = 0;
    bool follows = true;
    // A structure of words is passed as words by both.
    [[maybe_unused]] const auto place = [&](size_t size, size_t alignment) {
        if (alignment > 4 && words % 2 != 0) follows = false;
        words += (size + 3) / 4;
    };
    (place(sizeof(Arguments), alignof(Arguments)), ...);
    return follows;
}

template <typename Result, typename... Arguments>
consteval bool AgreesWithSystem(Result (*)(Arguments...)) {
    return FollowsTheRule<Arguments...>();
}

// Nobody sees what is passed after the dots.
template <typename Result, typename... Arguments>
consteval bool AgreesWithSystem(Result (*)(Arguments..., ...)) {
    return false;
}

// The check itself can fail.
static_assert(FollowsTheRule<double>() && FollowsTheRule<int, int, double>());
static_assert(!FollowsTheRule<int, double>() &&
              !FollowsTheRule<int, int, int, int, int, long long>());
static_assert(!AgreesWithSystem(static_cast<int (*)(char*, ...)>(nullptr)));
