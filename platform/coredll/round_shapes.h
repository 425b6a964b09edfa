#pragma once

#include <windows.h>

// A line with round ends, in pixels; of no length, a disc.
struct Stroke {
    double x1, y1, x2, y2, radius;
};

// Fills a stroke with smooth edges. Draws nothing when there is no memory for it.
void FillStroke(HDC dc, const Stroke& stroke, COLORREF colour);
