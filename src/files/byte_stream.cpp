#include "files/byte_stream.h"

#include <cstring>

namespace {
constexpr size_t kBufferSize = 8192;
} // namespace

ByteReader::ByteReader(ByteSource& source) : source_(source), buffer_(new uint8_t[kBufferSize]) {}

void ByteReader::Fill() {
    const size_t left = end_ - begin_;
    memmove(buffer_.get(), buffer_.get() + begin_, left);
    begin_ = 0;
    end_ = left;
    while (end_ < 4 && !isAtEnd_) {
        const size_t count = source_.Read(buffer_.get() + end_, kBufferSize - end_);
        isAtEnd_ = count == 0;
        end_ += count;
    }
}
