// The input panel: a plain area that stands for the device's on-screen keyboard. A PC has keys, so
// it takes no input, but windows learn of it and make room as they do on the device.
#pragma once

#include <windows.h>

[[nodiscard]] bool IsInputPanelRaised();

// What is left of the work area above the panel if that is raised, or else above a menu bar if
// `menuBar` says there is one.
[[nodiscard]] RECT AreaAbovePanel(bool menuBar);
