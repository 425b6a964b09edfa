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
