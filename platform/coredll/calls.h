#pragma once

#include <stand_in.h>

// Counts one call of the kind given. Answers the error that it is to fail with, or ERROR_SUCCESS.
[[nodiscard]] LONG CountCall(StandInCalls kind);
