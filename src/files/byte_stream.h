#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

// The bytes of a file, one after the other.
class ByteSource {
  public:
    // Gives how many bytes came, at most `size`; 0 at the end, and when reading fails.
    virtual size_t Read(uint8_t* buffer, size_t size) = 0;
    // Goes back to the first byte; false on failure.
    [[nodiscard]] virtual bool Rewind() = 0;

  protected:
    ~ByteSource() = default;
};

// Where the bytes of a file go. Failures show when the file is closed, if at all.
class ByteSink {
  public:
    virtual void Write(const uint8_t* bytes, size_t size) = 0;

  protected:
    ~ByteSink() = default;
};

// Reads a source through a buffer, with a look at what comes.
class ByteReader {
  public:
    explicit ByteReader(ByteSource& source);

    // The bytes that come next: at least `count` (at most 4) of them, unless fewer are left. Valid
    // until the next call.
    [[nodiscard]] std::span<const uint8_t> Ahead(size_t count) {
        if (end_ - begin_ < count) Fill();
        return {buffer_.get() + begin_, end_ - begin_};
    }
    // Goes on behind `count` bytes that Ahead has shown.
    void Skip(size_t count) { begin_ += count; }

  private:
    void Fill();

    ByteSource& source_;
    std::unique_ptr<uint8_t[]> buffer_;
    size_t begin_ = 0;
    size_t end_ = 0;
    bool isAtEnd_ = false; // Of the source: what gave nothing once is not asked again.
};
