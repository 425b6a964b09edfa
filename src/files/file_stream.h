#pragma once

#include <windows.h>

#include "files/byte_stream.h"
#include "shell/services/wide_string.h"

// A file that is open while the object lives.
class FileHandle {
  public:
    explicit FileHandle(HANDLE file) : file_(file) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { Close(); }

    [[nodiscard]] bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return file_; }
    void Close();

  private:
    HANDLE file_;
};

class FileSource final : public ByteSource {
  public:
    explicit FileSource(const wchar_t* path);

    [[nodiscard]] bool IsOpen() const { return file_.IsOpen(); }
    void Close() { file_.Close(); }
    size_t Read(uint8_t* buffer, size_t size) override;
    [[nodiscard]] bool Rewind() override;

  private:
    FileHandle file_;
};

// A file that is made anew; where there is one already, it fails to open. What is written to a file
// that is not open is dropped.
class NewFile final : public ByteSink {
  public:
    explicit NewFile(const wchar_t* path);

    [[nodiscard]] bool IsOpen() const { return file_.IsOpen(); }
    void Write(const uint8_t* bytes, size_t size) override;
    // Closes the file; false when not all of it was written.
    bool Close();

  private:
    FileHandle file_;
    bool complete_ = true;
};

// Makes a file by what `write` writes to its sink, in place of one that is there. The old file
// stays until the new one is complete, and when it does not come about.
template <typename WriteContent>
void RewriteFile(const wchar_t* path, WriteContent write) {
    WideString draft(path);
    draft.Append(L".new");
    DeleteFile(draft.CStr());
    NewFile file(draft.CStr());
    if (!file.IsOpen()) return;
    write(static_cast<ByteSink&>(file));
    const bool complete = file.Close();
    if (complete) DeleteFile(path);
    if (!complete || !MoveFile(draft.CStr(), path)) DeleteFile(draft.CStr());
}
