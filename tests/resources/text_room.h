#pragma once

#include <windows.h>

#include <string>

// The size of a text that is wrapped to a width, in pixels.
SIZE WrappedSize(HFONT font, const std::wstring& text, LONG width);
// Expects a text wrapped to a room's width to lie within it; in pixels.
void ExpectToFit(HFONT font, const std::wstring& text, const SIZE& room);

inline BOOL WINAPI IsAny(HWND) {
    return TRUE;
}

// Expects the texts of a window's controls, or of some, to lie within them: labels, buttons, boxes,
// the entries of drop-down lists, the rows of lists, the captions of tabs.
void ExpectTextsToFit(HWND window, BOOL(WINAPI* isMeant)(HWND control) = IsAny);
