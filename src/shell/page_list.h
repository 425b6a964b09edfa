#pragma once

#include <windows.h>

#include "shell/services/handles.h"
#include "shell/services/wide_string.h"

// The grid of the twelve pages that fills the main window.
class PageList {
  public:
    // Builds the list over the parent's client area and gives it the focus. Texts and images come
    // from the application's libraries; without them they are missing.
    void Create(HWND parent);
    void Destroy();
    // Fills the parent's client area again when its size has changed.
    void Place();

    [[nodiscard]] HWND Window() const { return window_; }
    // The row that a notification of the list activates, −1 for every other notification.
    [[nodiscard]] int ActivatedRow(const NMHDR& header) const;
    [[nodiscard]] WideString Caption(int row) const;

  private:
    void AddRows();
    void SpaceIcons() const;

    HWND window_ = nullptr;
    UniqueImageList images_;
    SIZE placedFor_{}; // The parent's client area that the list fills.
};
