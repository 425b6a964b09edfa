#pragma once

#include <cstddef>
#include <string_view>

// The program's own growable, NUL-terminated wide string. The program's one thread is the only one
// that may use it.
class WideString {
  public:
    WideString() = default;
    WideString(const wchar_t* text) { Assign(text); }
    WideString(const WideString& other) { Take(other.buffer_, other.length_); }
    WideString(WideString&& other) noexcept;
    WideString& operator=(const WideString& other);
    WideString& operator=(WideString&& other) noexcept;
    ~WideString() { Free(); }

    // Both take a text that may lie inside this very string.
    void Assign(const wchar_t* text);
    void Append(const wchar_t* text);
    // Takes `count` characters, up to the first NUL among them.
    void Assign(const wchar_t* text, size_t count);

    // printf's rules, with %s for a wide text; a result beyond the shared buffer is cut.
    void Format(const wchar_t* format, ...);

    // Releases the buffer; the string is then empty, as a new one.
    void Free();

    // Never null; valid until the string changes.
    [[nodiscard]] const wchar_t* CStr() const { return buffer_; }
    [[nodiscard]] std::wstring_view View() const { return {buffer_, length_}; }
    [[nodiscard]] size_t Length() const { return length_; }
    // Characters the string is said to hold: 64 at first, and 64 more than a text needs that comes
    // within 4 of the end. The block behind it may be larger.
    [[nodiscard]] size_t Capacity() const { return capacity_; }
    [[nodiscard]] bool IsEmpty() const { return length_ == 0; }

  private:
    static constexpr size_t kFirstCapacity = 64;
    // What every string without a block of its own points at; never written.
    static inline wchar_t emptyText_[1] = {};

    void Take(const wchar_t* text, size_t count);
    void RaiseCapacity(size_t count);
    void AdoptBlock(wchar_t* block, size_t size);
    void StealFrom(WideString& other);

    wchar_t* buffer_ = emptyText_;
    size_t capacity_ = kFirstCapacity;
    size_t length_ = 0;
    size_t allocated_ = 0; // Characters of the block behind the buffer; 0 while there is none.
};

[[nodiscard]] bool operator==(const WideString& left, const WideString& right);
[[nodiscard]] bool operator==(const WideString& left, const wchar_t* right);
