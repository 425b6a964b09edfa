#include "ui/folder_listing.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "shell/services/handles.h"
#include "shell/services/text_order.h"
#include "ui/file_name.h"

namespace {
bool IsDots(const wchar_t* name) {
    return wcscmp(name, L".") == 0 || wcscmp(name, L"..") == 0;
}

void Sort(std::vector<WideString>& names) {
    std::sort(names.begin(), names.end(), TextOrder());
}
} // namespace

FolderListing ListFolder(const WideString& folder, const wchar_t* extension) {
    FolderListing listing;
    std::vector<WideString> files;
    WideString pattern(folder);
    pattern.Append(L"\\*");
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(pattern.CStr(), &found));
    for (bool more = static_cast<bool>(find); more; more = FindNextFile(find.Get(), &found)) {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            if (!IsDots(found.cFileName)) listing.names.emplace_back(found.cFileName);
        } else if (extension && HasExtension(found.cFileName, extension)) {
            // A pattern with the extension would find longer extensions as well on some platforms.
            files.emplace_back(found.cFileName);
        }
    }
    Sort(listing.names);
    Sort(files);
    listing.folderCount = listing.names.size();
    std::move(files.begin(), files.end(), std::back_inserter(listing.names));
    return listing;
}

bool IsFolder(const wchar_t* path) {
    const DWORD attributes = GetFileAttributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

WideString ParentFolder(const WideString& folder) {
    WideString parent;
    const wchar_t* lastBackslash = wcsrchr(folder.CStr(), L'\\');
    if (lastBackslash)
        parent.Assign(folder.CStr(), static_cast<size_t>(lastBackslash - folder.CStr()));
    return parent;
}
