#include "pe_image.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

#include "failure.h"

namespace {
constexpr uint32_t kSignature = 0x4550; // "PE"
constexpr uint16_t kMachineArm = 0x1C0;
constexpr uint16_t kMagic32 = 0x10B;
constexpr uint16_t kSubsystemCe = 9;
constexpr uint32_t kByOrdinal = 0x80000000;
constexpr unsigned kRelocationAbsolute = 0; // Fills up a block.
constexpr unsigned kRelocationHighLow = 3;
constexpr uint32_t kLargestImage = 64U << 20;
} // namespace

std::optional<PeImage> PeImage::Read(std::vector<uint8_t> file) {
    PeImage image(std::move(file));
    if (!image.ReadHeaders()) return std::nullopt;
    return image;
}

std::optional<PeImage> PeImage::ReadFile(const char* path) {
    const std::unique_ptr<FILE, int (*)(FILE*)> stream(fopen(path, "rb"), fclose);
    if (!stream) return std::nullopt;
    std::vector<uint8_t> bytes;
    uint8_t block[65536];
    while (const size_t count = fread(block, 1, sizeof block, stream.get()))
        bytes.insert(bytes.end(), block, block + count);
    return Read(std::move(bytes));
}

bool PeImage::ReadHeaders() {
    const uint32_t header = Word(0x3C);
    if (header > file_.size() || Word(header) != kSignature || Half(header + 4) != kMachineArm)
        return false;
    optionalHeader_ = header + 24;
    if (Half(optionalHeader_) != kMagic32 || Half(optionalHeader_ + 68) != kSubsystemCe)
        return false;
    if (Size() > kLargestImage) return false;
    const uint32_t table = optionalHeader_ + Half(header + 20);
    for (uint32_t number = 0; number < Half(header + 6); ++number) {
        const uint32_t entry = table + 40 * number;
        const Section section{Word(entry + 12), Word(entry + 8), Word(entry + 20),
                              Word(entry + 16)};
        const uint32_t taken = std::max(section.memorySize, section.fileSize);
        if (section.address > Size() || taken > Size() - section.address) return false;
        if (section.place > file_.size() || section.fileSize > file_.size() - section.place)
            return false;
        sections_.push_back(section);
    }
    return true;
}

uint32_t PeImage::Word(uint32_t place) const {
    uint32_t word = 0;
    if (place < file_.size() && file_.size() - place >= sizeof word)
        memcpy(&word, file_.data() + place, sizeof word);
    return word;
}

uint16_t PeImage::Half(uint32_t place) const {
    return static_cast<uint16_t>(Word(place & ~1U) >> (place & 1 ? 8 : 0));
}

std::string PeImage::Text(uint32_t address) const {
    std::string text;
    for (uint32_t place = PlaceOf(address); place < file_.size() && file_[place] != 0; ++place)
        text.push_back(static_cast<char>(file_[place]));
    return text;
}

uint32_t PeImage::PlaceOf(uint32_t address) const {
    for (const Section& section : sections_) {
        if (address >= section.address && address - section.address < section.fileSize)
            return section.place + (address - section.address);
    }
    return static_cast<uint32_t>(file_.size());
}

PeImage::Directory PeImage::DirectoryAt(DirectoryNumber number) const {
    const uint32_t entry = optionalHeader_ + 96 + 8 * static_cast<uint32_t>(number);
    return {Word(entry), Word(entry + 4)};
}

uint32_t PeImage::PreferredBase() const {
    return Word(optionalHeader_ + 28);
}

uint32_t PeImage::Size() const {
    return Word(optionalHeader_ + 56);
}

uint32_t PeImage::EntryPoint() const {
    return Word(optionalHeader_ + 16);
}

uint32_t PeImage::Resources() const {
    return DirectoryAt(kResources).address;
}

uint32_t PeImage::MapAt(uint32_t base, uint8_t* memory) const {
    const uint32_t headers =
        std::min({Word(optionalHeader_ + 60), Size(), static_cast<uint32_t>(file_.size())});
    memcpy(memory, file_.data(), headers);
    for (const Section& section : sections_)
        memcpy(memory + section.address, file_.data() + section.place, section.fileSize);
    const uint32_t difference = base - PreferredBase();
    return difference == 0 ? 0 : Relocate(difference, memory);
}

// Blocks of a page each: the page's address, the block's size, and entries of a kind (4 bits) and a
// place in the page (12).
uint32_t PeImage::Relocate(uint32_t difference, uint8_t* memory) const {
    const Directory table = DirectoryAt(kRelocations);
    uint32_t count = 0;
    for (uint32_t done = 0; done + 8 <= table.size;) {
        const uint32_t block = PlaceOf(table.address + done);
        const uint32_t page = Word(block);
        const uint32_t size = Word(block + 4);
        if (size < 8 || size > table.size - done)
            Fail("a block of relocations has the size %u", size);
        for (uint32_t entry = 8; entry + 2 <= size; entry += 2) {
            const unsigned kind = Half(block + entry) >> 12;
            const uint32_t target = page + (Half(block + entry) & 0xFFFU);
            if (kind == kRelocationAbsolute) continue;
            if (kind != kRelocationHighLow || target + 4 > Size())
                Fail("a relocation of kind %u at %x", kind, target);
            uint32_t word;
            memcpy(&word, memory + target, sizeof word);
            word += difference;
            memcpy(memory + target, &word, sizeof word);
            ++count;
        }
        done += size;
    }
    return count;
}

std::vector<PeImage::Import> PeImage::Imports() const {
    std::vector<Import> imports;
    const Directory table = DirectoryAt(kImports);
    if (table.size == 0) return imports;
    for (uint32_t library = PlaceOf(table.address); Word(library + 12) != 0; library += 20) {
        const std::string name = Text(Word(library + 12));
        const uint32_t slots = Word(library + 16);
        const uint32_t names = PlaceOf(Word(library) != 0 ? Word(library) : slots);
        for (uint32_t offset = 0; const uint32_t entry = Word(names + offset); offset += 4) {
            constexpr uint32_t kHint = 2; // Bytes before the name.
            imports.push_back(
                {name,
                 entry & kByOrdinal ? "#" + std::to_string(entry & 0xFFFF) : Text(entry + kHint),
                 slots + offset});
        }
    }
    return imports;
}
