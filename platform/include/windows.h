// The device's <windows.h>: what the platform declares there and a PC's header lacks.
#pragma once

#include_next <windows.h>

#include "ce_core.h"
