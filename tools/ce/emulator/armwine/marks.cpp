#include "marks.h"

#include <cstdio>
#include <memory>

#include "../instruction_counts.h"
#include "host_calls.h"
#include "loaded_image.h"

namespace {

std::unique_ptr<InstructionCounts> counts;
FILE* output = nullptr;

} // namespace

void CountInto(const char* file) {
    output = fopen(file, "w");
    if (!output) Fail("cannot write %s", file);
    counts = std::make_unique<InstructionCounts>(reinterpret_cast<uint32_t>(program.base),
                                                 program.image->Size());
    machine->Cpu().Count(*counts);
}

bool TakeMark(const MSG& message) {
    if (message.hwnd || message.message != RegisterWindowMessageW(u"ArmwineMark")) return false;
    const auto atom = static_cast<ATOM>(message.wParam);
    char name[64] = "";
    GlobalGetAtomNameA(atom, name, sizeof name);
    GlobalDeleteAtom(atom);
    WriteMark(name);
    return true;
}

void WriteMark(const char* name) {
    if (!output) return;
    fprintf(output, "mark\t%s\n", name);
    counts->WriteNew(output);
    machine->WriteNewCalls(output);
    fflush(output);
}
