#include "files/file_stream.h"

void FileHandle::Close() {
    if (IsOpen()) CloseHandle(file_);
    file_ = INVALID_HANDLE_VALUE;
}

FileSource::FileSource(const wchar_t* path)
    : file_(CreateFile(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr)) {}

size_t FileSource::Read(uint8_t* buffer, size_t size) {
    DWORD count = 0;
    return ReadFile(file_.Get(), buffer, static_cast<DWORD>(size), &count, nullptr) ? count : 0;
}

bool FileSource::Rewind() {
    return SetFilePointer(file_.Get(), 0, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER;
}

NewFile::NewFile(const wchar_t* path)
    : file_(CreateFile(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                       nullptr)) {}

void NewFile::Write(const uint8_t* bytes, size_t size) {
    DWORD written = 0;
    if (!IsOpen()) return;
    if (!WriteFile(file_.Get(), bytes, static_cast<DWORD>(size), &written, nullptr) ||
        written != size) {
        complete_ = false;
    }
}

bool NewFile::Close() {
    file_.Close();
    return complete_;
}
