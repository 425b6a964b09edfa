#include "processor.h"

#include <cstdio>

#include "failure.h"

namespace {

constexpr uint64_t kNeverReached = 0xFFFFFFF0;

void Check(uc_err error, const char* what) {
    if (error != UC_ERR_OK) Fail("%s: %s", what, uc_strerror(error));
}

int EngineNumber(int number) {
    switch (number) {
    case Processor::kStack:
        return UC_ARM_REG_SP;
    case Processor::kLink:
        return UC_ARM_REG_LR;
    case Processor::kCounter:
        return UC_ARM_REG_PC;
    default:
        return UC_ARM_REG_R0 + number;
    }
}

// What the engine calls, as plain functions of the form that each kind of hook wants.
void* AsHook(uc_cb_hookcode_t function) {
    return reinterpret_cast<void*>(function);
}

void OnStop(uc_engine* engine, uint64_t, uint32_t, void*) {
    uc_emu_stop(engine);
}

void OnBlock(uc_engine*, uint64_t address, uint32_t size, void* counts) {
    constexpr uint32_t kInstruction = 4;
    static_cast<InstructionCounts*>(counts)->Add(static_cast<uint32_t>(address),
                                                 size / kInstruction);
}

void OnAccess(uc_engine*, uc_mem_type type, uint64_t address, int size, int64_t, void*) {
    // Doublewords are two words to this processor.
    const unsigned unit = size == 8 ? 4 : static_cast<unsigned>(size);
    if (address % unit != 0)
        Fail("%s of %d bytes at %08x", type == UC_MEM_WRITE ? "a write" : "a read", size,
             static_cast<unsigned>(address));
}

} // namespace

Processor::Processor(const GuestMemory& memory) {
    Check(uc_open(UC_ARCH_ARM, UC_MODE_ARM, &engine_), "no emulation");
    Check(uc_ctl_set_cpu_model(engine_, UC_CPU_ARM_TI925T), "no such processor");
    Check(uc_mem_map_ptr(engine_, memory.begin, memory.end - memory.begin, UC_PROT_ALL,
                         memory.origin + memory.begin),
          "no memory");
}

Processor::~Processor() {
    uc_close(engine_);
}

uint32_t Processor::Register(int number) const {
    uint32_t value = 0;
    uc_reg_read(engine_, EngineNumber(number), &value);
    return value;
}

void Processor::SetRegister(int number, uint32_t value) {
    uc_reg_write(engine_, EngineNumber(number), &value);
}

void Processor::StopWithin(uint32_t begin, uint32_t end) {
    uc_hook hook;
    Check(uc_hook_add(engine_, &hook, UC_HOOK_CODE, AsHook(OnStop), nullptr, begin, end - 1),
          "no hook");
}

void Processor::RefuseOddAccesses() {
    uc_hook hook;
    const uc_cb_hookmem_t onAccess = OnAccess;
    Check(uc_hook_add(engine_, &hook, UC_HOOK_MEM_READ | UC_HOOK_MEM_WRITE,
                      reinterpret_cast<void*>(onAccess), nullptr, 1, 0),
          "no hook");
}

void Processor::Count(InstructionCounts& counts) {
    uc_hook hook;
    Check(uc_hook_add(engine_, &hook, UC_HOOK_BLOCK, AsHook(OnBlock), &counts, counts.Begin(),
                      counts.End() - 1),
          "no hook");
}

uint32_t Processor::Run(uint32_t address) {
    const uc_err error = uc_emu_start(engine_, address, kNeverReached, 0, 0);
    Check(error, "the processor stopped");
    return Register(kCounter);
}

void Processor::PrintRegisters() const {
    for (int number = 0; number < 16; ++number)
        fprintf(stderr, "%sr%-2d %08x", number % 4 == 0 ? "\n  " : "  ", number, Register(number));
    fputs("\n", stderr);
}
