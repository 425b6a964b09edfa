#pragma once

#include <windows.h>

#include "preview/item_renderer.h"
#include "settings/settings_store.h"

// A live sample of an item on a settings page: a band as wide as the page, drawn off the screen and
// copied to the page at once, so that it does not flicker. A page keeps one as a member and paints
// it from OnPaint; it shows the settings as they are at that moment.
class ItemSample {
  public:
    static constexpr int kHeight = 42; // Units: ScaleY(kHeight) is what the page leaves free.

    // The store must outlive the sample.
    explicit ItemSample(const SettingsStore& store) : store_(store), renderer_(store) {}

    // Paint the band from x 0 to `width` at y `top` (pixels) of a page; nothing when there is no
    // room or no memory for it.
    // An appointment of today from 12:00 to 15:00.
    void PaintAppointment(HDC page, int top, int width, const WideString& subject,
                          const WideString& location);
    // A task without a date, with the icons of the Tasks tab.
    void PaintTask(HDC page, int top, int width, const WideString& subject);

    // A setting changed: has the page paint the band at y `top` at once.
    static void Redraw(HWND page, int top);

  private:
    const SettingsStore& store_;
    ItemRenderer renderer_;
};
