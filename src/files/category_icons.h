#pragma once

#include "shell/services/handles.h"
#include "shell/services/wide_string.h"

// The icons of categories: one bitmap file each, named after the category, in the icons folder.

// The file of a category's icon, whether there is one or not. Empty for a name with characters that
// no file name can hold: such a category has no icon, and its name leads to no other folder.
[[nodiscard]] WideString CategoryIconPath(const WideString& category);

// The icon of a category; none where there is no file or it is no bitmap.
[[nodiscard]] UniqueBitmap LoadCategoryIcon(const WideString& category);

// Makes a copy of the file `source` the icon of a category, in place of one that is there, and
// gives it; makes the icons folder where it is missing. An empty source, or one that cannot be
// copied, leaves the category without an icon; its own file as the source, however spelled, changes
// nothing. Gives the icon that the category has then.
[[nodiscard]] UniqueBitmap ReplaceCategoryIcon(const WideString& category,
                                               const WideString& source);
