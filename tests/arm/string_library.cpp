// A library of one text as the device has it: a PC's calls to change a library's resources are not
// there, so the file is written whole.
#include "tests/support/string_library.h"

#include <windows.h>

#include <cstdint>

namespace {

constexpr uint32_t kFileAlignment = 0x200;
constexpr uint32_t kSectionAt = 0x1000;
constexpr uint32_t kTextsKind = 6;
constexpr uint32_t kFolder = 0x80000000;
constexpr unsigned kBlock = 16;

class Bytes {
  public:
    void Half(uint32_t value) {
        content += static_cast<char>(value);
        content += static_cast<char>(value >> 8);
    }
    void Word(uint32_t value) {
        Half(value & 0xFFFF);
        Half(value >> 16);
    }
    void PadTo(size_t size) { content.resize(size); }

    std::string content;
};

// A folder of resources with one entry, which stands behind it.
void AddFolder(Bytes& tree, uint32_t number, uint32_t place) {
    for (int i = 0; i < 3; ++i)
        tree.Word(0);
    tree.Word(0x00010000);
    tree.Word(number);
    tree.Word(place);
}

Bytes TextTree(unsigned id, const std::wstring& text) {
    constexpr uint32_t kFolderSize = 24;
    constexpr uint32_t kDataEntrySize = 16;
    Bytes tree;
    AddFolder(tree, kTextsKind, kFolder | kFolderSize);
    AddFolder(tree, id / kBlock + 1, kFolder | 2 * kFolderSize);
    AddFolder(tree, 0, 3 * kFolderSize);
    tree.Word(kSectionAt + 3 * kFolderSize + kDataEntrySize);
    tree.Word(static_cast<uint32_t>(2 * (kBlock + text.size())));
    tree.Word(0);
    tree.Word(0);
    for (unsigned number = 0; number < kBlock; ++number) {
        const bool isText = number == id % kBlock;
        tree.Half(isText ? static_cast<uint32_t>(text.size()) : 0);
        for (const wchar_t character : isText ? text : std::wstring())
            tree.Half(character);
    }
    return tree;
}

// The headers of a library with one section, of resources.
Bytes Headers(uint32_t size) {
    constexpr uint32_t kHeadersAt = 0x80;
    Bytes file;
    file.Half(0x5A4D);
    file.PadTo(0x3C);
    file.Word(kHeadersAt);
    file.PadTo(kHeadersAt);
    file.Word(0x4550);
    file.Half(0x1C0);
    file.Half(1);
    file.PadTo(kHeadersAt + 20);
    file.Half(0xE0);
    file.Half(0x2102); // A library of 32 bits.
    file.Half(0x10B);
    file.PadTo(kHeadersAt + 24 + 28);
    file.Word(0x10000);
    file.Word(kSectionAt);
    file.Word(kFileAlignment);
    file.PadTo(kHeadersAt + 24 + 56);
    file.Word(kSectionAt + (size + 0xFFF) / 0x1000 * 0x1000);
    file.Word(kFileAlignment);
    file.PadTo(kHeadersAt + 24 + 68);
    file.Half(9);
    file.PadTo(kHeadersAt + 24 + 92);
    file.Word(16);
    file.PadTo(kHeadersAt + 24 + 96 + 16);
    file.Word(kSectionAt);
    file.Word(size);
    file.PadTo(kHeadersAt + 24 + 0xE0);
    file.content += ".rsrc";
    file.PadTo(kHeadersAt + 24 + 0xE0 + 8);
    for (const uint32_t number : {size, kSectionAt, size, kFileAlignment})
        file.Word(number);
    file.PadTo(kFileAlignment);
    return file;
}

} // namespace

bool MakeStringLibrary(const std::wstring& path, unsigned id, const std::wstring& text) {
    const Bytes tree = TextTree(id, text);
    const std::string content =
        Headers(static_cast<uint32_t>(tree.content.size())).content + tree.content;
    HANDLE file = CreateFile(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool whole =
        WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) &&
        written == content.size();
    CloseHandle(file);
    return whole;
}
