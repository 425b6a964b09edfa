#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "files/byte_stream.h"

// The lines of a UTF-8 text, of a source of any size and content.
class LineReader {
  public:
    static constexpr size_t kMaxLine = 1023;

    explicit LineReader(ByteSource& source);

    // The next line, with its line end (LF or CR LF) as one LF; none at the end. A line of more
    // than kMaxLine characters comes in several, as those of the platform's own text streams do.
    // Valid until the next call.
    [[nodiscard]] std::optional<std::wstring_view> Next();

  private:
    // Puts the letters, digits and signs of ASCII that come next at the place given, as far as the
    // line has room; gives how many. Most lines are made of them.
    size_t TakePlain(size_t place);
    // Puts the next character at the place given; gives how many units of 16 bits it took.
    size_t Take(size_t place);

    ByteReader bytes_;
    std::unique_ptr<wchar_t[]> line_;
};
