// Where the device's declarations differ from those of the toolchain's headers.
#pragma once

// The device's record of a file has neither the second reserved word nor a short name.
typedef struct {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwOID; // The file's id in the object store.
    WCHAR cFileName[MAX_PATH];
} DEVICE_FIND_DATA;

#undef WIN32_FIND_DATA
#define WIN32_FIND_DATA DEVICE_FIND_DATA
#define WIN32_FIND_DATAW DEVICE_FIND_DATA

#ifdef __cplusplus
// Besides the toolchain's declarations, which no record of the device fits.
HANDLE WINAPI FindFirstFileW(LPCWSTR pattern, DEVICE_FIND_DATA* found) __asm__("FindFirstFileW");
BOOL WINAPI FindNextFileW(HANDLE search, DEVICE_FIND_DATA* found) __asm__("FindNextFileW");
#endif

// Not a call there: a fixed handle stands for the process that uses it.
#undef GetCurrentProcess
#define GetCurrentProcess() ((HANDLE)0x42)

// The number of a system colour carries a mark, so that it is not taken for a handle.
#define SYS_COLOR_INDEX_FLAG 0x40000000
#undef COLOR_SCROLLBAR
#undef COLOR_BACKGROUND
#undef COLOR_ACTIVECAPTION
#undef COLOR_INACTIVECAPTION
#undef COLOR_MENU
#undef COLOR_WINDOW
#undef COLOR_WINDOWFRAME
#undef COLOR_MENUTEXT
#undef COLOR_WINDOWTEXT
#undef COLOR_CAPTIONTEXT
#undef COLOR_ACTIVEBORDER
#undef COLOR_INACTIVEBORDER
#undef COLOR_APPWORKSPACE
#undef COLOR_HIGHLIGHT
#undef COLOR_HIGHLIGHTTEXT
#undef COLOR_BTNFACE
#undef COLOR_BTNSHADOW
#undef COLOR_GRAYTEXT
#undef COLOR_BTNTEXT
#undef COLOR_INACTIVECAPTIONTEXT
#undef COLOR_BTNHIGHLIGHT
#undef COLOR_3DDKSHADOW
#undef COLOR_3DLIGHT
#undef COLOR_INFOTEXT
#undef COLOR_INFOBK
#define COLOR_SCROLLBAR (0 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BACKGROUND (1 | SYS_COLOR_INDEX_FLAG)
#define COLOR_ACTIVECAPTION (2 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVECAPTION (3 | SYS_COLOR_INDEX_FLAG)
#define COLOR_MENU (4 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOW (5 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOWFRAME (6 | SYS_COLOR_INDEX_FLAG)
#define COLOR_MENUTEXT (7 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOWTEXT (8 | SYS_COLOR_INDEX_FLAG)
#define COLOR_CAPTIONTEXT (9 | SYS_COLOR_INDEX_FLAG)
#define COLOR_ACTIVEBORDER (10 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVEBORDER (11 | SYS_COLOR_INDEX_FLAG)
#define COLOR_APPWORKSPACE (12 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHT (13 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHTTEXT (14 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNFACE (15 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNSHADOW (16 | SYS_COLOR_INDEX_FLAG)
#define COLOR_GRAYTEXT (17 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNTEXT (18 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVECAPTIONTEXT (19 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNHIGHLIGHT (20 | SYS_COLOR_INDEX_FLAG)
#define COLOR_3DDKSHADOW (21 | SYS_COLOR_INDEX_FLAG)
#define COLOR_3DLIGHT (22 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INFOTEXT (23 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INFOBK (24 | SYS_COLOR_INDEX_FLAG)
