#pragma once

#include <windows.h>

#include "../machine.h"

extern Machine* machine;

// Loads the libraries that serve the program, the stand-in's before Wine's own.
void SetUpHostCalls();

// What serves an import: a call of wrapped_calls.cpp, or the host's function of that name.
Machine::HostFunction FindHostCall(const PeImage::Import& import);

// Calls a function of this process's own code, of either convention.
uint32_t CallHost(const void* function, Machine::Words words);

// A function of this process's own code that calls the program's at `function` with as many words.
// What is not the program's is given back as it is.
template <class Procedure>
Procedure Wrapped(Procedure function, int words);
uint32_t WrapProcedure(uint32_t function, int words);

template <class Procedure>
Procedure Wrapped(Procedure function, int words) {
    return reinterpret_cast<Procedure>(WrapProcedure(reinterpret_cast<uint32_t>(function), words));
}

// The calls that cannot be handed on as they are; nothing for all others.
Machine::HostFunction FindWrappedCall(const std::string& name);
