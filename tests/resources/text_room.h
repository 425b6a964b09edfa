#pragma once

#include <windows.h>

#include <set>
#include <string>

// What does not fit, each once, with the room that it has; in pixels.
using Misfits = std::set<std::string>;

// The size of a text that is wrapped to a width.
SIZE WrappedSize(HFONT font, const std::wstring& text, LONG width);
// Whether a text wrapped to a room's width lies within it.
void CheckText(HFONT font, const std::wstring& text, const SIZE& room, Misfits& misfits);

// Whether the texts of the controls that a window shows lie within them: labels, buttons, boxes,
// the entries of drop-down lists, the rows of lists, the captions of tabs.
void CheckControls(HWND window, Misfits& misfits);
