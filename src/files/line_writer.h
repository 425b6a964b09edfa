#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "files/byte_stream.h"

// Writes the line grammar as UTF-8 without a mark, lines ended CR LF, through a buffer. A line is
// cut behind 800 characters, its line end among them.
class LineWriter {
  public:
    explicit LineWriter(ByteSink& sink);
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;
    ~LineWriter() { Flush(); }

    // An empty line and the header.
    void Section(std::wstring_view name);
    void Text(std::wstring_view name, std::wstring_view text);
    // As a signed number.
    void Number(std::wstring_view name, uint32_t number);

  private:
    void Put(std::wstring_view text);
    void EndLine();
    void Encode(char32_t character);
    void Flush();

    ByteSink& sink_;
    std::unique_ptr<wchar_t[]> line_;
    size_t length_ = 0;
    std::unique_ptr<uint8_t[]> buffer_;
    size_t buffered_ = 0;
};
