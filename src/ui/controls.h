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

// The same, not shown yet.
HWND CreateHiddenControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style,
                         UINT id, const ControlPlace& place, HFONT font);

[[nodiscard]] SIZE ClientSize(HWND window);

// Moves a control; null is passed over.
void PlaceControl(HWND control, const ControlPlace& place);

// Makes a control hidden at its place, or moves the one that has the id already.
void PutControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                const ControlPlace& place, HFONT font);

// A window's control; null when it has none of the id.
[[nodiscard]] inline HWND Item(HWND parent, UINT id) {
    return GetDlgItem(parent, static_cast<int>(id));
}

// Whether the keys stop at a control.
void SetTabStop(HWND control, bool isStop);

// A control's whole text.
[[nodiscard]] WideString ControlText(HWND control);

// At most `limit` characters of a control's text.
[[nodiscard]] WideString ControlText(HWND control, int limit);

[[nodiscard]] bool IsBoxChecked(HWND parent, UINT id);

// The selected index of a combo box, −1 for none.
[[nodiscard]] int SelectedIndex(HWND parent, UINT id);

// Selects an entry; an index out of range selects none.
void SelectIndex(HWND combo, uint32_t index);

// Adds an entry at the end of a combo box, with a number as its data.
void AddEntry(HWND combo, const wchar_t* text, uint32_t data = 0);

// Adds a number, written by a format, which is its entry's data too.
void AddNumberEntry(HWND combo, uint32_t number, const wchar_t* format = L"%u");

// The data of the selected entry, 0xFFFFFFFF where none is selected.
[[nodiscard]] uint32_t SelectedData(HWND combo);
// Selects the first entry with this data; where there is none, the selection stays and the answer
// is false.
bool SelectData(HWND combo, uint32_t data);

// Each of the following acts on every control that exists with an id in [firstId, lastId].
void EnableControlRange(HWND parent, UINT firstId, UINT lastId, bool enabled);
void ShowControlRange(HWND parent, UINT firstId, UINT lastId, int showCommand);
