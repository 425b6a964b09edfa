#include "tests/support/string_library.h"

#include <windows.h>

#include <vector>

bool MakeStringLibrary(const std::wstring& path, unsigned id, const std::wstring& text) {
    // Some library that every PC has, small and without texts.
    wchar_t folder[MAX_PATH];
    GetSystemDirectoryW(folder, MAX_PATH);
    if (!CopyFileW((std::wstring(folder) + L"\\version.dll").c_str(), path.c_str(), FALSE))
        return false;
    // Texts are kept in blocks of sixteen, each as its length and its characters.
    constexpr unsigned kBlock = 16;
    std::vector<wchar_t> block;
    for (unsigned number = 0; number < kBlock; ++number) {
        const std::wstring& entry = number == id % kBlock ? text : std::wstring();
        block.push_back(static_cast<wchar_t>(entry.size()));
        block.insert(block.end(), entry.begin(), entry.end());
    }
    HANDLE update = BeginUpdateResourceW(path.c_str(), FALSE);
    return UpdateResourceW(update, RT_STRING, MAKEINTRESOURCEW(id / kBlock + 1),
                           MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL), block.data(),
                           static_cast<DWORD>(block.size() * sizeof(wchar_t))) &&
           EndUpdateResourceW(update, FALSE);
}
