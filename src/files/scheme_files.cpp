#include "files/scheme_files.h"

#include <cwchar>

#include "files/file_stream.h"
#include "files/found_file.h"
#include "files/line_writer.h"
#include "files/settings_backup.h"
#include "settings/registry_tree.h"
#include "settings/settings_store.h"
#include "shell/services/handles.h"

namespace {

constexpr wchar_t kExtension[] = L".scm";

WideString SchemesFolder() {
    WideString folder(settingsStore.installFolder);
    folder.Append(L"\\Schemes");
    return folder;
}

WideString SchemePath(const wchar_t* fileName, const wchar_t* extension = L"") {
    WideString path = SchemesFolder();
    path.Append(L"\\");
    path.Append(fileName);
    path.Append(extension);
    return path;
}

const wchar_t* PathOf(SettingGroup group) {
    return KeyOfGroup(group).path;
}

} // namespace

std::vector<WideString> SchemeFileNames() {
    std::vector<WideString> names;
    WIN32_FIND_DATA found;
    const UniqueFind find(FindFirstFile(SchemePath(L"*", kExtension).CStr(), &found));
    for (bool more = static_cast<bool>(find); more; more = FindNextFile(find.Get(), &found)) {
        if (IsFileOf(found, kExtension)) names.emplace_back(found.cFileName);
    }
    return names;
}

bool SchemeExists(const wchar_t* name) {
    WIN32_FIND_DATA found;
    return static_cast<bool>(
        UniqueFind(FindFirstFile(SchemePath(name, kExtension).CStr(), &found)));
}

void WriteScheme(const wchar_t* name, const CategoryStore& categories) {
    CreateDirectory(SchemesFolder().CStr(), nullptr);
    ReplacementFile file(SchemePath(name, kExtension).CStr());
    {
        LineWriter lines(file);
        WriteRegistryKeyTree(PathOf(SettingGroup::Colours), lines);
        WriteRegistryKeyTree(PathOf(SettingGroup::Fonts), lines);
        WriteCategoriesSection(categories, lines);
    }
    file.Commit();
}

SchemeOutcome ReadScheme(const wchar_t* fileName, CategoryStore& categories) {
    FileSource file(SchemePath(fileName).CStr());
    if (!file.IsOpen()) return SchemeOutcome::CannotOpen;
    DeleteKeyTree(HKEY_CURRENT_USER, PathOf(SettingGroup::Colours));
    DeleteKeyTree(HKEY_CURRENT_USER, PathOf(SettingGroup::Fonts));
    return ReadBackup(file, categories) ? SchemeOutcome::Read : SchemeOutcome::Damaged;
}

void DeleteSchemeFile(const wchar_t* fileName) {
    DeleteFile(SchemePath(fileName).CStr());
}
