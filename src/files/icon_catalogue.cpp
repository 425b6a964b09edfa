#include "files/icon_catalogue.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>

#include "files/found_file.h"
#include "settings/registry_values.h"
#include "settings/settings_store.h"
#include "shell/services/handles.h"
#include "shell/services/text_order.h"

IconCatalogue iconCatalogue;

namespace {

constexpr wchar_t kIconSetKey[] = L"Software\\Teskel\\Orvane\\IconSet";
constexpr const wchar_t* kInstallPaths[] = {L"InstallPath24", L"InstallPath18", L"InstallPath12",
                                            L"InstallPathBlank"};
// What registers icon sets writes at most 512 bytes, the terminator among them.
constexpr size_t kInstallPathLimit = 512 / sizeof(wchar_t) - 1;
constexpr wchar_t kExtension[] = L".bmp";

// What a path names, without folder and extension.
WideString NameOf(const WideString& path) {
    const wchar_t* backslash = wcsrchr(path.CStr(), L'\\');
    const wchar_t* file = backslash ? backslash + 1 : path.CStr();
    const wchar_t* extension = wcsrchr(file, L'.');
    WideString name;
    name.Assign(file, extension ? static_cast<size_t>(extension - file) : wcslen(file));
    return name;
}

WideString OwnFolder() {
    WideString folder(settingsStore.ProgramFiles.value);
    folder.Append(L"\\Teskel\\Orvane\\Icons\\");
    return folder;
}

} // namespace

void IconCatalogue::BuildIconCatalogue() {
    const WideString& additional = settingsStore.AdditionalIconsFolder.value;
    if (isBuilt_ && additionalFolder_ == additional) return;
    const HCURSOR previous = SetCursor(LoadCursor(nullptr, IDC_WAIT));
    icons_.clear();
    folders_.clear();
    AddIconFolder(OwnFolder());
    if (!additional.IsEmpty()) AddIconFolder(additional);
    const UniqueKey key(OpenExistingKey(HKEY_CURRENT_USER, kIconSetKey));
    for (const wchar_t* value : kInstallPaths) {
        WideString folder;
        if (ReadText(key.Get(), value, folder) && !folder.IsEmpty() &&
            folder.Length() <= kInstallPathLimit)
            AddIconFolder(folder);
    }
    isBuilt_ = true;
    additionalFolder_ = additional;
    SetCursor(previous);
}

void IconCatalogue::AddIconFolder(const WideString& folder) {
    WideString base(folder);
    if (base.IsEmpty() || base.CStr()[base.Length() - 1] != L'\\') base.Append(L"\\");
    WideString pattern(base);
    pattern.Append(L"*");
    pattern.Append(kExtension);
    const size_t known = icons_.size();
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(pattern.CStr(), &found));
    for (bool more = static_cast<bool>(find); more; more = FindNextFile(find.Get(), &found)) {
        if (IsFileOf(found, kExtension))
            icons_.push_back({NameOf(found.cFileName), folders_.size()});
    }
    folders_.push_back(std::move(base));
    // Sorted as a whole, not insertion by insertion: thousands of icons must not take minutes.
    const auto isBefore = [](const Icon& left, const Icon& right) {
        return TextOrder()(left.name, right.name);
    };
    const auto middle = icons_.begin() + static_cast<ptrdiff_t>(known);
    std::stable_sort(middle, icons_.end(), isBefore);
    std::inplace_merge(icons_.begin(), middle, icons_.end(), isBefore);
}

WideString IconCatalogue::Path(size_t index) const {
    WideString path(folders_[icons_[index].folder]);
    path.Append(icons_[index].name.CStr());
    path.Append(kExtension);
    return path;
}

std::optional<size_t> IconCatalogue::Find(const WideString& path) const {
    const WideString name = NameOf(path);
    for (size_t index = 0; index < icons_.size(); ++index) {
        // Paths are put together for the few icons of the name alone.
        if (_wcsicmp(icons_[index].name.CStr(), name.CStr()) == 0 &&
            _wcsicmp(Path(index).CStr(), path.CStr()) == 0)
            return index;
    }
    return std::nullopt;
}
