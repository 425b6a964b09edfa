#include "files/filter_file.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/memory_stream.h"

namespace {

std::string Utf16(const std::u16string& text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

std::string Block(int number, const std::string& title = "T") {
    return "[FILTER" + std::to_string(number) + "]\r\n\"Title\"=\"" + title +
           "\"\r\n\"Sensitivity\"=dword:-2\r\n\"Visible\"=dword:0\r\n\"Uncategorized\"=dword:7\r\n";
}

std::string Blocks(int count) {
    std::string file;
    for (int number = 0; number < count; ++number)
        file += Block(number);
    return file;
}

Filters Read(const std::string& file) {
    MemorySource source(file, 5);
    Filters filters;
    ReadFilters(source, filters);
    return filters;
}

bool AreDefaults(const Filters& filters) {
    for (size_t index = 0; index < filters.size(); ++index) {
        const FilterEntry& filter = filters[index];
        if (filter.title.CStr() != L"Filter " + std::to_wstring(index + 1)) return false;
        if (filter.sensitivity != 0 || !filter.visible || filter.includeUncategorized) return false;
    }
    return true;
}

TEST(FilterFile, WritesFiveLinesAFilter) {
    Filters filters;
    SetDefaultFilters(filters);
    filters[1].title = L"Caf\u00E9 \u20AC";
    filters[1].sensitivity = -3;
    filters[1].visible = false;
    filters[1].includeUncategorized = true;
    MemorySink sink;
    WriteFilters(filters, sink);
    const std::string expected =
        Utf16(u"[FILTER0]\r\n\"Title\"=\"Filter 1\"\r\n\"Sensitivity\"=dword:0\r\n"
              u"\"Visible\"=dword:1\r\n\"Uncategorized\"=dword:0\r\n"
              u"[FILTER1]\r\n\"Title\"=\"Caf\u00E9 \u20AC\"\r\n\"Sensitivity\"=dword:-3\r\n"
              u"\"Visible\"=dword:0\r\n\"Uncategorized\"=dword:1\r\n[FILTER2]\r\n");
    EXPECT_EQ(sink.content.substr(0, expected.size()), expected);
    EXPECT_EQ(sink.writes, 160U) << "one write a line";

    const Filters read = Read(sink.content);
    EXPECT_STREQ(read[1].title.CStr(), L"Caf\u00E9 \u00AC\u0020") << "the euro sign falls apart";
    EXPECT_EQ(read[1].sensitivity, -3);
    EXPECT_FALSE(read[1].visible);
    EXPECT_TRUE(read[1].includeUncategorized);
    EXPECT_STREQ(read[31].title.CStr(), L"Filter 32");
}

TEST(FilterFile, TakesThirtyTwoBlocksInOrder) {
    EXPECT_FALSE(AreDefaults(Read(Blocks(32))));
    EXPECT_TRUE(AreDefaults(Read(Blocks(31))));
    EXPECT_TRUE(AreDefaults(Read(Blocks(33)))) << "one too many";

    std::string file = "hello\n" + Block(0) + Block(1);
    for (int number = 2; number < 32; ++number)
        file += Block(number + 1) + Block(number, "Right");
    EXPECT_STREQ(Read(file)[2].title.CStr(), L"Right") << "a wrong number is passed over";

    file = Blocks(31) + "[FILTER31]\r\nbad\r\nbad\r\n\"Visible\"=dword:0\r\n";
    const Filters read = Read(file);
    EXPECT_STREQ(read[30].title.CStr(), L"T");
    EXPECT_EQ(read[30].sensitivity, -2);
    EXPECT_STREQ(read[31].title.CStr(), L"Filter 32") << "what is missing has its default";
    EXPECT_FALSE(read[31].visible);
}

TEST(FilterFile, BoundsALineAndKeepsALongTitle) {
    const auto titleOf = [](size_t length) {
        const std::string block = Block(0, std::string(length, 't'));
        return Read(block + Blocks(32).substr(Block(0).size()))[0].title;
    };
    EXPECT_EQ(titleOf(3000).Length(), 3000U);
    EXPECT_EQ(titleOf(5000), L"Filter 1");
    EXPECT_TRUE(AreDefaults(Read(std::string(8U << 20, 'x'))));
}

} // namespace
