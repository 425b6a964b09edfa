#pragma once

#include <windows.h>

// The main menu's two commands for backups. The owner is the main window.

// Asks for a file and writes a backup to it. What goes wrong with the file is not reported; the
// message at the end says where it should be.
void ExportSettingsBackup(HWND ownerWindow);

// Asks for a backup and puts it in place of all settings; the program has then nothing more to
// edit, tells the dashboard and ends. A file that is no backup is reported, and the program goes
// on; what was read up to there stays done.
void ImportSettingsBackup(HWND ownerWindow);
