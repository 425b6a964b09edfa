// What many appends to one string cost: as much as with the standard library's string, and ten
// times as much for ten times the text.

#include <string>

#include "bench/timing.h"
#include "shell/services/wide_string.h"

namespace {

constexpr wchar_t kPiece[] = L"sixteen letters.";

void AppendToStandardString(int count) {
    std::wstring text;
    for (int number = 0; number < count; ++number)
        text.append(kPiece);
}

void AppendToOurs(int count) {
    WideString text;
    for (int number = 0; number < count; ++number)
        text.Append(kPiece);
}

// So many texts that each size makes the same number of appends.
template <typename Append>
void Repeat(int count, Append append) {
    constexpr int kAppends = 1'000'000;
    for (int text = 0; text < kAppends / count; ++text)
        append(count);
}

} // namespace

int main() {
    PrintHeading();
    for (const int count : {1'000, 10'000, 100'000, 1'000'000}) {
        char what[40];
        std::snprintf(what, sizeof what, "1000000 appends, %d to a text", count);
        PrintRow(what,
                 Compare(
                     31, [&] { Repeat(count, AppendToStandardString); },
                     [&] { Repeat(count, AppendToOurs); }),
                 1.25);
    }
    return 0;
}
