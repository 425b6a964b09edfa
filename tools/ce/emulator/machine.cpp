#include "machine.h"

#include <array>

namespace {
constexpr uint32_t kGateSize = 4;
// The first gate is where a called function of the program returns to.
constexpr size_t kReturnGate = 0;
// What the system leaves in registers that a call may change.
constexpr uint32_t kSpoilt = 0xBAD0BAD1;
constexpr int kFirstKept = 4; // r4 to r11 belong to the caller.
constexpr int kKept = 8;
constexpr int kScratch = 12;
} // namespace

Machine::Machine(const GuestMemory& memory, uint32_t gates)
    : memory_(memory), processor_(memory), gateAddress_(gates) {
    processor_.StopWithin(gates, gates + kGateBytes);
    gates_.push_back({.name = "return", .serve = {}});
}

void Machine::Bind(const PeImage& image, uint32_t base, const Resolver& resolver) {
    for (const PeImage::Import& import : image.Imports()) {
        *memory_.At<uint32_t>(base + import.slot) =
            gateAddress_ + kGateSize * static_cast<uint32_t>(gates_.size());
        gates_.push_back({.name = import.library + "!" + import.name, .serve = resolver(import)});
    }
    if (gates_.size() * kGateSize > kGateBytes) Fail("%zu imports are too many", gates_.size());
}

void Machine::SetStack(uint32_t top) {
    processor_.SetRegister(Processor::kStack, top);
}

uint32_t Machine::Call(uint32_t function, std::initializer_list<uint32_t> words) {
    const uint32_t stack = processor_.Register(Processor::kStack);
    std::array<uint32_t, kKept> kept{};
    for (int i = 0; i < kKept; ++i)
        kept[i] = processor_.Register(kFirstKept + i);

    // Not a multiple of 8: what relies on one shows.
    const uint32_t own = ((stack - 8) & ~7U) - 4;
    processor_.SetRegister(Processor::kStack, own);
    int number = 0;
    for (const uint32_t word : words)
        processor_.SetRegister(number++, word);
    const uint32_t home = gateAddress_ + kReturnGate * kGateSize;
    processor_.SetRegister(Processor::kLink, home);
    uint32_t address = processor_.Run(function);
    while (address != home) {
        Serve(address);
        address = processor_.Run(processor_.Register(Processor::kLink));
    }

    if (processor_.Register(Processor::kStack) != own)
        Fail("the function at %08x lost its stack", function);
    for (int i = 0; i < kKept; ++i) {
        if (processor_.Register(kFirstKept + i) != kept[i])
            Fail("the function at %08x changed r%d", function, kFirstKept + i);
    }
    processor_.SetRegister(Processor::kStack, stack);
    return processor_.Register(Processor::kR0);
}

// The import calls that the processor has come to.
void Machine::Serve(uint32_t address) {
    const uint32_t stack = processor_.Register(Processor::kStack);
    const uint32_t link = processor_.Register(Processor::kLink);
    if (stack % 4 != 0) Fail("a call with the stack at %08x", stack);
    std::array<uint32_t, kWords> words{};
    for (int i = 0; i < 4; ++i)
        words[i] = processor_.Register(i);
    for (int i = 4; i < kWords; ++i) {
        const uint32_t place = stack + 4 * static_cast<uint32_t>(i - 4);
        if (memory_.Holds(place, 4)) words[i] = *memory_.At<uint32_t>(place);
    }

    const uint32_t number = (address - gateAddress_) / kGateSize;
    HostFunction foreign;
    const HostFunction* function = nullptr;
    if (number < gates_.size()) {
        Gate& gate = gates_[number];
        ++gate.calls;
        lastCall_ = gate.name;
        function = &gate.serve;
    } else if (onForeign) {
        lastCall_ = "a function of the system by its address";
        foreign = onForeign(address);
        function = &foreign;
    }
    if (!function || !*function)
        Fail("nothing serves %s",
             number < gates_.size() ? lastCall_.c_str() : "a jump out of the program");
    if (traces)
        fprintf(stderr, "%s(%x, %x, %x, %x)\n", lastCall_.c_str(), words[0], words[1], words[2],
                words[3]);
    AnswerWith((*function)(words.data()));
    processor_.SetRegister(Processor::kLink, link);
}

void Machine::AnswerWith(uint64_t result) {
    processor_.SetRegister(0, static_cast<uint32_t>(result));
    processor_.SetRegister(1, static_cast<uint32_t>(result >> 32));
    for (const int number : {2, 3, kScratch})
        processor_.SetRegister(number, kSpoilt);
}

void Machine::WriteNewCalls(FILE* stream) {
    for (Gate& gate : gates_) {
        if (gate.calls == gate.written) continue;
        fprintf(stream, "call\t%s\t%llu\n", gate.name.c_str(),
                static_cast<unsigned long long>(gate.calls - gate.written));
        gate.written = gate.calls;
    }
}

void Machine::PrintState() const {
    fprintf(stderr, "  after the call of %s", lastCall_.c_str());
    processor_.PrintRegisters();
}
