// The calls that cannot be handed on as they are: those that take a procedure of the program's,
// those whose structures differ on the device, those about modules, and those that end the program.
#include <windows.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

#include "host_calls.h"
#include "loaded_image.h"
#include "marks.h"

namespace {

using Words = Machine::Words;

template <class T>
T As(uint32_t word) {
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(word);
    else
        return static_cast<T>(word);
}

// A host's function in the stand-in, or Wine's own.
uint32_t PassOn(const char* name, Words words) {
    static const char* const kLibraries[] = {"coredll", "kernel32", "user32", "gdi32"};
    for (const char* library : kLibraries) {
        if (auto* function =
                reinterpret_cast<const void*>(GetProcAddress(GetModuleHandleA(library), name)))
            return CallHost(function, words);
    }
    Fail("no %s", name);
}

// Calls a host's function with the program's procedure wrapped: the one at the place `index`, of
// so many words.
uint32_t PassOnWrapped(const char* name, Words words, int index, int procedureWords) {
    uint32_t changed[Machine::kWords];
    memcpy(changed, words, sizeof changed);
    changed[index] = WrapProcedure(words[index], procedureWords);
    return PassOn(name, changed);
}

constexpr int kProcedureWords = 4;

// The number of a system colour carries a mark on the device, as does one in a brush's place.
uint32_t WithoutMark(uint32_t colour) {
    constexpr uint32_t kMark = 0x40000000;
    constexpr uint32_t kBehindLast = kMark + 64;
    return colour >= kMark && colour < kBehindLast ? colour - kMark : colour;
}

uint64_t WrappedGetSysColor(Words words) {
    return GetSysColor(WithoutMark(words[0]));
}

uint64_t WrappedGetSysColorBrush(Words words) {
    return reinterpret_cast<uint32_t>(GetSysColorBrush(WithoutMark(words[0])));
}

uint64_t WrappedFillRect(Words words) {
    return FillRect(As<HDC>(words[0]), As<const RECT*>(words[1]),
                    As<HBRUSH>(WithoutMark(words[2])));
}

uint64_t WrappedRegisterClass(Words words) {
    WNDCLASSW windowClass = *As<const WNDCLASSW*>(words[0]);
    windowClass.hbrBackground =
        As<HBRUSH>(WithoutMark(reinterpret_cast<uint32_t>(windowClass.hbrBackground)));
    windowClass.lpfnWndProc = Wrapped(windowClass.lpfnWndProc, kProcedureWords);
    return RegisterClassW(&windowClass);
}

uint64_t WrappedSetWindowLong(Words words) {
    const bool isProcedure = As<int>(words[1]) == GWL_WNDPROC || As<int>(words[1]) == DWL_DLGPROC;
    return isProcedure ? PassOnWrapped("SetWindowLongW", words, 2, kProcedureWords)
                       : PassOn("SetWindowLongW", words);
}

uint64_t WrappedCreateDialogIndirectParam(Words words) {
    return PassOnWrapped("CreateDialogIndirectParamW", words, 3, kProcedureWords);
}

uint64_t WrappedDialogBoxIndirectParam(Words words) {
    return PassOnWrapped("DialogBoxIndirectParamW", words, 3, kProcedureWords);
}

uint64_t WrappedSetTimer(Words words) {
    return PassOnWrapped("SetTimer", words, 3, kProcedureWords);
}

uint64_t WrappedEnumFonts(Words words) {
    return PassOnWrapped("EnumFontsW", words, 2, kProcedureWords);
}

// What the device finds in a folder: another order than a PC's, and no short name.
struct DeviceFindData {
    DWORD attributes;
    FILETIME created, accessed, written;
    DWORD sizeHigh, sizeLow;
    DWORD objectId;
    WCHAR name[MAX_PATH];
};
static_assert(sizeof(DeviceFindData) == 560 && offsetof(DeviceFindData, name) == 40);

void Convert(const WIN32_FIND_DATAW& from, DeviceFindData& to) {
    to.attributes = from.dwFileAttributes;
    to.created = from.ftCreationTime;
    to.accessed = from.ftLastAccessTime;
    to.written = from.ftLastWriteTime;
    to.sizeHigh = from.nFileSizeHigh;
    to.sizeLow = from.nFileSizeLow;
    to.objectId = 0;
    lstrcpynW(to.name, from.cFileName, MAX_PATH);
}

// The device does not list a folder itself and the one above.
bool IsListed(const WIN32_FIND_DATAW& found) {
    return lstrcmpW(found.cFileName, u".") != 0 && lstrcmpW(found.cFileName, u"..") != 0;
}

BOOL FindNext(HANDLE find, WIN32_FIND_DATAW& found) {
    const uint32_t words[Machine::kWords] = {reinterpret_cast<uint32_t>(find),
                                             reinterpret_cast<uint32_t>(&found)};
    BOOL more = FALSE;
    do
        more = static_cast<BOOL>(PassOn("FindNextFileW", words));
    while (more && !IsListed(found));
    return more;
}

uint64_t WrappedFindFirstFile(Words words) {
    WIN32_FIND_DATAW found;
    const uint32_t passed[Machine::kWords] = {words[0], reinterpret_cast<uint32_t>(&found)};
    auto* find = As<HANDLE>(PassOn("FindFirstFileW", passed));
    if (find == INVALID_HANDLE_VALUE) return reinterpret_cast<uint32_t>(find);
    if (!IsListed(found) && !FindNext(find, found)) {
        FindClose(find);
        SetLastError(ERROR_NO_MORE_FILES);
        return reinterpret_cast<uint32_t>(INVALID_HANDLE_VALUE);
    }
    Convert(found, *As<DeviceFindData*>(words[1]));
    return reinterpret_cast<uint32_t>(find);
}

uint64_t WrappedFindNextFile(Words words) {
    WIN32_FIND_DATAW found;
    if (!FindNext(As<HANDLE>(words[0]), found)) return FALSE;
    Convert(found, *As<DeviceFindData*>(words[1]));
    return TRUE;
}

uint64_t WrappedLoadLibrary(Words words) {
    return reinterpret_cast<uint32_t>(LoadLibraryOfDevice(As<const WCHAR*>(words[0])));
}

uint64_t WrappedFreeLibrary(Words words) {
    return FreeLibraryOfDevice(As<HMODULE>(words[0])) ? TRUE : PassOn("FreeLibrary", words);
}

uint64_t WrappedGetModuleHandle(Words words) {
    return words[0] == 0 ? reinterpret_cast<uint32_t>(program.base)
                         : PassOn("GetModuleHandleW", words);
}

uint64_t WrappedGetModuleFileName(Words words) {
    if (words[0] != 0 && !program.Holds(As<void*>(words[0])))
        return PassOn("GetModuleFileNameW", words);
    // The device names no drive.
    const WCHAR* path = program.path.c_str();
    if (path[0] != 0 && path[1] == u':') path += 2;
    lstrcpynW(As<WCHAR*>(words[1]), path, As<int>(words[2]));
    return lstrlenW(As<WCHAR*>(words[1]));
}

uint64_t WrappedGetMessage(Words words) {
    for (;;) {
        const uint32_t result = PassOn("GetMessageW", words);
        if (!TakeMark(*As<const MSG*>(words[0]))) return result;
    }
}

// The device's number for the process itself is another than a PC's.
uint64_t WrappedTerminateProcess(Words words) {
    constexpr uint32_t kOwnProcess = 0x42;
    if (words[0] != kOwnProcess && As<HANDLE>(words[0]) != GetCurrentProcess())
        return PassOn("TerminateProcess", words);
    WriteMark("save and end");
    fflush(stdout);
    ExitProcess(words[1]);
}

uint64_t WrappedOutputDebugString(Words words) {
    fprintf(stderr, "%s\n", Utf8(As<const WCHAR*>(words[0])).c_str());
    return 0;
}

// Numbers of 64 bits come in two registers and go out the same way.
template <double (*function)(double)>
uint64_t OfDouble(Words words) {
    double number;
    memcpy(&number, words, sizeof number);
    number = function(number);
    uint64_t result;
    memcpy(&result, &number, sizeof result);
    return result;
}

struct WrappedCall {
    const char* name;
    uint64_t (*function)(Words);
};
const WrappedCall kCalls[] = {
    {"RegisterClassW", WrappedRegisterClass},
    {"GetSysColor", WrappedGetSysColor},
    {"GetSysColorBrush", WrappedGetSysColorBrush},
    {"FillRect", WrappedFillRect},
    {"SetWindowLongW", WrappedSetWindowLong},
    {"CreateDialogIndirectParamW", WrappedCreateDialogIndirectParam},
    {"DialogBoxIndirectParamW", WrappedDialogBoxIndirectParam},
    {"SetTimer", WrappedSetTimer},
    {"EnumFontsW", WrappedEnumFonts},
    {"FindFirstFileW", WrappedFindFirstFile},
    {"FindNextFileW", WrappedFindNextFile},
    {"LoadLibraryW", WrappedLoadLibrary},
    {"FreeLibrary", WrappedFreeLibrary},
    {"GetModuleHandleW", WrappedGetModuleHandle},
    {"GetModuleFileNameW", WrappedGetModuleFileName},
    {"GetMessageW", WrappedGetMessage},
    {"TerminateProcess", WrappedTerminateProcess},
    {"OutputDebugStringW", WrappedOutputDebugString},
    {"floor", OfDouble<floor>},
    {"ceil", OfDouble<ceil>},
    {"sqrt", OfDouble<sqrt>},
};

} // namespace

Machine::HostFunction FindWrappedCall(const std::string& name) {
    for (const WrappedCall& call : kCalls) {
        if (name == call.name) return call.function;
    }
    return {};
}
