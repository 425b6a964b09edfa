#pragma once

#include "shell/services/wide_string.h"

// Names of files as people type them.

enum class FileNameFault { None, Missing, IllegalCharacter };

// Whether a typed name can name a file. A backslash is allowed, as names may hold folders, but
// nothing after the last one is no name.
[[nodiscard]] FileNameFault CheckFileName(const WideString& name);

// Whether a file name ends in a dot and the extension, in capitals or not. The extension has no dot
// of its own.
[[nodiscard]] bool HasExtension(const wchar_t* name, const wchar_t* extension);

// The path of a typed name: one that begins with a backslash starts at the root, any other in
// `folder` (without a trailing backslash: the root is empty). The extension is added to a name that
// does not have it.
[[nodiscard]] WideString FilePath(const WideString& folder, const WideString& name,
                                  const wchar_t* extension);

// A text without the blanks before and after it.
[[nodiscard]] WideString Trimmed(const WideString& text);
