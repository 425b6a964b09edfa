#include "files/filter_file.h"

#include <optional>
#include <string_view>
#include <vector>

#include "files/line_grammar.h"
#include "shell/services/number_text.h"

namespace {

// Longer than any line that is ours, and a bound for those that are not.
constexpr size_t kMaxLine = 4096;

class FilterLines {
  public:
    explicit FilterLines(ByteSource& file) : bytes_(file) { line_.reserve(kMaxLine); }

    // The next line without its line feed; none at the file's end.
    std::optional<std::wstring_view> Next() {
        if (bytes_.Ahead(1).empty()) return std::nullopt;
        line_.clear();
        for (auto ahead = bytes_.Ahead(1); !ahead.empty(); ahead = bytes_.Ahead(1)) {
            const uint8_t byte = ahead[0];
            bytes_.Skip(1);
            if (byte == '\n') break;
            if (byte != 0 && line_.size() < kMaxLine) line_.push_back(byte);
        }
        return std::wstring_view(line_.data(), line_.size());
    }

  private:
    ByteReader bytes_;
    std::vector<wchar_t> line_;
};

WideString BlockHeader(size_t number) {
    WideString header(L"[FILTER");
    header.Append(DecimalText(static_cast<int32_t>(number)).CStr());
    header.Append(L"]");
    return header;
}

FilterEntry DefaultFilter(size_t index) {
    FilterEntry filter;
    filter.title.Assign(L"Filter ");
    filter.title.Append(DecimalText(static_cast<int32_t>(index)).CStr());
    return filter;
}

// The number of the next line; none when it holds none.
std::optional<uint32_t> NextNumber(FilterLines& lines) {
    std::wstring_view name;
    uint32_t number = 0;
    const auto line = lines.Next();
    if (!line || !ParseDwordValueLine(*line, name, number)) return std::nullopt;
    return number;
}

FilterEntry ReadFilter(FilterLines& lines, size_t index) {
    FilterEntry filter = DefaultFilter(index);
    std::wstring_view name;
    std::wstring_view title;
    const auto line = lines.Next();
    if (line && ParseStringValueLine(*line, name, title)) {
        filter.title.Assign(title.data(), title.size());
    }
    if (const auto number = NextNumber(lines)) filter.sensitivity = static_cast<int32_t>(*number);
    if (const auto number = NextNumber(lines)) filter.visible = *number != 0;
    if (const auto number = NextNumber(lines)) filter.includeUncategorized = *number != 0;
    return filter;
}

void WriteLine(ByteSink& file, const WideString& line, std::vector<uint8_t>& bytes) {
    bytes.clear();
    for (size_t index = 0; index < line.Length(); ++index) {
        const auto unit = static_cast<uint16_t>(line.CStr()[index]);
        bytes.push_back(static_cast<uint8_t>(unit));
        bytes.push_back(static_cast<uint8_t>(unit >> 8));
    }
    file.Write(bytes.data(), bytes.size());
}

WideString NumberLine(const wchar_t* name, int32_t number) {
    WideString line(L"\"");
    line.Append(name);
    line.Append(L"\"=dword:");
    line.Append(DecimalText(number).CStr());
    line.Append(L"\r\n");
    return line;
}

} // namespace

void SetDefaultFilters(Filters& filters) {
    for (size_t index = 0; index < filters.size(); ++index)
        filters[index] = DefaultFilter(index + 1);
}

void ReadFilters(ByteSource& file, Filters& filters) {
    FilterLines lines(file);
    size_t count = 0;
    WideString header = BlockHeader(0);
    while (const auto line = lines.Next()) {
        if (line->find(header.CStr()) == std::wstring_view::npos) continue;
        if (count < filters.size()) filters[count] = ReadFilter(lines, count + 1);
        header = BlockHeader(++count);
    }
    if (count != filters.size()) SetDefaultFilters(filters);
}

void WriteFilters(const Filters& filters, ByteSink& file) {
    std::vector<uint8_t> bytes;
    for (size_t number = 0; number < filters.size(); ++number) {
        const FilterEntry& filter = filters[number];
        WideString header = BlockHeader(number);
        header.Append(L"\r\n");
        WideString title(L"\"Title\"=\"");
        title.Append(filter.title.CStr());
        title.Append(L"\"\r\n");
        WriteLine(file, header, bytes);
        WriteLine(file, title, bytes);
        WriteLine(file, NumberLine(L"Sensitivity", filter.sensitivity), bytes);
        WriteLine(file, NumberLine(L"Visible", filter.visible ? 1 : 0), bytes);
        WriteLine(file, NumberLine(L"Uncategorized", filter.includeUncategorized ? 1 : 0), bytes);
    }
}
