#include "files/category_icons.h"

#include <windows.h>

#include <cwchar>

#include "settings/settings_store.h"

namespace {

bool CanNameFile(const WideString& name) {
    for (const wchar_t* character = name.CStr(); *character; ++character) {
        if (*character < L' ' || wcschr(L"\\/:*?\"<>|", *character)) return false;
    }
    return !name.IsEmpty();
}

bool EndsInBackslash(const WideString& folder) {
    return !folder.IsEmpty() && folder.CStr()[folder.Length() - 1] == L'\\';
}

bool Exists(const WideString& path) {
    return GetFileAttributes(path.CStr()) != INVALID_FILE_ATTRIBUTES;
}

void Delete(const WideString& path) {
    // A copy from a medium that is only read is read-only itself and could not be deleted.
    SetFileAttributes(path.CStr(), FILE_ATTRIBUTE_NORMAL);
    DeleteFile(path.CStr());
}

WideString Beside(const WideString& path, const wchar_t* ending) {
    WideString beside(path);
    beside.Append(ending);
    return beside;
}

// Deletes the icon file `path` unless `source` is a file and the same one. One file has many
// spellings; that it goes with another's name tells.
void DeleteUnlessSame(const WideString& path, const WideString& source) {
    if (!Exists(source)) {
        Delete(path);
        return;
    }
    const WideString aside = Beside(path, L".old");
    Delete(aside);
    if (!MoveFile(path.CStr(), aside.CStr())) return;
    if (Exists(source))
        Delete(aside);
    else
        MoveFile(aside.CStr(), path.CStr());
}

// The copy is there before the old file goes: the source may be the old file, spelled otherwise.
void ReplaceByCopy(const WideString& path, const WideString& source) {
    WideString folder;
    folder.Assign(path.CStr(), path.View().rfind(L'\\'));
    CreateDirectory(folder.CStr(), nullptr);
    const WideString copy = Beside(path, L".new");
    Delete(copy);
    if (!CopyFile(source.CStr(), copy.CStr(), FALSE)) {
        Delete(copy);
        DeleteUnlessSame(path, source);
        return;
    }
    Delete(path);
    // Where the copy is the only one left it stays.
    if (!MoveFile(copy.CStr(), path.CStr()) && Exists(source)) Delete(copy);
}

} // namespace

WideString CategoryIconPath(const WideString& category) {
    if (!CanNameFile(category)) return WideString();
    WideString path(settingsStore.OVIconsFolder.value);
    if (!EndsInBackslash(path)) path.Append(L"\\");
    path.Append(category.CStr());
    path.Append(L".bmp");
    return path;
}

UniqueBitmap LoadCategoryIcon(const WideString& category) {
    const WideString path = CategoryIconPath(category);
    return UniqueBitmap(path.IsEmpty() ? nullptr : SHLoadDIBitmap(path.CStr()));
}

UniqueBitmap ReplaceCategoryIcon(const WideString& category, const WideString& source) {
    const WideString path = CategoryIconPath(category);
    if (path.IsEmpty()) return UniqueBitmap();
    if (source.IsEmpty())
        Delete(path);
    else if (_wcsicmp(path.CStr(), source.CStr()) != 0)
        ReplaceByCopy(path, source);
    return LoadCategoryIcon(category);
}
