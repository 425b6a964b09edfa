#pragma once

#include <windows.h>

#include <cstdint>

// The icons beside an item, each known by a flag; their pictures are those of the icon set.

// Which icons an item of a kind can have at its right.
inline constexpr uint32_t kAppointmentIcons = 0x1DF;
inline constexpr uint32_t kTaskIcons = 0x17F;

inline constexpr int kItemIconSize = 12; // Units.

// Each draws the icon of one flag, in its size: with its upper left corner at a place, or in the
// middle of one. Nothing for what is no flag, or has no picture.
void DrawItemIcon(HDC dc, int x, int y, uint32_t flag);
void DrawItemIconIn(HDC dc, const RECT& place, uint32_t flag);
