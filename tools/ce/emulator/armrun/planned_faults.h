#pragma once

#include <cstdint>

#include "serve.h"

// The kinds of call that the tests count and make fail; the bits are those of stand_in.h.
enum CallKind : uint32_t {
    kCreateKey = 1U << 0,
    kOpenKey = 1U << 1,
    kCloseKey = 1U << 2,
    kFlushKey = 1U << 3,
    kDeleteKey = 1U << 4,
    kEnumKey = 1U << 5,
    kQueryValue = 1U << 6,
    kSetValue = 1U << 7,
    kDeleteValue = 1U << 8,
    kEnumValue = 1U << 9,
    kCreateFile = 1U << 10,
    kReadFile = 1U << 11,
    kWriteFile = 1U << 12,
    kSetFilePointer = 1U << 13,
    kDeleteFile = 1U << 14,
    kMoveFile = 1U << 15,
    kCreateDirectory = 1U << 16,
    kFindFile = 1U << 17,
    kQueryInfo = 1U << 18,
};

// Counts one call. Gives the error that it is to fail with, or 0.
uint32_t CountCall(CallKind kind);
