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

void NewFile::Open(const wchar_t* path) {
    file_ = FileHandle(
        CreateFile(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
}

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

ReplacementFile::ReplacementFile(const wchar_t* path)
    : path_(path), writtenPath_(path), file_(path) {
    if (file_.IsOpen()) return;
    writtenPath_.Append(L".new");
    DeleteFile(writtenPath_.CStr());
    file_.Open(writtenPath_.CStr());
}

ReplacementFile::~ReplacementFile() {
    if (!file_.IsOpen()) return;
    file_.Close();
    DeleteFile(writtenPath_.CStr());
}

void ReplacementFile::Commit() {
    if (!file_.IsOpen()) return;
    if (!file_.Close()) {
        DeleteFile(writtenPath_.CStr());
    } else if (!(writtenPath_ == path_)) {
        TakePlace();
    }
}

// The platform renames a file only to a name that is free. At every moment one of the two has the
// name, or can be found under another.
void ReplacementFile::TakePlace() {
    WideString old(path_);
    old.Append(L".old");
    DeleteFile(old.CStr());
    const bool isAside = MoveFile(path_.CStr(), old.CStr());
    if (isAside && MoveFile(writtenPath_.CStr(), path_.CStr())) {
        DeleteFile(old.CStr());
        return;
    }
    // The old file back, and the new one only where that fails too.
    if (!isAside || MoveFile(old.CStr(), path_.CStr())) DeleteFile(writtenPath_.CStr());
}
