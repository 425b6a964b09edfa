#pragma once

#include "shell/services/handles.h"

// Where a font holder learns what a font looks like: the LOGFONT of one of the program's
// configurable fonts, by its id.
using FontCatalogue = LOGFONT (*)(int fontId);
void SetFontCatalogue(FontCatalogue catalogue);

// One of the program's configurable fonts, created when it is first asked for.
class FontHolder {
  public:
    void Init(int fontId);
    // The font, which the holder keeps; null when the platform cannot make it or no catalogue is
    // set.
    [[nodiscard]] HFONT Get();
    void Release();

  private:
    UniqueFont font_;
    int fontId_ = 0;
};
