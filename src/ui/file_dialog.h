#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// What a file dialog says and proposes; every text is ready to show and none is null.
struct FileDialogText {
    const wchar_t* title;       // In the navigation bar.
    const wchar_t* description; // Of the kind of files: "Text file (txt)".
    const wchar_t* extension;   // Of these files, without its dot; not empty.
    const wchar_t* name;        // Stands in the name box at first; may be empty.
};

// Let the user choose a file on a full-screen window: its folder by walking through them, its name
// by typing or from a list of the files with the extension. Both start in the folder that
// was shown when a file was last chosen, at first "\My Documents" or else the root.
//
// `path` receives the folder, the name and, unless the name has it, the extension. A name may hold
// folders of its own, parted by backslashes. False, with `path` untouched, when the user cancels.

// Asks before it gives a file that exists. Nothing is written here, and the folders in the name may
// not exist.
[[nodiscard]] bool SelectFileToSave(HWND owner, const FileDialogText& text, WideString& path);

// Gives a name as it is typed, whether such a file exists or not.
[[nodiscard]] bool SelectFileToOpen(HWND owner, const FileDialogText& text, WideString& path);
