// The device exports this call without a letter for the width of its texts.
#pragma once

#pragma redefine_extname SHGetFileInfoW SHGetFileInfo
#include_next <shellapi.h>
