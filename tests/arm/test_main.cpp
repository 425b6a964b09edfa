// The entry of a test program on the device's processor: the command line is googletest's.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR commandLine, int) {
    std::vector<std::string> words(1, "tests");
    for (const wchar_t* place = commandLine; *place; ++place) {
        if (*place == L' ')
            words.emplace_back();
        else
            (words.size() == 1 ? words.emplace_back() : words.back()) += static_cast<char>(*place);
    }
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    testing::InitGoogleTest(&count, pointers.data());
    const int result = RUN_ALL_TESTS();
    fflush(stdout);
    return result;
}
