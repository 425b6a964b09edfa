#pragma once

#include <unicorn/unicorn.h>

#include <cstdint>

#include "guest_memory.h"
#include "instruction_counts.h"

// The emulated processor: a core of the devices' time, which refuses every instruction that came
// after ARMv4T. Where it may not go on, the process ends with a report of where it stood.
class Processor {
  public:
    explicit Processor(const GuestMemory& memory);
    Processor(const Processor&) = delete;
    Processor& operator=(const Processor&) = delete;
    ~Processor();

    enum Number { kR0 = 0, kStack = 13, kLink = 14, kCounter = 15 };
    [[nodiscard]] uint32_t Register(int number) const;
    void SetRegister(int number, uint32_t value);

    // Addresses at which Run stops.
    void StopWithin(uint32_t begin, uint32_t end);
    // Ends the process on an access to a word or half a word that lies across its unit: a device
    // refuses it, while the emulation would read it.
    void RefuseOddAccesses();
    // Counts what is executed from now on.
    void Count(InstructionCounts& counts);

    // Runs from an address to the first that it has to stop at, and gives that.
    uint32_t Run(uint32_t address);

    void PrintRegisters() const;

  private:
    uc_engine* engine_ = nullptr;
};
