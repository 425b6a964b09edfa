#pragma once

#include "preview/time_text.h"
#include "shell/services/wide_string.h"

// The time of day as the device writes it, without seconds: see TimePicture. Empty when the
// platform cannot write it.
[[nodiscard]] WideString TimeOfDayText(VariantTime time, const wchar_t* picture);

// Today in local time, in days since 30 December 1899.
[[nodiscard]] int Today();
