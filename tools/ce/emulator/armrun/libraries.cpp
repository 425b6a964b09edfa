// Libraries of resources, of which the program below its windows asks for texts.
#include <algorithm>
#include <cstring>

#include "handles.h"
#include "host.h"

namespace {

constexpr uint32_t kNotExecutable = 193;
constexpr uint32_t kModuleNotFound = 126;
constexpr uint32_t kTexts = 6;       // The kind of resource.
constexpr uint32_t kBlockTexts = 16; // Texts in a resource.

struct Library {
    PeImage image;
    std::u16string path;
    uint8_t* base;
    int users;
};
std::vector<Library> libraries;

// A folder of resources: a head, entries by name, entries by number. An entry is a number and a
// place, whose high bit says that it is a folder again.
const uint8_t* EntryOf(const uint8_t* root, uint32_t folder, const uint32_t* number) {
    uint16_t named, numbered;
    memcpy(&named, root + folder + 12, 2);
    memcpy(&numbered, root + folder + 14, 2);
    for (uint32_t index = number ? named : 0; index < static_cast<uint32_t>(named + numbered);
         ++index) {
        const uint8_t* entry = root + folder + 16 + 8 * index;
        if (!number || memcmp(entry, number, sizeof *number) == 0) return entry;
    }
    return nullptr;
}

// A resource by kind and number, in the first language there is.
const uint8_t* FindResource(const Library& library, uint32_t kind, uint32_t number) {
    const uint8_t* root = library.base + library.image.Resources();
    const uint32_t* const steps[] = {&kind, &number, nullptr};
    uint32_t place = 0;
    if (library.image.Resources() == 0) return nullptr;
    for (const uint32_t* step : steps) {
        const uint8_t* entry = EntryOf(root, place, step);
        if (!entry) return nullptr;
        memcpy(&place, entry + 4, sizeof place);
        place &= 0x7FFFFFFF;
    }
    uint32_t address;
    memcpy(&address, root + place, sizeof address);
    return library.base + address;
}

uint32_t LoadLibraryW(const char16_t* path) {
    for (Library& library : libraries) {
        if (Lower(library.path) != Lower(path)) continue;
        ++library.users;
        return guest.AddressOf(library.base);
    }
    auto image = PeImage::ReadFile(HostPathOf(path).c_str());
    if (!image) return Failed(kFileNotFound, 0U);
    if (image->EntryPoint() != 0) return Failed(kNotExecutable, 0U);
    uint8_t* base = Allocate(image->Size());
    if (!base) return 0;
    image->MapAt(guest.AddressOf(base), base);
    libraries.push_back({std::move(*image), path, base, 1});
    return guest.AddressOf(base);
}

Library* LibraryAt(uint32_t handle) {
    for (Library& library : libraries) {
        if (guest.AddressOf(library.base) == handle) return &library;
    }
    return nullptr;
}

uint32_t GetModuleHandleW(const char16_t* path) {
    for (const Library& library : libraries) {
        if (path && Lower(library.path) == Lower(path)) return guest.AddressOf(library.base);
    }
    return path ? Failed(kModuleNotFound, 0U) : ProgramBase();
}

uint32_t FreeLibrary(uint32_t handle) {
    Library* library = LibraryAt(handle);
    if (!library) return Failed(kInvalidHandleError, 0U);
    if (--library->users == 0) {
        Release(library->base);
        libraries.erase(libraries.begin() + (library - libraries.data()));
    }
    return 1;
}

// A block of texts: of each its length and its characters.
uint32_t LoadStringW(uint32_t handle, uint32_t number, char16_t* buffer, uint32_t size) {
    const Library* library = LibraryAt(handle);
    const uint8_t* text =
        library ? FindResource(*library, kTexts, number / kBlockTexts + 1) : nullptr;
    if (!text) return 0;
    uint16_t length = 0;
    for (uint32_t index = 0; index <= number % kBlockTexts; ++index) {
        text += 2 * length;
        memcpy(&length, text, sizeof length);
        text += sizeof length;
    }
    std::u16string whole(length, u'\0');
    memcpy(whole.data(), text, 2 * whole.size());
    PutText(buffer, size, whole);
    return std::min<uint32_t>(length, size - 1);
}

} // namespace

const std::vector<HostEntry>& LibraryCalls() {
    static const std::vector<HostEntry> entries = {SERVE(LoadLibraryW), SERVE(GetModuleHandleW),
                                                   SERVE(FreeLibrary), SERVE(LoadStringW)};
    return entries;
}
