// Host functions as the ARM program calls them: ordinary functions whose pointers are host
// pointers.
#pragma once

#include <bit>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "../machine.h"

// The program's memory, for all that serves it.
extern GuestMemory guest;

namespace serve {

// A 64-bit argument takes a pair of registers, any pair on the device and an even one in our code,
// so only the first argument can be one.
template <class T>
constexpr int kWordsOf = sizeof(T) == 8 && !std::is_pointer_v<T> ? 2 : 1;

template <class T>
T Argument(const uint32_t* words) {
    if constexpr (std::is_pointer_v<T>) {
        using Unit = std::remove_pointer_t<T>;
        if (words[0] == 0) return nullptr;
        if constexpr (std::is_void_v<Unit>)
            return guest.At<uint8_t>(words[0]);
        else
            return guest.At<Unit>(words[0]);
    } else if constexpr (kWordsOf<T> == 2) {
        return std::bit_cast<T>(words[0] | static_cast<uint64_t>(words[1]) << 32);
    } else {
        return static_cast<T>(words[0]);
    }
}

template <class T>
uint64_t Result(T value) {
    constexpr uint64_t kSpoilt = 0xBAD0BAD100000000;
    if constexpr (std::is_pointer_v<T>)
        return kSpoilt | (value ? guest.AddressOf(value) : 0);
    else if constexpr (kWordsOf<T> == 2)
        return std::bit_cast<uint64_t>(value);
    else
        return kSpoilt | static_cast<uint32_t>(value);
}

template <class R, class... A, size_t... I>
uint64_t Call(R (*function)(A...), const uint32_t* words, std::index_sequence<I...>) {
    static_assert(((I == 0 || kWordsOf<A> == 1) && ...), "where would it stand?");
    constexpr int kAfterFirst = (0 + ... + (I == 0 ? kWordsOf<A> - 1 : 0));
    if constexpr (std::is_void_v<R>) {
        function(Argument<A>(words + I + (I == 0 ? 0 : kAfterFirst))...);
        return Result(0U);
    } else {
        return Result(function(Argument<A>(words + I + (I == 0 ? 0 : kAfterFirst))...));
    }
}

template <class R, class... A>
Machine::HostFunction Function(R (*function)(A...)) {
    return [function](Machine::Words words) {
        return Call(function, words, std::index_sequence_for<A...>());
    };
}

} // namespace serve

// Imports by name; every part of the host has a table of its own.
struct HostEntry {
    const char* name;
    Machine::HostFunction function;
};
#define SERVE(function)                                                                            \
    { #function, serve::Function(function) }
