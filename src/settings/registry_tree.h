#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// The name of a key's subkey by number. ERROR_NO_MORE_ITEMS behind the last one, another error when
// the platform cannot tell.
[[nodiscard]] LSTATUS SubkeyName(HKEY key, DWORD index, WideString& name);

// Deletes a key with everything in it and below it, also where the platform refuses to delete a key
// that has subkeys or is open elsewhere: such a key stays, but empty. False when something of it
// stays. A key that was not there counts as deleted.
bool DeleteKeyTree(HKEY parent, const wchar_t* path);

// Deletes the key's subkeys, each with everything below it, but those whose name is exactly
// `keptName`, where one is given. A key that cannot be deleted is passed over.
void DeleteSubkeys(HKEY key, const wchar_t* keptName = nullptr);
