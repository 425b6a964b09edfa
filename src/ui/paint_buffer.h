#pragma once

#include <windows.h>

#include "shell/services/handles.h"

// A bitmap off the screen to draw into, copied to where it belongs in one go, so that nothing
// flickers. It starts out white.
class PaintBuffer {
  public:
    // Of the size of `place`, a rectangle of `target` in pixels. `target` must outlive it.
    PaintBuffer(HDC target, const RECT& place);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    // Copies what was drawn.
    ~PaintBuffer();

    // Its own origin is the upper left corner of the place. Null when the platform has no room.
    [[nodiscard]] HDC Dc() const { return dc_.Get(); }

  private:
    HDC target_;
    RECT place_;
    UniqueBitmap bitmap_;
    UniqueDc dc_;
    HGDIOBJ previous_;
};
