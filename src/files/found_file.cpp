#include "files/found_file.h"

#include <cwchar>

bool IsFileOf(const WIN32_FIND_DATA& found, const wchar_t* extension) {
    const wchar_t* last = wcsrchr(found.cFileName, L'.');
    return !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && last &&
           _wcsicmp(last, extension) == 0;
}
