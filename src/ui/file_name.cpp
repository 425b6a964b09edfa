#include "ui/file_name.h"

#include <cwchar>

FileNameFault CheckFileName(const WideString& name) {
    const wchar_t* lastBackslash = wcsrchr(name.CStr(), L'\\');
    const wchar_t* base = lastBackslash ? lastBackslash + 1 : name.CStr();
    if (wcspbrk(name.CStr(), L"/:*?\"<>|")) return FileNameFault::IllegalCharacter;
    return *base ? FileNameFault::None : FileNameFault::Missing;
}

bool HasExtension(const wchar_t* name, const wchar_t* extension) {
    const wchar_t* dot = wcsrchr(name, L'.');
    return dot && _wcsicmp(dot + 1, extension) == 0;
}

WideString FilePath(const WideString& folder, const WideString& name, const wchar_t* extension) {
    WideString path;
    if (name.CStr()[0] != L'\\') {
        path = folder;
        path.Append(L"\\");
    }
    path.Append(name.CStr());
    if (!HasExtension(name.CStr(), extension)) {
        path.Append(L".");
        path.Append(extension);
    }
    return path;
}

WideString Trimmed(const WideString& text) {
    const wchar_t* begin = text.CStr();
    const wchar_t* end = begin + text.Length();
    while (*begin == L' ')
        ++begin;
    while (end > begin && end[-1] == L' ')
        --end;
    WideString trimmed;
    trimmed.Assign(begin, static_cast<size_t>(end - begin));
    return trimmed;
}
