#include "shell/services/wide_string.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>

WideString::WideString(WideString&& other) noexcept {
    StealFrom(other);
}

WideString& WideString::operator=(const WideString& other) {
    if (this != &other) Take(other.buffer_, other.length_);
    return *this;
}

WideString& WideString::operator=(WideString&& other) noexcept {
    if (this != &other) {
        Free();
        StealFrom(other);
    }
    return *this;
}

void WideString::Assign(const wchar_t* text) {
    Take(text, std::wcslen(text));
}

void WideString::Assign(const wchar_t* text, size_t count) {
    const wchar_t* end = std::find(text, text + count, L'\0');
    Take(text, static_cast<size_t>(end - text));
}

// The text may lie in the old block, so that goes only after the copy.
void WideString::Take(const wchar_t* text, size_t count) {
    RaiseCapacity(count);
    if (count == 0 && allocated_ == 0) return;
    if (capacity_ > allocated_) {
        auto* block = new wchar_t[capacity_];
        std::copy_n(text, count, block);
        AdoptBlock(block, capacity_);
    } else if (count != 0) {
        std::memmove(buffer_, text, count * sizeof(wchar_t));
    }
    buffer_[count] = L'\0';
    length_ = count;
}

void WideString::Append(const wchar_t* text) {
    const size_t count = std::wcslen(text);
    if (count == 0) return;
    RaiseCapacity(length_ + count);
    if (capacity_ > allocated_) {
        // Doubling keeps the cost of many appends proportional to the text they make.
        const size_t size = std::max(capacity_, 2 * allocated_);
        auto* block = new wchar_t[size];
        std::copy_n(buffer_, length_, block);
        std::copy_n(text, count, block + length_);
        AdoptBlock(block, size);
    } else {
        std::memmove(buffer_ + length_, text, count * sizeof(wchar_t));
    }
    length_ += count;
    buffer_[length_] = L'\0';
}

void WideString::Free() {
    if (allocated_ != 0) delete[] buffer_;
    buffer_ = emptyText_;
    capacity_ = kFirstCapacity;
    length_ = 0;
    allocated_ = 0;
}

void WideString::RaiseCapacity(size_t count) {
    constexpr size_t kReserve = 4;
    constexpr size_t kHeadroom = 64;
    if (count + kReserve > capacity_) capacity_ = count + kHeadroom;
}

void WideString::AdoptBlock(wchar_t* block, size_t size) {
    if (allocated_ != 0) delete[] buffer_;
    buffer_ = block;
    allocated_ = size;
}

void WideString::StealFrom(WideString& other) {
    buffer_ = std::exchange(other.buffer_, emptyText_);
    capacity_ = std::exchange(other.capacity_, kFirstCapacity);
    length_ = std::exchange(other.length_, 0);
    allocated_ = std::exchange(other.allocated_, 0);
}

bool operator==(const WideString& left, const WideString& right) {
    return left.Length() == right.Length() && left == right.CStr();
}

bool operator==(const WideString& left, const wchar_t* right) {
    return std::wcscmp(left.CStr(), right) == 0;
}
