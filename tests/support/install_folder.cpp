#include "tests/support/install_folder.h"

#include <windows.h>

#include <stand_in.h>

#include "tests/support/registry_fixture.h"

namespace {

void MakeFolders(const std::wstring& path) {
    for (size_t end = path.find(L'\\', 1); end != std::wstring::npos;
         end = path.find(L'\\', end + 1)) {
        CreateDirectory(path.substr(0, end).c_str(), nullptr);
    }
}

void RemoveTree(const std::wstring& folder) {
    WIN32_FIND_DATA found;
    HANDLE find = FindFirstFile((folder + L"\\*").c_str(), &found);
    for (BOOL more = find != INVALID_HANDLE_VALUE; more; more = FindNextFile(find, &found)) {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        const std::wstring path = folder + L"\\" + name;
        SetFileAttributes(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            RemoveTree(path);
        } else {
            DeleteFile(path.c_str());
        }
    }
    if (find != INVALID_HANDLE_VALUE) FindClose(find);
    RemoveDirectory(folder.c_str());
}

} // namespace

InstallFolder::InstallFolder()
    : programFiles_(L"\\OVOptions tests " + std::to_wstring(GetCurrentProcessId())),
      folder_(programFiles_ + L"\\Teskel\\Orvane\\") {
    RemoveTree(programFiles_);
    MakeFolders(folder_);
    SetText(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Orvane", L"ProgramFiles",
            programFiles_);
    StandInSetObjectStore(programFiles_.c_str());
}

InstallFolder::~InstallFolder() {
    StandInSetObjectStore(nullptr);
    RemoveTree(programFiles_);
}

std::wstring InstallFolder::PathOf(const std::wstring& name) const {
    return folder_ + name;
}

void InstallFolder::Write(const std::wstring& name, const std::string& bytes) const {
    MakeFolders(PathOf(name));
    HANDLE file = CreateFile(PathOf(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    CloseHandle(file);
}

std::optional<std::string> InstallFolder::Read(const std::wstring& name) const {
    HANDLE file = CreateFile(PathOf(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    EXPECT_TRUE(ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr));
    CloseHandle(file);
    return bytes;
}

bool InstallFolder::Has(const std::wstring& name) const {
    return GetFileAttributes(PathOf(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void InstallFolder::Remove(const std::wstring& name) const {
    EXPECT_TRUE(DeleteFile(PathOf(name).c_str()));
}

void InstallFolder::SetCategories(const std::string& lines) const {
    Write(L"..\\..\\Categories Database.txt", lines);
}
