#include "files/custom_alphabets.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>

#include "files/file_stream.h"
#include "files/found_file.h"
#include "settings/settings_store.h"
#include "shell/services/handles.h"
#include "shell/services/text_order.h"

namespace {
constexpr wchar_t kExtension[] = L".txt";

// Where the extension begins; null for what is no alphabet file, or one without a name.
const wchar_t* ExtensionOf(const WIN32_FIND_DATA& found) {
    const wchar_t* extension = wcsrchr(found.cFileName, L'.');
    return IsFileOf(found, kExtension) && extension != found.cFileName ? extension : nullptr;
}

CustomAlphabet ReadFileOf(const WideString& folder, const WIN32_FIND_DATA& found,
                          const wchar_t* extension) {
    CustomAlphabet custom;
    custom.fileName.Assign(found.cFileName, static_cast<size_t>(extension - found.cFileName));
    WideString path(folder);
    path.Append(found.cFileName);
    FileSource file(path.CStr());
    if (file.IsOpen()) custom.alphabet = ReadAlphabet(file);
    return custom;
}
} // namespace

std::vector<CustomAlphabet> ReadCustomAlphabets() {
    std::vector<CustomAlphabet> alphabets;
    WideString folder(settingsStore.installFolder);
    folder.Append(L"\\CustomAlphabets\\");
    WideString pattern(folder);
    pattern.Append(L"*");
    pattern.Append(kExtension);
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(pattern.CStr(), &found));
    for (bool more = static_cast<bool>(find); more; more = FindNextFile(find.Get(), &found)) {
        if (const wchar_t* extension = ExtensionOf(found))
            alphabets.push_back(ReadFileOf(folder, found, extension));
    }
    std::ranges::sort(alphabets, TextOrder(), &CustomAlphabet::fileName);
    return alphabets;
}
