#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// Texts measured in pixels, in the font of a device context.

// Of a text on one line.
[[nodiscard]] int TextWidth(HDC dc, const WideString& text);
[[nodiscard]] int LineHeight(HDC dc);

// Measures in a font on the screen, where nothing is drawn yet.
class FontMeasure {
  public:
    // The font must outlive it.
    explicit FontMeasure(HFONT font);
    FontMeasure(const FontMeasure&) = delete;
    FontMeasure& operator=(const FontMeasure&) = delete;
    ~FontMeasure();

    [[nodiscard]] int TextWidth(const WideString& text) const;
    [[nodiscard]] int LineHeight() const;

  private:
    HDC screen_;
    HGDIOBJ previous_;
};
