// The device's <windows.h>: the toolchain's, where the two agree, and the device's own where not.
#pragma once

#include_next <windows.h>

#include "device_types.h"

// A procedure that the system calls. The system keeps the stack aligned to 4 bytes, the compiler
// expects 8. So the compiler leaves room for seven instructions at the procedure's start and a note
// of where that is; tools/ce/link puts in instructions that align the stack.
#undef CALLBACK
#define CALLBACK __attribute__((patchable_function_entry(7, 0)))
