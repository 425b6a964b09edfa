// The heap: blocks with a border behind each, which tells at the block's release whether it was
// written over.
#include <algorithm>
#include <cstring>
#include <map>

#include "host.h"

namespace {

constexpr uint32_t kBorder = 16;
constexpr uint8_t kBorderByte = 0xFD;
constexpr uint8_t kReleasedByte = 0xDD;

uint32_t heapEnd = 0;
uint32_t heapUsed = 0;
std::map<uint32_t, uint32_t> blocks;     // Address to size.
std::multimap<uint32_t, uint32_t> freed; // Room to address.

uint32_t RoomFor(uint32_t size) {
    return (size + kBorder + 15) & ~15U;
}

uint8_t* malloc_(uint32_t size) {
    uint8_t* block = Allocate(size);
    if (block) memset(block, 0xCD, size); // What it holds is nobody's business.
    return block;
}

void free_(uint8_t* block) {
    if (block) Release(block);
}

uint8_t* calloc_(uint32_t count, uint32_t size) {
    const uint64_t bytes = static_cast<uint64_t>(count) * size;
    return bytes > UINT32_MAX ? nullptr : Allocate(static_cast<uint32_t>(bytes));
}

uint32_t SizeOf(uint8_t* block) {
    const auto found = blocks.find(guest.AddressOf(block));
    if (found == blocks.end()) Fail("no block of the heap: %08x", guest.AddressOf(block));
    return found->second;
}

uint8_t* realloc_(uint8_t* block, uint32_t size) {
    uint8_t* moved = malloc_(size);
    if (block && moved) {
        memcpy(moved, block, std::min(size, SizeOf(block)));
        Release(block);
    }
    return moved;
}

uint8_t* LocalAlloc(uint32_t flags, uint32_t size) {
    constexpr uint32_t kZeroed = 0x40;
    return flags & kZeroed ? Allocate(size) : malloc_(size);
}

uint8_t* LocalReAlloc(uint8_t* block, uint32_t size, uint32_t) {
    return realloc_(block, size);
}

uint8_t* LocalFree(uint8_t* block) {
    free_(block);
    return nullptr;
}

uint8_t* HeapAlloc(uint32_t, uint32_t flags, uint32_t size) {
    constexpr uint32_t kZeroed = 8;
    return flags & kZeroed ? Allocate(size) : malloc_(size);
}

uint32_t HeapFree(uint32_t, uint32_t, uint8_t* block) {
    free_(block);
    return 1;
}

uint32_t GetProcessHeap() {
    return 1;
}

uint8_t* memcpy_(uint8_t* to, const uint8_t* from, uint32_t size) {
    // Where nothing is copied the places need not be any.
    if (size != 0) memmove(to, from, size);
    return to;
}

uint8_t* memset_(uint8_t* to, uint32_t value, uint32_t size) {
    if (size != 0) memset(to, static_cast<int>(value), size);
    return to;
}

int32_t memcmp_(const uint8_t* left, const uint8_t* right, uint32_t size) {
    return size == 0 ? 0 : memcmp(left, right, size);
}

const uint8_t* memchr_(const uint8_t* bytes, uint32_t value, uint32_t size) {
    return size == 0 ? nullptr
                     : static_cast<const uint8_t*>(memchr(bytes, static_cast<int>(value), size));
}

} // namespace

void SetHeap(uint32_t begin, uint32_t end) {
    heapUsed = begin;
    heapEnd = end;
}

uint8_t* Allocate(uint32_t size) {
    if (size > heapEnd - heapUsed) return nullptr;
    const uint32_t room = RoomFor(size);
    uint32_t address = 0;
    if (const auto found = freed.find(room); found != freed.end()) {
        address = found->second;
        freed.erase(found);
    } else {
        if (room > heapEnd - heapUsed) return nullptr;
        address = heapUsed;
        heapUsed += room;
    }
    blocks[address] = size;
    auto* block = guest.At<uint8_t>(address);
    memset(block, 0, size);
    memset(block + size, kBorderByte, room - size);
    return block;
}

void Release(uint8_t* block) {
    const uint32_t size = SizeOf(block);
    const uint32_t room = RoomFor(size);
    for (uint32_t place = size; place < room; ++place) {
        if (block[place] != kBorderByte)
            Fail("written behind the block of %u bytes at %08x", size, guest.AddressOf(block));
    }
    memset(block, kReleasedByte, room);
    blocks.erase(guest.AddressOf(block));
    freed.emplace(room, guest.AddressOf(block));
}

const std::vector<HostEntry>& MemoryCalls() {
    static const std::vector<HostEntry> entries = {
        {"malloc", serve::Function(malloc_)},
        {"free", serve::Function(free_)},
        {"calloc", serve::Function(calloc_)},
        {"realloc", serve::Function(realloc_)},
        {"memcpy", serve::Function(memcpy_)},
        {"memmove", serve::Function(memcpy_)},
        {"memset", serve::Function(memset_)},
        {"memcmp", serve::Function(memcmp_)},
        {"memchr", serve::Function(memchr_)},
        SERVE(LocalAlloc),
        SERVE(LocalReAlloc),
        SERVE(LocalFree),
        SERVE(HeapAlloc),
        SERVE(HeapFree),
        SERVE(GetProcessHeap),
    };
    return entries;
}
