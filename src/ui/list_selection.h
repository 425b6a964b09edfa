#pragma once

#include <windows.h>

// Keeps the selected row of a list view visible while another control has the focus: the device
// draws it in the colour of buttons, which is that of the page. Gives the answer to a notification
// when it is a list view's custom draw, else 0; part of what every window with lists answers.
[[nodiscard]] LRESULT DrawListSelection(const NMHDR& header);
