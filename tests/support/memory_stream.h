#pragma once

#include <algorithm>
#include <cstring>
#include <string>

#include "files/byte_stream.h"

// A file in memory. It hands out `step` bytes a read at most, as a slow device might.
class MemorySource final : public ByteSource {
  public:
    explicit MemorySource(std::string bytes, size_t step = 1 << 20)
        : bytes_(std::move(bytes)), step_(step) {}

    size_t Read(uint8_t* buffer, size_t size) override {
        const size_t count = std::min({size, step_, bytes_.size() - place_});
        if (count != 0) memcpy(buffer, bytes_.data() + place_, count);
        place_ += count;
        return count;
    }
    bool Rewind() override {
        place_ = 0;
        return true;
    }

  private:
    std::string bytes_;
    size_t step_;
    size_t place_ = 0;
};

class MemorySink final : public ByteSink {
  public:
    void Write(const uint8_t* bytes, size_t size) override {
        content.append(reinterpret_cast<const char*>(bytes), size);
        ++writes;
    }

    std::string content;
    size_t writes = 0;
};
