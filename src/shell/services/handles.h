#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

// Sole owner of a platform handle: `Close` runs when the owner goes or takes another handle.
template <typename Handle, auto Close>
class UniqueHandle {
  public:
    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) : handle_(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        Reset(other.Release());
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    void Reset(Handle handle = {}) {
        if (handle_ != Handle{}) Close(handle_);
        handle_ = handle;
    }
    [[nodiscard]] Handle Release() { return std::exchange(handle_, Handle{}); }
    [[nodiscard]] Handle Get() const { return handle_; }
    // For calls that hand the handle back through a pointer.
    [[nodiscard]] Handle* Receive() {
        Reset();
        return &handle_;
    }
    explicit operator bool() const { return handle_ != Handle{}; }

  private:
    Handle handle_ = {};
};

namespace handle_closers {
inline void Key(HKEY key) {
    RegCloseKey(key);
}
inline void GdiObject(HGDIOBJ object) {
    DeleteObject(object);
}
inline void Dc(HDC dc) {
    DeleteDC(dc);
}
inline void Module(HMODULE module) {
    FreeLibrary(module);
}
inline void Images(HIMAGELIST images) {
    ImageList_Destroy(images);
}
inline void Icon(HICON icon) {
    DestroyIcon(icon);
}
inline void Menu(HMENU menu) {
    DestroyMenu(menu);
}
} // namespace handle_closers

using UniqueKey = UniqueHandle<HKEY, handle_closers::Key>;
using UniqueFont = UniqueHandle<HFONT, handle_closers::GdiObject>;
using UniqueBitmap = UniqueHandle<HBITMAP, handle_closers::GdiObject>;
using UniqueBrush = UniqueHandle<HBRUSH, handle_closers::GdiObject>;
using UniqueDc = UniqueHandle<HDC, handle_closers::Dc>;
using UniqueModule = UniqueHandle<HMODULE, handle_closers::Module>;
using UniqueImageList = UniqueHandle<HIMAGELIST, handle_closers::Images>;
using UniqueIcon = UniqueHandle<HICON, handle_closers::Icon>;
using UniqueMenu = UniqueHandle<HMENU, handle_closers::Menu>;

// FindFirstFile answers INVALID_HANDLE_VALUE for "none", not null.
class UniqueFind {
  public:
    explicit UniqueFind(HANDLE find) : find_(find) {}
    UniqueFind(const UniqueFind&) = delete;
    UniqueFind& operator=(const UniqueFind&) = delete;
    ~UniqueFind() {
        if (find_ != INVALID_HANDLE_VALUE) FindClose(find_);
    }
    explicit operator bool() const { return find_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return find_; }

  private:
    HANDLE find_;
};

// Selects an object into a device context for a scope.
class SelectScope {
  public:
    SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;
    ~SelectScope() { SelectObject(dc_, previous_); }

  private:
    HDC dc_;
    HGDIOBJ previous_;
};
