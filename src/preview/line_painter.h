#pragma once

#include <windows.h>

#include "preview/item_layout.h"
#include "preview/text_style.h"
#include "shell/services/wide_string.h"

// Draws the parts of one line of an item, in the font of the device context. Icons and rectangle
// stand at the middle of the text's height. All places are pixels.
class LinePainter {
  public:
    // The style must outlive the painter.
    LinePainter(HDC dc, const TextStyle& style, int top);

    // A text that is too long ends in an ellipsis.
    void Text(const WideString& text, int left, int right) const;
    void LeadingRect(int left, COLORREF colour) const;
    void LeftIconRow(int left, const LeftIcons& icons) const;
    // The lowest flag stands at the right edge.
    void RightIconRow(int right, uint32_t icons) const;

  private:
    void Letters(const WideString& text, RECT box, COLORREF colour) const;
    [[nodiscard]] int MiddleFor(int size) const { return top_ + (height_ - size) / 2; }

    HDC dc_;
    const TextStyle& style_;
    int top_;
    int height_;
};
