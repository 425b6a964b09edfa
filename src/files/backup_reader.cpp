#include "files/backup_reader.h"

#include <string>

#include "files/line_grammar.h"
#include "files/line_reader.h"

namespace {

using Line = std::optional<std::wstring_view>;

std::optional<uint32_t> NumberOf(std::wstring_view line, std::wstring_view& name) {
    uint32_t number = 0;
    if (!ParseDwordValueLine(line, name, number)) return std::nullopt;
    return number;
}

std::optional<std::wstring_view> TextOf(std::wstring_view line) {
    std::wstring_view name;
    std::wstring_view text;
    if (!ParseStringValueLine(line, name, text)) return std::nullopt;
    return text;
}

// As the platform compares names without regard to case, for a name of plain letters.
bool IsColourName(std::wstring_view name) {
    constexpr std::wstring_view kColour = L"color";
    if (name.size() != kColour.size()) return false;
    for (size_t index = 0; index < name.size(); ++index) {
        if ((name[index] | 0x20) != kColour[index]) return false;
    }
    return true;
}

class BackupReader {
  public:
    BackupReader(ByteSource& file, BackupReceiver& receiver) : lines_(file), receiver_(receiver) {}

    bool Read() {
        if (lines_.Next() != L"\n") return false;
        while (const Line line = lines_.Next()) {
            std::wstring_view name;
            if (ParseSectionHeader(*line, name) && !ReadSection(name)) return false;
        }
        return true;
    }

  private:
    bool ReadSection(std::wstring_view name) {
        if (name == kCategoriesSection) {
            ReadCategoriesSection();
        } else if (name == kFiltersSection) {
            ReadFiltersSection();
        } else {
            return ReadKeySection(name);
        }
        return true;
    }

    // The next line of a section; none at its end.
    Line NextInSection() {
        const Line line = lines_.Next();
        return line == L"\n" ? std::nullopt : line;
    }

    bool ReadKeySection(std::wstring_view path) {
        if (!receiver_.BeginKey(path)) return false;
        while (const Line line = NextInSection())
            ReadValue(*line);
        return true;
    }

    void ReadValue(std::wstring_view line) {
        std::wstring_view name;
        if (LooksLikeStringValue(line)) {
            std::wstring_view text;
            // A refused line leaves both empty, and that is what it sets.
            (void)ParseStringValueLine(line, name, text);
            receiver_.SetText(name, text);
        } else if (LooksLikeDwordValue(line)) {
            if (const auto number = NumberOf(line, name)) receiver_.SetNumber(name, *number);
        }
    }

    // Within a block every line counts, empty ones too; a block that the file's end cuts short is
    // none.
    void ReadCategoriesSection() {
        while (const Line first = NextInSection()) {
            BackupCategory category;
            std::wstring_view name;
            KeepText(TextOf(*first).value_or(L""), category.name);
            Line line = lines_.Next();
            if (!line) return;
            category.filters = NumberOf(*line, name);
            if (!(line = lines_.Next())) return;
            category.colour = NumberOf(*line, name);
            if (!IsColourName(name)) {
                if (!(line = lines_.Next())) return;
                category.colour = NumberOf(*line, name);
            }
            receiver_.SetCategory(category);
        }
    }

    void ReadFiltersSection() {
        while (const Line first = NextInSection()) {
            BackupFilter filter;
            if (const auto title = TextOf(*first)) KeepText(*title, filter.title.emplace());
            for (auto* number : {&filter.index, &filter.visible, &filter.includeUncategorized}) {
                const Line line = lines_.Next();
                if (!line) return;
                std::wstring_view name;
                *number = NumberOf(*line, name);
            }
            receiver_.SetFilter(filter);
        }
    }

    // A line is gone with the next; a block's first is needed at its end.
    void KeepText(std::wstring_view text, std::wstring_view& kept) {
        kept_.assign(text);
        kept = kept_;
    }

    LineReader lines_;
    BackupReceiver& receiver_;
    std::wstring kept_;
};

} // namespace

bool ReadBackup(ByteSource& file, BackupReceiver& receiver) {
    return file.Rewind() && BackupReader(file, receiver).Read();
}
