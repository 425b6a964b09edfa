#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// The main window's menu bar: the language library's menu, and the OK and Cancel buttons.
class MainMenuBar {
  public:
    // Where the platform makes no bar, there is none and everything else goes on.
    void Create(HWND parent);
    void Destroy();

    [[nodiscard]] HWND Window() const { return window_; }

  private:
    void TakeOutDashboardItems() const;
    void AddButtons();

    HWND window_ = nullptr;
    UniqueImageList images_;
};
