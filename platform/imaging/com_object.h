#pragma once

#include <windows.h>

#include <objbase.h>

#include <atomic>
#include <utility>

// Objects of this library that someone holds; the library stays loaded for them.
inline std::atomic<LONG> liveObjects;

// COM interfaces have no destructor: their objects are released.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// The life of a COM object that offers one interface; it starts with one reference, the creator's.
template <typename Interface, const GUID& interfaceId>
class ComObject : public Interface {
  public:
    ComObject() { ++liveObjects; }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    virtual ~ComObject() { --liveObjects; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (id != interfaceId && id != IID_IUnknown) return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

  private:
    std::atomic<ULONG> references_ = 1;
};

#pragma GCC diagnostic pop

// Sole owner of one reference.
template <typename Interface>
class ComRef {
  public:
    ComRef() = default;
    explicit ComRef(Interface* object) : object_(object) {}
    ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComRef& operator=(ComRef&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComRef() {
        if (object_) object_->Release();
    }

    [[nodiscard]] Interface* Get() const { return object_; }
    // For calls that hand an object out; only on an empty owner.
    [[nodiscard]] Interface** Receive() { return &object_; }
    Interface* operator->() const { return object_; }

  private:
    Interface* object_ = nullptr;
};
