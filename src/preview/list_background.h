#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// The picture that the dashboard's list stands on: that of the Today screen. It is loaded once,
// when it is first asked for.
class ListBackground {
  public:
    // Belongs to this object; null on a device that has no such picture.
    [[nodiscard]] HBITMAP Get();

  private:
    UniqueBitmap picture_;
    bool loaded_ = false;
};
