#pragma once

#include <array>
#include <cstdint>

// Where the parts of an item's line stand. Distances between them are units that `ScaleUnits` turns
// into pixels; places and the widths of texts are pixels.
using ScaleUnits = int (*)(int units);

using LeftIcons = std::array<uint32_t, 2>; // Icon flags; 0 for none.

// What the columns depend on, besides the font.
struct ColumnSettings {
    uint32_t format = 0; // A display format, 1 to 12.
    LeftIcons appointmentIcons{};
    LeftIcons taskIcons{};
    bool indentItems = false;
    bool leadingRects = false;

    bool operator==(const ColumnSettings&) const = default;
};

// The widest text that a format's time column must hold; null for formats without the column.
[[nodiscard]] const wchar_t* WidestTimeText(uint32_t format);

// The column of left icons, in units: wide enough for either kind of item, so that both line up in
// one list, and with the indentation of items.
[[nodiscard]] int LeftIconColumn(const ColumnSettings& settings);

// The time column, in pixels, with all that stands left of the times. `widestText` is the width of
// the widest time text.
[[nodiscard]] int TimeColumn(const ColumnSettings& settings, int widestText, ScaleUnits scale);

struct LineLayout {
    int leadingRect = 0; // Left edges.
    int leftIcons = 0;
    int label = 0;
    int subject = 0;
    int subjectEnd = 0; // Right edge; beyond the right icons on a line that is too narrow for both.
};

struct LineSpace {
    int left = 0;
    int right = 0;
    int rightIcons = 0; // How many.
};

// `timeColumn` as above; `labelWidth` is the width of the item's own time label, which counts where
// it has no column.
[[nodiscard]] LineLayout LayOutAppointment(const LineSpace& space, const ColumnSettings& settings,
                                           int timeColumn, int labelWidth, ScaleUnits scale);

// A task's line has no columns: each part begins where the one before it ends.
[[nodiscard]] LineLayout LayOutTask(const LineSpace& space, bool indentItems,
                                    const LeftIcons& icons, int labelWidth, ScaleUnits scale);

// The left edge of a left icon, and of a right icon, counted from the right edge inward.
[[nodiscard]] int LeftIconPlace(int leftIcons, int number, ScaleUnits scale);
[[nodiscard]] int RightIconPlace(int right, int number, ScaleUnits scale);

[[nodiscard]] int CountIcons(const LeftIcons& icons);
