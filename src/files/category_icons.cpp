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

} // namespace

WideString CategoryIconPath(const WideString& category) {
    if (!CanNameFile(category)) return WideString();
    WideString path(settingsStore.OVIconsFolder.value);
    path.Append(L"\\");
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
    if (_wcsicmp(path.CStr(), source.CStr()) != 0) {
        // A copy from a medium that is only read is read-only itself and could not be deleted.
        SetFileAttributes(path.CStr(), FILE_ATTRIBUTE_NORMAL);
        DeleteFile(path.CStr());
        if (source.IsEmpty() || !CopyFile(source.CStr(), path.CStr(), FALSE)) return UniqueBitmap();
    }
    return LoadCategoryIcon(category);
}
