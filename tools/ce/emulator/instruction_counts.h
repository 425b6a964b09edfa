#pragma once

#include <cstdint>
#include <cstdio>
#include <numeric>
#include <vector>

// How many instructions of an image were executed, and where.
class InstructionCounts {
  public:
    InstructionCounts(uint32_t begin, uint32_t size)
        : begin_(begin), counts_(size / kInstruction), written_(counts_.size()) {}

    [[nodiscard]] uint32_t Begin() const { return begin_; }
    [[nodiscard]] uint32_t End() const {
        return begin_ + static_cast<uint32_t>(counts_.size()) * kInstruction;
    }

    // A run of instructions without a branch, executed once.
    void Add(uint32_t address, uint32_t instructions) {
        counts_[(address - begin_) / kInstruction] += instructions;
    }

    [[nodiscard]] uint64_t Total() const {
        return std::accumulate(counts_.begin(), counts_.end(), uint64_t{0});
    }

    // Writes what came since the last time: a line each for the runs that were executed, "at",
    // their place from the image's begin, and instructions executed.
    void WriteNew(FILE* stream) {
        for (size_t index = 0; index < counts_.size(); ++index) {
            if (counts_[index] == written_[index]) continue;
            fprintf(stream, "at\t%zx\t%llu\n", index * kInstruction,
                    static_cast<unsigned long long>(counts_[index] - written_[index]));
            written_[index] = counts_[index];
        }
    }

  private:
    static constexpr uint32_t kInstruction = 4;

    uint32_t begin_;
    std::vector<uint64_t> counts_;
    std::vector<uint64_t> written_;
};
