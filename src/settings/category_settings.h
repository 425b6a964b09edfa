#pragma once

// Every value of the Categories key that belongs to the store.
// clang-format off
#define CATEGORY_SETTINGS(Text)             \
    Text(AdditionalIconsFolder, L"", Saved)
// clang-format on
