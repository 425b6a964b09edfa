#pragma once

#include <windows.h>

#include <array>
#include <cstdint>

#include "shell/services/handles.h"

// Which icons an item of a kind can have at its right.
inline constexpr uint32_t kAppointmentIcons = 0x1DF;
inline constexpr uint32_t kTaskIcons = 0x17F;

inline constexpr int kSymbolSize = 12; // Units.

// The images of the icons beside an item, by their flags. Each is loaded when it is first drawn.
class SymbolImages {
  public:
    // Draws the image of one flag; nothing for what is no flag, or has no bitmap.
    void Draw(HDC dc, int x, int y, uint32_t flag);

  private:
    static constexpr size_t kFlags = 9;
    std::array<UniqueBitmap, kFlags> images_;
};
