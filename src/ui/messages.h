#pragma once

#include <windows.h>

// Message boxes with texts of the language library, by their ids.

// With an OK button.
void ShowMessage(HWND owner, UINT textId, UINT captionId);

// With Yes and No; true for Yes alone.
[[nodiscard]] bool AskYesNo(HWND owner, UINT textId, UINT captionId);
