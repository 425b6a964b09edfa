#include "shell/backup_commands.h"

#include <iterator>

#include "files/category_store.h"
#include "files/file_stream.h"
#include "files/settings_backup.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "ui/file_dialog.h"
#include "ui/messages.h"

namespace {
constexpr wchar_t kDescription[] = L"OV Settings Backup (ovsb)";
constexpr wchar_t kExtension[] = L"ovsb";

WideString BackupNameOfToday() {
    wchar_t date[32] = L"";
    GetDateFormat(LOCALE_USER_DEFAULT, 0, nullptr, L"yyyy_MM_dd", date, std::size(date));
    WideString name(L"OV_Backup_");
    name.Append(date);
    return name;
}

void ShowExported(HWND owner, const WideString& path) {
    WideString text = LanguageText(IDS_BACKUP_EXPORTED);
    text.Append(L" \"");
    text.Append(path.CStr());
    text.Append(L"\"");
    MessageBox(owner, text.CStr(), LanguageText(IDS_BACKUP_EXPORTED_CAPTION).CStr(), MB_OK);
}

void WriteBackupFile(const WideString& path) {
    ReplacementFile file(path.CStr());
    WriteBackup(categoryStore, file);
    file.Commit();
}

bool ReadBackupFile(const WideString& path) {
    FileSource file(path.CStr());
    return file.IsOpen() && ReadBackup(file, categoryStore);
}

// The categories are newer than what the registry and the filter file hold of them.
void AdoptImportedSettings() {
    settingsStore.Load(application.languageLibrary);
    categoryStore.ResolveSelections();
    categoryStore.SaveCategoryRegistry();
    categoryStore.SaveFilterFile();
}
} // namespace

void ExportSettingsBackup(HWND ownerWindow) {
    const WideString name = BackupNameOfToday();
    const FileDialogText text{L"Export OV Settings", kDescription, kExtension, name.CStr()};
    WideString path;
    if (!SelectFileToSave(ownerWindow, text, path)) return;
    WriteBackupFile(path);
    ShowExported(ownerWindow, path);
}

void ImportSettingsBackup(HWND ownerWindow) {
    const FileDialogText text{L"Import OV Settings", kDescription, kExtension, L""};
    WideString path;
    if (!SelectFileToOpen(ownerWindow, text, path)) return;
    if (!ReadBackupFile(path)) {
        ShowMessage(ownerWindow, IDS_BACKUP_NOT_IMPORTED, IDS_BACKUP_NOT_IMPORTED_CAPTION);
        return;
    }
    AdoptImportedSettings();
    ShowMessage(ownerWindow, IDS_BACKUP_IMPORTED, IDS_BACKUP_IMPORTED_CAPTION);
    PostMessage(HWND_BROADCAST, application.settingsChangedMessage, 0, 0);
    DestroyWindow(ownerWindow);
}
