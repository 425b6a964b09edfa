// Runs a program of the device that opens no window, on an emulated processor: the unit tests of
// everything below the windows. The system is what host.h lists.
//
// usage: armrun [--root FOLDER] PROGRAM.exe [WORD...]
//   --root FOLDER  the host's folder that is the device's root (a new one in /tmp, removed at the
//   end)
// environment: ARMRUN_TRACE=1 prints every call of the system
//              ARMRUN_COUNT=1 says at the end how many instructions were executed
#include <sys/mman.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "../machine.h"
#include "../pe_image.h"
#include "host.h"

GuestMemory guest;

namespace {

// The program's memory: a page that stays free, so that null pointers show; the gates; the image;
// the stack, of the size that programs are linked with; the heap.
constexpr uint32_t kFirst = 0x10000;
constexpr uint32_t kGates = kFirst;
constexpr uint32_t kStackEnd = 0x80000;
constexpr uint32_t kStackSize = 0x10000;
constexpr uint32_t kWordsAt = 0x80000;
constexpr uint32_t kImage = 0x00400000; // Elsewhere than programs would like to be.
constexpr uint32_t kHeap = 0x04000000;
constexpr uint32_t kEnd = 0x20000000;
constexpr uint32_t kShow = 5;

Machine* machine;
InstructionCounts* counts;
std::string ownRoot;

void MakeMemory() {
    void* block = mmap(nullptr, kEnd, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (block == MAP_FAILED) Fail("no memory");
    guest = {static_cast<uint8_t*>(block), kFirst, kEnd};
    SetHeap(kHeap, kEnd);
}

void MakeRoot() {
    char folder[] = "/tmp/armrun-XXXXXX";
    if (!mkdtemp(folder)) Fail("no folder in /tmp");
    deviceRoot = ownRoot = folder;
    atexit([] { std::filesystem::remove_all(ownRoot); });
}

Machine::HostFunction FindHostFunction(const PeImage::Import& import) {
    for (const auto& table :
         {RegistryCalls(), FileCalls(), MemoryCalls(), TextCalls(), SystemCalls(), LibraryCalls(),
          FontCalls(), ObjectStoreCalls(), PlannedFaultCalls()}) {
        for (const HostEntry& entry : table) {
            if (import.name == entry.name) return entry.function;
        }
    }
    return {}; // Ends the run when it is called: a test that goes there does not belong here.
}

// The words of the command line, as the program's entry point is given them.
uint32_t PutWords(int count, char** words) {
    std::u16string line;
    for (int i = 0; i < count; ++i)
        line += (i > 0 ? u" " : u"") + Utf16(words[i]);
    constexpr uint32_t kRoom = 4096;
    PutText(guest.At<char16_t>(kWordsAt), kRoom, line);
    return kWordsAt;
}

} // namespace

uint32_t ProgramBase() {
    return kImage;
}

int main(int argc, char** argv) {
    int next = 1;
    setlocale(LC_CTYPE, "C.UTF-8");
    if (argc > 2 && strcmp(argv[1], "--root") == 0) {
        deviceRoot = argv[2];
        next = 3;
    }
    if (next >= argc) Fail("usage: armrun [--root FOLDER] PROGRAM.exe [WORD...]");
    if (deviceRoot.empty()) MakeRoot();
    const auto image = PeImage::ReadFile(argv[next]);
    if (!image) Fail("not a program for a device: %s", argv[next]);
    if (image->Size() > kHeap - kImage) Fail("a program of %u bytes", image->Size());

    MakeMemory();
    machine = new Machine(guest, kGates);
    BeforeFailing([] { machine->PrintState(); });
    machine->traces = getenv("ARMRUN_TRACE") != nullptr;
    machine->Cpu().RefuseOddAccesses();
    if (getenv("ARMRUN_COUNT")) {
        counts = new InstructionCounts(kImage, image->Size());
        machine->Cpu().Count(*counts);
        atexit([] {
            printf("%llu instructions\n", static_cast<unsigned long long>(counts->Total()));
        });
    }
    image->MapAt(kImage, guest.At<uint8_t>(kImage));
    machine->Bind(*image, kImage, FindHostFunction);
    machine->SetStack(kStackEnd);
    static_assert(kStackEnd - kStackSize > kGates + Machine::kGateBytes);
    machine->Call(kImage + image->EntryPoint(),
                  {kImage, 0, PutWords(argc - next - 1, argv + next + 1), kShow});
    Fail("the entry point returned");
}
