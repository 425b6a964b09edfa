// In a checked build the C library's heap: every block ends where a page begins that nobody may
// touch, and becomes such a page itself when it is freed, for as long as there is room.

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {
constexpr size_t kPage = 4096;
constexpr uint64_t kMark = 0x5041'4548'4452'4755;
constexpr unsigned char kFresh = 0xCD; // What a block holds that nobody wrote to.
constexpr unsigned char kFront = 0xFD; // What stands before it.
constexpr size_t kKeptFreed = 4096;    // Blocks.

// Begins the pages that a block is in.
struct Header {
    uint64_t mark;
    size_t size;
    unsigned char* block;
};

std::atomic<void*> freed[kKeptFreed];
std::atomic<size_t> freedCount;

unsigned char* FrontOf(Header* header) {
    return reinterpret_cast<unsigned char*>(header + 1);
}

void* Allocate(size_t size) {
    const size_t room = (sizeof(Header) + size + kPage - 1) / kPage * kPage;
    if (room < size) return nullptr;
    void* pages = VirtualAlloc(nullptr, room + kPage, MEM_RESERVE, PAGE_NOACCESS);
    auto* header = static_cast<Header*>(VirtualAlloc(pages, room, MEM_COMMIT, PAGE_READWRITE));
    if (header == nullptr) return nullptr;
    // As much aligned as an object of the size can be.
    unsigned char* block = static_cast<unsigned char*>(pages) + room - size;
    *header = {kMark, size, block};
    std::memset(FrontOf(header), kFront, static_cast<size_t>(block - FrontOf(header)));
    std::memset(block, kFresh, size);
    return block;
}

// The header of a block; null for one that the platform's own library made. Ends the program where
// there is no such block any more.
Header* HeaderOf(void* block) {
    MEMORY_BASIC_INFORMATION pages{};
    VirtualQuery(block, &pages, sizeof(pages));
    VirtualQuery(pages.AllocationBase, &pages, sizeof(pages));
    if (pages.State != MEM_COMMIT) __builtin_trap();
    auto* header = static_cast<Header*>(pages.BaseAddress);
    if (header->mark != kMark) return nullptr;
    if (header->block != block) __builtin_trap();
    return header;
}

void Free(Header* header) {
    for (const unsigned char* front = FrontOf(header); front < header->block; ++front) {
        if (*front != kFront) __builtin_trap();
    }
    VirtualFree(header, 0, MEM_DECOMMIT);
    void* oldest = freed[freedCount++ % kKeptFreed].exchange(header);
    if (oldest != nullptr) VirtualFree(oldest, 0, MEM_RELEASE);
}

void FreeForeign(void* block) {
    const auto free = reinterpret_cast<void (*)(void*)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt"), "free")));
    free(block);
}
} // namespace

extern "C" {
void* malloc(size_t size) {
    return Allocate(size);
}

void* calloc(size_t count, size_t size) {
    if (size != 0 && count > SIZE_MAX / size) return nullptr;
    void* block = Allocate(count * size);
    if (block != nullptr) std::memset(block, 0, count * size);
    return block;
}

void free(void* block) {
    if (block == nullptr) return;
    if (Header* header = HeaderOf(block))
        Free(header);
    else
        FreeForeign(block);
}

void* realloc(void* block, size_t size) {
    Header* header = block != nullptr ? HeaderOf(block) : nullptr;
    if (block != nullptr && header == nullptr) __builtin_trap();
    void* moved = Allocate(size);
    if (moved == nullptr || header == nullptr) return moved;
    std::memcpy(moved, block, size < header->size ? size : header->size);
    Free(header);
    return moved;
}
}
