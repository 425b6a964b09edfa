#pragma once

#include <windows.h>

// The upper band of a page's tab that lists things to give a colour or a font: what shows the
// selected one, with a button beside the swatch, and the list below.

// Where things are drawn in the band, in pixels of the page.
class SampleBand {
  public:
    explicit SampleBand(HWND page);

    // One line over the page's whole width.
    [[nodiscard]] RECT Header() const;
    // Between the header and the swatch.
    [[nodiscard]] RECT Sample() const;
    // Up to three lines, down to the swatch.
    [[nodiscard]] RECT Description() const;
    // The row of the swatch, over the page's whole width.
    [[nodiscard]] RECT Swatch() const;

  private:
    int width_;
};

// Each makes its control, or moves it when it is there already.

// The list, whose column is to be fitted once it is filled; `roomBelow` units stay free between it
// and the tab strip.
void PlaceSampleList(HWND page, UINT id, HFONT font, int roomBelow = 0);
// The button beside the swatch.
void PlaceSampleButton(HWND page, UINT id, const wchar_t* text, HFONT font);

void RedrawSampleBand(HWND page);

// Redraws the band when a notification tells of another selection in the list: at once when a row
// became selected.
void RedrawOnSelection(HWND page, UINT listId, const NMHDR& header);
