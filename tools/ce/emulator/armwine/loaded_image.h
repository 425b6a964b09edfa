#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "../pe_image.h"

// A program or library of the device in this process's memory. Wine, which takes no ARM files,
// finds resources in it all the same: its address serves as a module's handle.
struct LoadedImage {
    bool Load(const WCHAR* path);
    void Unload();

    std::optional<PeImage> image;
    uint8_t* base = nullptr;
    std::u16string path;
    int users = 1;

    [[nodiscard]] bool Holds(const void* address) const {
        const auto* place = static_cast<const uint8_t*>(address);
        return base && place >= base && place < base + image->Size();
    }
};

// A path for a message.
std::string Utf8(const WCHAR* text);

// The program that runs.
extern LoadedImage program;

// Libraries, by path; null when there is none, with the last error set.
HMODULE LoadLibraryOfDevice(const WCHAR* path);
// False when the handle is none of LoadLibraryOfDevice.
bool FreeLibraryOfDevice(HMODULE library);
