// What makes the library a COM server: the class factory and its registration.

#include "imaging_factory.h"

#include <new>

namespace {

constexpr wchar_t kClassKey[] = L"CLSID\\{327ABDA8-072B-11D3-9D7B-0000F81EF32E}";
constexpr wchar_t kServerKey[] = L"CLSID\\{327ABDA8-072B-11D3-9D7B-0000F81EF32E}\\InprocServer32";

HINSTANCE thisLibrary;

class ImagingClass final : public ComObject<IClassFactory, IID_IClassFactory> {
  public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        return outer ? CLASS_E_NOAGGREGATION : ImagingFactory::Create(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL locks) override {
        liveObjects += locks ? 1 : -1;
        return S_OK;
    }
};

LONG SetText(HKEY key, LPCWSTR name, LPCWSTR text) {
    const auto bytes = static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t));
    return RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), bytes);
}

} // namespace

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) thisLibrary = instance;
    return TRUE;
}

HRESULT WINAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (classId != CLSID_ImagingFactory) return CLASS_E_CLASSNOTAVAILABLE;
    const ComRef<ImagingClass> created(new (std::nothrow) ImagingClass);
    return created.Get() ? created->QueryInterface(id, object) : E_OUTOFMEMORY;
}

HRESULT WINAPI DllCanUnloadNow() {
    return liveObjects == 0 ? S_OK : S_FALSE;
}

HRESULT WINAPI DllRegisterServer() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(thisLibrary, path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return E_FAIL;
    HKEY key = nullptr;
    LONG result = RegCreateKeyExW(HKEY_CLASSES_ROOT, kServerKey, 0, nullptr, 0, KEY_WRITE, nullptr,
                                  &key, nullptr);
    if (result == ERROR_SUCCESS) {
        result = SetText(key, nullptr, path);
        if (result == ERROR_SUCCESS) result = SetText(key, L"ThreadingModel", L"Both");
        RegCloseKey(key);
    }
    return HRESULT_FROM_WIN32(static_cast<DWORD>(result));
}

HRESULT WINAPI DllUnregisterServer() {
    RegDeleteKeyW(HKEY_CLASSES_ROOT, kServerKey);
    const LONG result = RegDeleteKeyW(HKEY_CLASSES_ROOT, kClassKey);
    return HRESULT_FROM_WIN32(static_cast<DWORD>(result));
}

} // extern "C"
