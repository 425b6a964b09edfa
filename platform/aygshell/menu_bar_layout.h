#pragma once

#include "menu_bar_content.h"

// Places the shown items of a bar `width` by `height` pixels, and the input panel button in
// `*panelButton` unless that is null. Measures texts with the font selected into `dc`. Up to two
// texts stand at the two ends, over the soft keys, and the rest between them; with more texts, or
// too little room, everything follows from the left and the panel button is at the right end.
void LayOutMenuBar(HDC dc, int width, int height, std::vector<MenuBarItem>& items,
                   RECT* panelButton);
