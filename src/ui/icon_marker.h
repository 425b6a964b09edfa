#pragma once

#include <windows.h>

#include <cstdint>

#include "ui/controls.h"

// A small window that shows which icon is chosen. Taps on it are its parent's.
class IconMarker {
  public:
    IconMarker() = default;
    IconMarker(const IconMarker&) = delete;
    IconMarker& operator=(const IconMarker&) = delete;
    ~IconMarker();

    // Makes the window, at no place yet; false when the platform refuses. It goes with its parent.
    bool Create(HWND parent);
    // In pixels of the parent.
    void Place(const ControlPlace& place) const;
    // An icon's flag; what is none shows nothing.
    void Show(uint32_t flag);

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();

    HWND window_ = nullptr;
    uint32_t flag_ = 0;
};
