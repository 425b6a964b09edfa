#include <windows.h>

#include <shellapi.h>
#include <stand_in.h>

#include <optional>
#include <set>
#include <string>
#include <tuple>

namespace {

constexpr DWORD kPlatformWindowsCe = 3;
constexpr wchar_t kVersionVariable[] = L"OVDEVICE_OS";

struct OsVersion {
    DWORD major = 5;
    DWORD minor = 1;
};

std::optional<OsVersion> setVersion;

// Reads one to three digits, the whole of the text up to `end`; none otherwise.
std::optional<DWORD> ParseSmallNumber(const wchar_t* text, const wchar_t* end) {
    if (text == end || end - text > 3) return {};
    DWORD number = 0;
    for (; text != end; ++text) {
        if (*text < L'0' || *text > L'9') return {};
        number = number * 10 + static_cast<DWORD>(*text - L'0');
    }
    return number;
}

// "major.minor"
std::optional<OsVersion> ParseVersion(const std::wstring& text) {
    const size_t dot = text.find(L'.');
    if (dot == std::wstring::npos) return {};
    const wchar_t* start = text.c_str();
    const auto major = ParseSmallNumber(start, start + dot);
    const auto minor = ParseSmallNumber(start + dot + 1, start + text.size());
    if (!major || !minor) return {};
    return OsVersion{*major, *minor};
}

OsVersion PlayedVersion() {
    if (setVersion) return *setVersion;
    wchar_t text[16];
    const DWORD length = GetEnvironmentVariableW(kVersionVariable, text, std::size(text));
    if (length == 0 || length >= std::size(text)) return {};
    return ParseVersion(text).value_or(OsVersion{});
}

bool LacksDrive(LPCWSTR path) {
    return path[0] == L'\\' && path[1] != L'\\';
}

// One enumeration of fonts. A PC names a face once per script and the device once; without a name
// asked for, styles are not told apart either.
struct FontEnumeration {
    using Style = std::tuple<std::wstring, LONG, BYTE, LONG>;

    FONTENUMPROCW proc;
    LPARAM param;
    bool tellsStyles;
    std::set<Style> seen;

    bool IsNew(const LOGFONTW& font) {
        if (!tellsStyles) return seen.emplace(font.lfFaceName, 0, 0, 0).second;
        return seen.emplace(font.lfFaceName, font.lfWeight, font.lfItalic, font.lfHeight).second;
    }
};

int CALLBACK PassOnNewFace(const LOGFONTW* font, const TEXTMETRICW* metrics, DWORD type,
                           LPARAM param) {
    auto& enumeration = *reinterpret_cast<FontEnumeration*>(param);
    if (!enumeration.IsNew(*font)) return 1;
    return enumeration.proc(font, metrics, type, enumeration.param);
}

// The PC's call, whose library is loaded with the first: it brings others, which take longer to
// load than most of what a program does at its start. Null without the library.
decltype(&SHGetFileInfoW) LoadFileInfoCall() {
    HMODULE shell = LoadLibraryW(L"shell32.dll");
    return shell ? reinterpret_cast<decltype(&SHGetFileInfoW)>(
                       reinterpret_cast<void*>(GetProcAddress(shell, "SHGetFileInfoW")))
                 : nullptr;
}

} // namespace

extern "C" {

void WINAPI StandInSetOsVersion(DWORD major, DWORD minor) {
    setVersion.reset();
    if (major != 0 || minor != 0) setVersion = OsVersion{major, minor};
}

BOOL WINAPI CoreGetVersionExW(LPOSVERSIONINFOW info) {
    if (!info || info->dwOSVersionInfoSize < sizeof(OSVERSIONINFOW)) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    const OsVersion version = PlayedVersion();
    info->dwMajorVersion = version.major;
    info->dwMinorVersion = version.minor;
    info->dwBuildNumber = 0;
    info->dwPlatformId = kPlatformWindowsCe;
    info->szCSDVersion[0] = L'\0';
    return TRUE;
}

DWORD_PTR WINAPI CoreSHGetFileInfoW(LPCWSTR path, DWORD attributes, SHFILEINFOW* info, UINT size,
                                    UINT flags) {
    static const auto getFileInfo = LoadFileInfoCall();
    if (!getFileInfo) return 0;
    wchar_t fullPath[MAX_PATH];
    if (path && !(flags & SHGFI_PIDL) && LacksDrive(path)) {
        const DWORD length = GetFullPathNameW(path, MAX_PATH, fullPath, nullptr);
        if (length != 0 && length < MAX_PATH) path = fullPath;
    }
    return getFileInfo(path, attributes, info, size, flags);
}

int WINAPI CoreEnumFontsW(HDC dc, LPCWSTR face, FONTENUMPROCW proc, LPARAM param) {
    FontEnumeration enumeration{proc, param, face != nullptr, {}};
    return EnumFontsW(dc, face, PassOnNewFace, reinterpret_cast<LPARAM>(&enumeration));
}

} // extern "C"
