#pragma once

#include "preview/item_sample.h"
#include "ui/button_strip.h"

// The appointment display format: two arrows, the number with what it means, and a sample. The
// arrows are painted on the page and tapped there; for keys the text is the stop of the focus,
// where Left and Right step the number and Enter steps it up. A step is stored at once.
class DisplayFormat final : private ButtonStrip {
  public:
    DisplayFormat();

    // Makes the text's control, hidden and at no place yet. The object must outlive it; it is the
    // page's.
    void Create(HWND page, HFONT font, UINT id);

    // `top` is in pixels of the page, as is what follows.
    void Place(HWND page, int top);

    // The arrows and the sample, as wide as the page.
    void Paint(HDC dc, int width);
    // What the sample shows has changed.
    void RedrawSample() const;

    // A tap on the page: a tap on an arrow steps.
    void OnTap(int x, int y);

  private:
    [[nodiscard]] int ButtonCount() const override;
    [[nodiscard]] bool IsOffered(int button) const override;
    [[nodiscard]] WideString NameOf(int button) const override;
    void DrawButton(HDC dc, int button, const RECT& place, bool hasFocus) override;
    [[nodiscard]] bool TakesTaps() const override;
    void Press(int button) override;
    bool Step(bool forward) override;

    [[nodiscard]] int SampleTop() const;

    ItemSample sample_;
    HWND page_ = nullptr;
    int top_ = 0;
    int textHeight_ = 0; // Pixels.
};
