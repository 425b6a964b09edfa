#pragma once

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// What a process holds, counted where the platform's own counters say 0 under Wine.

// GDI objects, in the table that the window system shares with the process.
inline size_t CountGdiObjects() {
    struct Entry {
        uint64_t object;
        uint32_t owner;
        uint16_t unique;
        uint8_t type; // 0 for a free place.
        uint8_t rest[9];
    };
    static_assert(sizeof(Entry) == 24);
    const auto currentBlock = reinterpret_cast<const char* (*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandle(L"ntdll"), "RtlGetCurrentPeb")));
    const auto* table = *reinterpret_cast<Entry* const*>(currentBlock() + 0xF8);
    size_t count = 0;
    for (int i = 0; i < 65536; ++i)
        count += table[i].type != 0;
    return count;
}

// The highest place among windows and menus that is ever taken. The platform gives out freed places
// first, in any order: so many new ones use them up that only a leak makes it go higher.
inline size_t HighestUserHandle() {
    HMENU menus[500];
    size_t highest = 0;
    for (HMENU& menu : menus) {
        menu = CreatePopupMenu();
        highest = std::max(highest, reinterpret_cast<size_t>(menu) & 0xFFFF);
    }
    for (HMENU menu : menus)
        DestroyMenu(menu);
    return highest;
}

// The place of the next key, file or event, which is the lowest that is free.
inline size_t LowestFreeHandle() {
    HANDLE event = CreateEvent(nullptr, FALSE, FALSE, nullptr);
    const auto place = reinterpret_cast<size_t>(event);
    CloseHandle(event);
    return place;
}

// Bytes in blocks of all heaps of the process, the platform's own too.
inline size_t HeapBytes() {
    HANDLE heaps[64];
    size_t bytes = 0;
    const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData + entry.cbOverhead;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

// Bytes of memory that no other process shares.
inline size_t PrivateMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

struct HeldResources {
    size_t gdiObjects = CountGdiObjects();
    size_t userHandle = HighestUserHandle();
    size_t handle = LowestFreeHandle();
    size_t heapBytes = HeapBytes();
    size_t memory = PrivateMemory();
};
