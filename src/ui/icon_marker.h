#pragma once

#include <windows.h>

#include "ui/controls.h"

// A small framed window that shows which icon is chosen. Taps on it are its parent's.
class IconMarker {
  public:
    // Makes the window, at no place yet; false when the platform refuses. It goes with its parent.
    bool Create(HWND parent);
    // In pixels of the parent.
    void Place(const ControlPlace& place) const;
    // The number of a bitmap of the display library; 0 shows an empty frame.
    void Show(UINT bitmap) const;

  private:
    HWND window_ = nullptr;
};
