#include "files/line_grammar.h"

#include "shell/services/number_text.h"

namespace {
constexpr std::wstring_view kTextMark = L"\"=\"";
constexpr std::wstring_view kQuotedNumberMark = L"\"=dword:";
constexpr std::wstring_view kNumberMark = L"=dword";
// "=dword:" and a digit.
constexpr size_t kShortestNumber = 8;
constexpr size_t kNumberStart = 7;

bool EndsWith(std::wstring_view line, wchar_t beforeLineEnd) {
    return line.size() >= 2 && line[line.size() - 2] == beforeLineEnd;
}
} // namespace

bool ParseSectionHeader(std::wstring_view line, std::wstring_view& name) {
    if (line.size() < 3 || line.front() != L'[' || !EndsWith(line, L']')) return false;
    name = line.substr(1, line.size() - 3);
    return true;
}

bool LooksLikeStringValue(std::wstring_view line) {
    return line.find(kTextMark) != std::wstring_view::npos;
}

bool LooksLikeDwordValue(std::wstring_view line) {
    return line.find(kQuotedNumberMark) != std::wstring_view::npos;
}

bool ParseStringValueLine(std::wstring_view line, std::wstring_view& name,
                          std::wstring_view& text) {
    name = text = {};
    const size_t mark = line.find(kTextMark);
    if (line.size() <= 7 || line.front() != L'"' || mark == std::wstring_view::npos ||
        !EndsWith(line, L'"')) {
        return false;
    }
    const size_t textStart = mark + kTextMark.size();
    const size_t textEnd = line.size() - 2;
    // The line may begin with the mark, or its last quote be the mark's own.
    if (mark > 0) name = line.substr(1, mark - 1);
    if (textEnd > textStart) text = line.substr(textStart, textEnd - textStart);
    return true;
}

bool ParseDwordValueLine(std::wstring_view line, std::wstring_view& name, uint32_t& number) {
    const size_t equals = line.find(L'=');
    const bool hasName = equals != std::wstring_view::npos && equals >= 2;
    name = hasName ? line.substr(1, equals - 2) : std::wstring_view();
    const size_t mark = line.find(kNumberMark);
    if (mark == std::wstring_view::npos || line.size() - mark < kShortestNumber) return false;
    number = NumberFromDecimalText(line.substr(mark + kNumberStart));
    return true;
}
