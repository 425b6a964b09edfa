#pragma once

#include <windows.h>

// The controls of the Category page's first two tabs, and where they stand.
namespace category_controls {

inline constexpr UINT kCategories = 1200;
inline constexpr UINT kIcon = 1201;
inline constexpr UINT kColour = 1202;
inline constexpr UINT kFilterLabel = 1203;
inline constexpr UINT kFilter = 1204;
inline constexpr UINT kRename = 1205;
inline constexpr UINT kVisible = 1206;
inline constexpr UINT kUncategorized = 1207;
inline constexpr UINT kSensitivityLabel = 1208;
inline constexpr UINT kSensitivity = 1209;
inline constexpr UINT kTickAll = 1210;
inline constexpr UINT kTickNone = 1211;
inline constexpr UINT kMembers = 1212;
inline constexpr UINT kFolder = 1213; // The first of the path row's.
inline constexpr UINT kFolderEdit = 1214;
inline constexpr UINT kFolderClear = 1215;
inline constexpr UINT kFolderBrowse = 1216;

} // namespace category_controls

// Makes the controls in a room from the page's upper left corner, in pixels, the lists without
// rows.
void CreateCategoryControls(HWND page, HFONT font, SIZE room);

// Places them in another room.
void PlaceCategoryControls(HWND page, SIZE room);
