#include "loaded_image.h"

#include <list>
#include <vector>

LoadedImage program;

namespace {

std::list<LoadedImage> libraries;

std::vector<uint8_t> ReadWhole(const WCHAR* path) {
    std::vector<uint8_t> bytes;
    HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return bytes;
    bytes.resize(GetFileSize(file, nullptr));
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    bytes.resize(read);
    CloseHandle(file);
    return bytes;
}

} // namespace

bool LoadedImage::Load(const WCHAR* file) {
    image = PeImage::Read(ReadWhole(file));
    if (!image) return false;
    base = static_cast<uint8_t*>(
        VirtualAlloc(nullptr, image->Size(), MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (!base) return false;
    image->MapAt(reinterpret_cast<uint32_t>(base), base);
    path = file;
    return true;
}

void LoadedImage::Unload() {
    VirtualFree(base, 0, MEM_RELEASE);
}

std::string Utf8(const WCHAR* text) {
    char bytes[1024] = "";
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes, nullptr, nullptr);
    return bytes;
}

HMODULE LoadLibraryOfDevice(const WCHAR* path) {
    for (LoadedImage& library : libraries) {
        if (lstrcmpiW(library.path.c_str(), path) != 0) continue;
        ++library.users;
        return reinterpret_cast<HMODULE>(library.base);
    }
    LoadedImage library;
    if (!library.Load(path)) {
        if (GetLastError() == ERROR_SUCCESS) SetLastError(ERROR_BAD_EXE_FORMAT);
        return nullptr;
    }
    return reinterpret_cast<HMODULE>(libraries.emplace_back(std::move(library)).base);
}

bool FreeLibraryOfDevice(HMODULE handle) {
    for (auto library = libraries.begin(); library != libraries.end(); ++library) {
        if (reinterpret_cast<HMODULE>(library->base) != handle) continue;
        if (--library->users == 0) {
            library->Unload();
            libraries.erase(library);
        }
        return true;
    }
    return false;
}
