#include "files/filter_file.h"
#include "fuzz/fuzzing.h"
#include "tests/support/memory_stream.h"

namespace {

bool AreSame(const FilterEntry& left, const FilterEntry& right) {
    return left.title == right.title && left.sensitivity == right.sensitivity &&
           left.visible == right.visible && left.includeUncategorized == right.includeUncategorized;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // A whole file is found by chance seldom: the input also stands in for one block of a good one.
    Filters defaults;
    SetDefaultFilters(defaults);
    MemorySink good;
    WriteFilters(defaults, good);
    const std::string bytes = BytesOf(data, size);
    const size_t place = good.content.size() / 2;
    for (const std::string& file :
         {bytes, good.content.substr(0, place) + bytes + good.content.substr(place)}) {
        Filters read;
        MemorySource source(file, 7);
        ReadFilters(source, read);
        MemorySink sink;
        WriteFilters(read, sink);
        MemorySource written(sink.content);
        Filters again;
        ReadFilters(written, again);
        for (size_t index = 0; index < read.size(); ++index) {
            const bool fits = read[index].title.Length() < 4000;
            Require(!fits || AreSame(read[index], again[index]), "what was read is kept");
        }
    }
    return 0;
}
