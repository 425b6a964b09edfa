#pragma once

#include <windows.h>

#include "preview/item_layout.h"
#include "preview/list_background.h"
#include "preview/text_style.h"
#include "preview/time_text.h"
#include "settings/settings_store.h"
#include "shell/services/wide_string.h"

// An item as the dashboard lists it.
struct PreviewItem {
    WideString subject;
    WideString location;
    WideString label; // Precedes the subject.
    bool allDay = false;
    VariantTime start = 0;
    VariantTime end = 0;
};

// The date of a task that has none.
inline constexpr VariantTime kNoDate = 949998.0;

enum class DrawingPass { Measure, Draw };

// Draws lines as the dashboard's list does, by the settings of a store as they are at each call.
// Every item takes two passes with the same arguments: one that only measures, one that draws.
class ItemRenderer {
  public:
    // The store must outlive the renderer.
    explicit ItemRenderer(const SettingsStore& store) : store_(store) {}

    // Both draw from `place`'s top and between its sides (pixels), and give the item's height in
    // pixels, which includes the distance to the next.
    // An appointment's label and second text are worked out from its times for `day` (days since 30
    // December 1899), the day on which it is being shown.
    int Appointment(DrawingPass pass, HDC dc, const RECT& place, const PreviewItem& item, int day);
    // The icons come from the caller: two single flags and a sum of flags.
    int Task(DrawingPass pass, HDC dc, const RECT& place, const PreviewItem& item,
             const LeftIcons& leftIcons, uint32_t rightIcons);

    // The picture that the dashboard's list stands on; the renderer keeps it.
    [[nodiscard]] HBITMAP Background() { return background_.Get(); }

  private:
    int TimeColumnFor(const ColumnSettings& columns, const LOGFONT& font);

    const SettingsStore& store_;
    ListBackground background_;
    CachedFont font_;
    // The time column's width in pixels, -1 until it is known, and what it was worked out from.
    int timeColumn_ = -1;
    ColumnSettings timeColumnSettings_;
    LOGFONT timeColumnFont_{};
};
