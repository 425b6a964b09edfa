// File calls pass through to the PC's own, counted; a planned failure is left as the last error.

#include "calls.h"

namespace {

template <typename Call, typename Result>
Result Counted(StandInCalls kind, Result failed, Call call) {
    const LONG planned = CountCall(kind);
    if (planned == ERROR_SUCCESS) return call();
    SetLastError(static_cast<DWORD>(planned));
    return failed;
}

} // namespace

extern "C" {

HANDLE WINAPI CoreCreateFileW(LPCWSTR path, DWORD access, DWORD share,
                              LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                              HANDLE likeFile) {
    return Counted(kCreateFileCalls, INVALID_HANDLE_VALUE, [&] {
        return CreateFileW(path, access, share, security, disposition, flags, likeFile);
    });
}

BOOL WINAPI CoreReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD read,
                         LPOVERLAPPED overlapped) {
    return Counted(kReadFileCalls, FALSE,
                   [&] { return ReadFile(file, buffer, size, read, overlapped); });
}

BOOL WINAPI CoreWriteFile(HANDLE file, LPCVOID buffer, DWORD size, LPDWORD written,
                          LPOVERLAPPED overlapped) {
    return Counted(kWriteFileCalls, FALSE,
                   [&] { return WriteFile(file, buffer, size, written, overlapped); });
}

DWORD WINAPI CoreSetFilePointer(HANDLE file, LONG distance, PLONG distanceHigh, DWORD method) {
    return Counted(kSetFilePointerCalls, INVALID_SET_FILE_POINTER,
                   [&] { return SetFilePointer(file, distance, distanceHigh, method); });
}

BOOL WINAPI CoreDeleteFileW(LPCWSTR path) {
    return Counted(kDeleteFileCalls, FALSE, [&] { return DeleteFileW(path); });
}

BOOL WINAPI CoreMoveFileW(LPCWSTR from, LPCWSTR to) {
    return Counted(kMoveFileCalls, FALSE, [&] { return MoveFileW(from, to); });
}

BOOL WINAPI CoreCreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES security) {
    return Counted(kCreateDirectoryCalls, FALSE, [&] { return CreateDirectoryW(path, security); });
}

HANDLE WINAPI CoreFindFirstFileW(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
    return Counted(kFindFileCalls, INVALID_HANDLE_VALUE,
                   [&] { return FindFirstFileW(pattern, found); });
}

BOOL WINAPI CoreFindNextFileW(HANDLE find, LPWIN32_FIND_DATAW found) {
    return Counted(kFindFileCalls, FALSE, [&] { return FindNextFileW(find, found); });
}

} // extern "C"
