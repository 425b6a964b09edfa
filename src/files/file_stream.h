#pragma once

#include <windows.h>

#include <utility>

#include "files/byte_stream.h"
#include "shell/services/wide_string.h"

// A file that is open while the object lives.
class FileHandle {
  public:
    explicit FileHandle(HANDLE file) : file_(file) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(file_, other.file_);
        return *this;
    }
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
    explicit NewFile(const wchar_t* path) { Open(path); }

    // Once more, after a failure.
    void Open(const wchar_t* path);
    [[nodiscard]] bool IsOpen() const { return file_.IsOpen(); }
    void Write(const uint8_t* bytes, size_t size) override;
    // Closes the file; false when not all of it was written.
    bool Close();

  private:
    FileHandle file_{INVALID_HANDLE_VALUE};
    bool complete_ = true;
};

// A file that takes the place of one that may be there. The old one stays until the new one is
// complete and committed, and when that does not come about. The new one is written beside it, as
// "NAME.new", or right away where there is no old one.
class ReplacementFile final : public ByteSink {
  public:
    explicit ReplacementFile(const wchar_t* path);
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;
    // Without a commit nothing has happened.
    ~ReplacementFile();

    void Write(const uint8_t* bytes, size_t size) override { file_.Write(bytes, size); }
    void Commit();

  private:
    void TakePlace();

    WideString path_;
    WideString writtenPath_;
    NewFile file_;
};
