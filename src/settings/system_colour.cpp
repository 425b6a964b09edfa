#include "settings/system_colour.h"

#include <memory>
#include <new>

#include "settings/registry_values.h"
#include "shell/services/handles.h"

namespace {

struct ValueBytes {
    std::unique_ptr<BYTE[]> bytes; // Null when there is no value.
    DWORD size = 0;

    [[nodiscard]] BYTE At(size_t position) const { return position < size ? bytes[position] : 0; }
    [[nodiscard]] COLORREF ColourAt(size_t position) const {
        return RGB(At(position), At(position + 1), At(position + 2));
    }
};

ValueBytes ReadBytes(HKEY key, const wchar_t* name) {
    ValueBytes value;
    DWORD size = 0;
    if (RegQueryValueEx(key, name, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) return value;
    std::unique_ptr<BYTE[]> bytes(new (std::nothrow) BYTE[size]);
    if (bytes == nullptr) return value;
    if (RegQueryValueEx(key, name, nullptr, nullptr, bytes.get(), &size) != ERROR_SUCCESS) {
        return value;
    }
    value.bytes = std::move(bytes);
    value.size = size;
    return value;
}

} // namespace

COLORREF SystemColour(int index, COLORREF fallback) {
    const UniqueKey key(OpenExistingKey(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Color"));
    if (!key) return fallback;

    WideString ownName;
    ownName.Format(L"%d", index);
    const ValueBytes own = ReadBytes(key.Get(), ownName.CStr());
    if (own.bytes != nullptr) return own.ColourAt(0);

    const ValueBytes scheme = ReadBytes(key.Get(), L"SHColor");
    const size_t position = static_cast<size_t>(index) * sizeof(COLORREF);
    return scheme.size > position + sizeof(COLORREF) ? scheme.ColourAt(position) : fallback;
}
