#pragma once

#include <cstddef>
#include <vector>

#include "shell/services/wide_string.h"

// What stands directly below a folder: its folders, then the files of one kind, each in the order
// people look for them.
struct FolderListing {
    std::vector<WideString> names;
    size_t folderCount = 0; // So many of the names, from the first, are folders.
};

// Lists a folder (without a trailing backslash: the root is empty) with the files that have the
// extension (without its dot; null: no files). Empty when the folder cannot be read.
[[nodiscard]] FolderListing ListFolder(const WideString& folder, const wchar_t* extension);

[[nodiscard]] bool IsFolder(const wchar_t* path);

// The folder that holds one (without a trailing backslash); the root, which is empty, stays.
[[nodiscard]] WideString ParentFolder(const WideString& folder);
