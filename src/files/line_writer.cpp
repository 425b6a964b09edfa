#include "files/line_writer.h"

#include <algorithm>

#include "files/utf8.h"
#include "shell/services/number_text.h"

namespace {
constexpr size_t kMaxLine = 800;
constexpr size_t kBufferSize = 8192;

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}
} // namespace

LineWriter::LineWriter(ByteSink& sink)
    : sink_(sink), line_(new wchar_t[kMaxLine]), buffer_(new uint8_t[kBufferSize]) {}

void LineWriter::Section(std::wstring_view name) {
    Put(L"\n[");
    Put(name);
    Put(L"]\n");
    EndLine();
}

void LineWriter::Text(std::wstring_view name, std::wstring_view text) {
    Put(L"\"");
    Put(name);
    Put(L"\"=\"");
    Put(text);
    Put(L"\"\n");
    EndLine();
}

void LineWriter::Number(std::wstring_view name, uint32_t number) {
    Put(L"\"");
    Put(name);
    Put(L"\"=dword:");
    Put(DecimalText(static_cast<int32_t>(number)).View());
    Put(L"\n");
    EndLine();
}

void LineWriter::Put(std::wstring_view text) {
    const size_t count = std::min(text.size(), kMaxLine - length_);
    std::copy_n(text.data(), count, line_.get() + length_);
    length_ += count;
}

void LineWriter::EndLine() {
    for (size_t index = 0; index < length_; ++index) {
        const auto unit = static_cast<char32_t>(line_[index]);
        const char32_t next = index + 1 < length_ ? line_[index + 1] : 0;
        if (IsHighSurrogate(unit) && IsLowSurrogate(next)) {
            Encode(0x10000 + ((unit & 0x3FF) << 10) + (next & 0x3FF));
            ++index;
        } else {
            if (unit == L'\n') Encode(L'\r');
            Encode(unit);
        }
    }
    length_ = 0;
}

void LineWriter::Encode(char32_t character) {
    if (kBufferSize - buffered_ < 4) Flush();
    buffered_ += EncodeUtf8(character, buffer_.get() + buffered_);
}

void LineWriter::Flush() {
    if (buffered_ > 0) sink_.Write(buffer_.get(), buffered_);
    buffered_ = 0;
}
