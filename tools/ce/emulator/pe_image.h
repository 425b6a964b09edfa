#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// A Windows CE program or library as its file holds it: PE of 32 bits for ARM.
class PeImage {
  public:
    // Nothing when the bytes are no such file.
    static std::optional<PeImage> Read(std::vector<uint8_t> file);
    static std::optional<PeImage> ReadFile(const char* path);

    [[nodiscard]] uint32_t PreferredBase() const;
    // Bytes that it takes in memory.
    [[nodiscard]] uint32_t Size() const;
    // Where it starts, from its base; 0 for a library of resources.
    [[nodiscard]] uint32_t EntryPoint() const;
    // Where its tree of resources is, from its base; 0 when it has none.
    [[nodiscard]] uint32_t Resources() const;

    // Puts it into `memory`, Size() bytes of zeros, as it has to be at the address `base`. Gives
    // the number of places that had to be changed for being elsewhere than preferred.
    uint32_t MapAt(uint32_t base, uint8_t* memory) const;

    struct Import {
        std::string library;
        std::string name; // Or "#" and the number, for an import by ordinal.
        uint32_t slot;    // Where the address goes, from the base.
    };
    [[nodiscard]] std::vector<Import> Imports() const;

  private:
    struct Section {
        uint32_t address, memorySize, place, fileSize;
    };
    struct Directory {
        uint32_t address, size;
    };
    // By the numbers of the format.
    enum DirectoryNumber { kImports = 1, kResources = 2, kRelocations = 5 };

    explicit PeImage(std::vector<uint8_t> file) : file_(std::move(file)) {}
    bool ReadHeaders();
    // Numbers of the file; 0 behind its end.
    [[nodiscard]] uint32_t Word(uint32_t place) const;
    [[nodiscard]] uint16_t Half(uint32_t place) const;
    [[nodiscard]] std::string Text(uint32_t address) const;
    // The place in the file of an address from the base; the file's size for one that it lacks.
    [[nodiscard]] uint32_t PlaceOf(uint32_t address) const;
    [[nodiscard]] Directory DirectoryAt(DirectoryNumber number) const;
    uint32_t Relocate(uint32_t difference, uint8_t* memory) const;

    std::vector<uint8_t> file_;
    uint32_t optionalHeader_ = 0;
    std::vector<Section> sections_;
};
