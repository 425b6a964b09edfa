#include "file_bytes.h"

namespace {

std::optional<std::vector<std::uint8_t>> ReadAll(HANDLE file, std::size_t limit) {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file, &size)) return {};
    if (static_cast<ULONGLONG>(size.QuadPart) > limit) {
        SetLastError(ERROR_FILE_TOO_LARGE);
        return {};
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    if (!ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) return {};
    bytes.resize(read);
    return bytes;
}

} // namespace

std::optional<std::vector<std::uint8_t>> ReadWholeFile(LPCWSTR path, std::size_t limit) {
    const HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    auto bytes = ReadAll(file, limit);
    const DWORD error = GetLastError();
    CloseHandle(file);
    SetLastError(error);
    return bytes;
}
