#pragma once

#include <cstdint>

#include "failure.h"

// Where the ARM program's addresses lie in this process: on the build machine in a block of their
// own, in a 32-bit Wine where they are.
struct GuestMemory {
    uint8_t* origin = nullptr; // Of address 0.
    uint32_t begin = 0;        // The addresses that there are.
    uint32_t end = 0;

    [[nodiscard]] bool Holds(uint32_t address, uint32_t size) const {
        return address >= begin && address < end && size <= end - address;
    }

    // What stands at an address. The program's own pointers pass here when they cross to the
    // system, and must be as the processor wants them.
    template <class T>
    [[nodiscard]] T* At(uint32_t address) const {
        if (address % alignof(T) != 0)
            Fail("a pointer to %zu-byte units is odd: %08x", alignof(T), address);
        if (!Holds(address, sizeof(T))) Fail("a pointer leads nowhere: %08x", address);
        return reinterpret_cast<T*>(origin + address);
    }

    [[nodiscard]] uint32_t AddressOf(const void* place) const {
        return static_cast<uint32_t>(static_cast<const uint8_t*>(place) - origin);
    }
};
