#include "files/alphabet_file.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/memory_stream.h"

namespace {
std::string Repeated(const std::string& text, size_t count) {
    std::string all;
    while (count-- > 0)
        all += text;
    return all;
}

std::optional<Alphabet> Read(const std::string& bytes) {
    MemorySource file(bytes, 3);
    return ReadAlphabet(file);
}

TEST(AlphabetFile, HoldsANameAndGroups) {
    for (const std::string end : {"\n", "\r\n"}) {
        const auto alphabet = Read("\xEF\xBB\xBF My ABC " + end + end + "\t\xCE\x91 \xCE\x92" +
                                   end + " " + end + "C");
        ASSERT_TRUE(alphabet);
        EXPECT_TRUE(alphabet->name == L"My ABC");
        ASSERT_EQ(alphabet->groups.size(), 2u);
        EXPECT_TRUE(alphabet->groups[0] == L"\u0391 \u0392");
        EXPECT_TRUE(alphabet->groups[1] == L"C");
    }
}

TEST(AlphabetFile, HasLimits) {
    const std::string name(kMaxAlphabetName, 'n');
    const std::string group(kMaxAlphabetGroup, 'g');
    const std::string blank(1000, ' ');
    EXPECT_TRUE(Read(name + "\n" + Repeated(group + "\n", kMaxAlphabetGroups)));
    EXPECT_TRUE(Read("N\nA\n" + Repeated(blank + "\n", 4)));
    EXPECT_TRUE(Read("N\nA" + std::string(1021, ' ') + "\nB\n"));
    for (const std::string& bad :
         {std::string(), std::string("Name only\n"), std::string("\nA\n"), std::string("N\n \n"),
          name + "n\nA\n", "N\n" + group + "g\n", "N\n" + Repeated("A\n", kMaxAlphabetGroups + 1),
          "N\nA\n" + Repeated(blank + "\n", 5), "N\nA" + std::string(1022, ' ') + "B\n",
          "N" + std::string(1022, ' ') + "A\n", std::string("N\nA\0B\n", 6),
          std::string("N\x1B\nA\n"), std::string("N\nA\rB\n"), std::string("N\nA\xC2\x85\n"),
          std::string("\xFF\xFEN\0\n\0A\0", 8)})
        EXPECT_FALSE(Read(bad)) << bad.substr(0, 40);
}
} // namespace
