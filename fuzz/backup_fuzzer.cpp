#include "files/backup_reader.h"
#include "fuzz/fuzzing.h"
#include "tests/support/memory_stream.h"

namespace {

// Takes a backup in and keeps count.
class Counter final : public BackupReceiver {
  public:
    bool BeginKey(std::wstring_view path) override {
        characters += path.size() + 1;
        return path != L"refused";
    }
    void SetText(std::wstring_view name, std::wstring_view text) override {
        characters += name.size() + text.size() + 1;
    }
    void SetNumber(std::wstring_view name, uint32_t number) override {
        characters += name.size() + 1;
        sum += number;
    }
    void SetCategory(const BackupCategory& category) override {
        characters += category.name.size() + 1;
        sum += category.filters.value_or(0) + category.colour.value_or(0);
    }
    void SetFilter(const BackupFilter& filter) override {
        characters += filter.title.value_or(L"").size() + 1;
        sum += filter.index.value_or(0) + filter.visible.value_or(0);
    }

    size_t characters = 0;
    uint32_t sum = 0;
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Counter inOneGo;
    MemorySource whole(BytesOf(data, size));
    const bool read = ReadBackup(whole, inOneGo);
    Require(inOneGo.characters <= size, "nothing comes that is not in the file");
    Counter inPieces;
    MemorySource pieces(BytesOf(data, size), 1);
    Require(ReadBackup(pieces, inPieces) == read, "the same read in pieces");
    Require(inPieces.characters == inOneGo.characters && inPieces.sum == inOneGo.sum, "all of it");
    return 0;
}
