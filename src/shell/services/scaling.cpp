#include "shell/services/scaling.h"

#include <windows.h>

namespace {

struct DisplayScaling {
    bool initialised = false;
    ScalingRule horizontal;
    ScalingRule vertical;
};

DisplayScaling displayScaling;

} // namespace

void SetVgaMode(bool doubleSize) {
    if (displayScaling.initialised) return;
    HDC screen = GetDC(nullptr);
    displayScaling = {.initialised = true,
                      .horizontal = {doubleSize, GetDeviceCaps(screen, LOGPIXELSX)},
                      .vertical = {doubleSize, GetDeviceCaps(screen, LOGPIXELSY)}};
    ReleaseDC(nullptr, screen);
}

int Scale(int value, bool onlyAboveThreshold) {
    return ScaleBy(displayScaling.horizontal, value, onlyAboveThreshold);
}

int ScaleY(int value, bool onlyAboveThreshold) {
    return ScaleBy(displayScaling.vertical, value, onlyAboveThreshold);
}
