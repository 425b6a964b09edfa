#pragma once

#include <windows.h>

// A line of text in a small window that floats beside what it explains and never takes the focus.
class ToolTip {
  public:
    ToolTip() = default;
    ToolTip(const ToolTip&) = delete;
    ToolTip& operator=(const ToolTip&) = delete;
    ~ToolTip() { Hide(); }

    // Shows the text below `anchor` (above it where the screen ends), a rectangle of the screen in
    // pixels. `owner` is the window that the tooltip stays above and goes with; the font must
    // outlive it. An earlier text goes.
    void Show(HWND owner, const RECT& anchor, const wchar_t* text, HFONT font);
    void Hide();
    [[nodiscard]] bool IsShown() const { return window_ != nullptr; }

  private:
    HWND window_ = nullptr;
};
