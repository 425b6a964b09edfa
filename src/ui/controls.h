#pragma once

#include <windows.h>

#include <cstdint>

#include "shell/services/wide_string.h"

// What every control of the program is made with.

// Where a control stands on its window, in pixels.
struct ControlPlace {
    int x;
    int y;
    int width;
    int height;
};

// A visible child control in the given font; null when the platform refuses.
HWND CreateControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                   const ControlPlace& place, HFONT font);

// A control's whole text.
[[nodiscard]] WideString ControlText(HWND control);

// At most `limit` characters of a control's text.
[[nodiscard]] WideString ControlText(HWND control, int limit);

[[nodiscard]] bool IsBoxChecked(HWND parent, UINT id);

// The selected index of a combo box, −1 for none.
[[nodiscard]] int SelectedIndex(HWND parent, UINT id);

// Selects an entry; an index out of range selects none.
void SelectIndex(HWND combo, uint32_t index);

// Each of the following acts on every control that exists with an id in [firstId, lastId].
void EnableControlRange(HWND parent, UINT firstId, UINT lastId, bool enabled);
void ShowControlRange(HWND parent, UINT firstId, UINT lastId, int showCommand);
