#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "guest_memory.h"
#include "pe_image.h"
#include "processor.h"

// An emulated processor with memory, and the system's functions where the program finds them.
//
// An import leads to a gate, an address of its own at which the processor stops; the host's
// function is called in its place, and the processor goes on at the caller.
class Machine {
  public:
    // The words of a call: those of the registers, and those on the stack.
    static constexpr int kWords = 16;
    using Words = const uint32_t*;
    // Gives the result's two words, of which most calls have but the lower one.
    using HostFunction = std::function<uint64_t(Words)>;
    // The function that serves an import, if any does.
    using Resolver = std::function<HostFunction(const PeImage::Import&)>;

    // `gates` is the address of kGateBytes that are the machine's alone.
    static constexpr uint32_t kGateBytes = 0x4000;
    Machine(const GuestMemory& memory, uint32_t gates);

    // Gives every import of a mapped image its gate. One that nothing serves ends the process when
    // it is called.
    void Bind(const PeImage& image, uint32_t base, const Resolver& resolver);

    // Who serves the jump to an address that is neither the image's nor a gate, where Processor
    // stops there.
    std::function<HostFunction(uint32_t address)> onForeign;

    // The stack grows down from here.
    void SetStack(uint32_t top);

    // Calls a function of the program with up to four words, and gives its result. It finds the
    // stack as the system leaves it, which keeps to words and no more.
    uint32_t Call(uint32_t function, std::initializer_list<uint32_t> words);

    [[nodiscard]] const GuestMemory& Memory() const { return memory_; }
    [[nodiscard]] Processor& Cpu() { return processor_; }

    // Prints each call, with its first words.
    bool traces = false;
    // Writes how often each import was called since the last time: "call", its name, times.
    void WriteNewCalls(FILE* stream);
    // Prints which import was called last and where the processor stands.
    void PrintState() const;

  private:
    struct Gate {
        std::string name;
        HostFunction serve;
        uint64_t calls = 0;
        uint64_t written = 0;
    };

    void Serve(uint32_t address);
    void AnswerWith(uint64_t result);

    GuestMemory memory_;
    Processor processor_;
    uint32_t gateAddress_;
    std::vector<Gate> gates_;
    std::string lastCall_ = "none";
};
