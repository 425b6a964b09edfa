#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <string_view>

// A folder of this process for the scope of a test, with at most one file in it.
class TempFile {
  public:
    explicit TempFile(std::wstring_view name) {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        folder_ = temp + (L"ov" + std::to_wstring(GetCurrentProcessId()));
        path_ = folder_ + L"\\" + std::wstring(name);
        CreateDirectoryW(folder_.c_str(), nullptr);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() {
        DeleteFileW(path_.c_str());
        RemoveDirectoryW(folder_.c_str());
    }

    void Write(std::string_view bytes) const {
        const HANDLE file = CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
        ASSERT_EQ(written, bytes.size());
    }

    [[nodiscard]] const wchar_t* Folder() const { return folder_.c_str(); }
    [[nodiscard]] const wchar_t* Path() const { return path_.c_str(); }

  private:
    std::wstring folder_;
    std::wstring path_;
};
