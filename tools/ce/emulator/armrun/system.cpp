// What is left of the system: errors, version, locale, time, events, and the end.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "handles.h"
#include "host.h"

namespace {

uint32_t lastError = kSuccess;

struct Event final : Object {
    static constexpr Kind kKind = Kind::Event;
    Event() : Object(kKind) {}
};

struct Version {
    uint32_t major, minor;
};
constexpr Version kPlayed = {5, 1};
Version version = kPlayed;

struct VersionInfo {
    uint32_t size, major, minor, build, platform;
    char16_t servicePack[128];
};

constexpr uint32_t kClockKind = 0x23; // "1" for 24 hours.
constexpr uint32_t kTimePicture = 0x1003;
constexpr uint32_t kFirstDayOfWeek = 0x100C;
std::map<uint32_t, std::u16string> locale = {
    {kClockKind, u"0"}, {kTimePicture, u"h:mm:ss tt"}, {kFirstDayOfWeek, u"6"}};

uint32_t GetLastError() {
    return lastError;
}

void SetLastError(uint32_t error) {
    lastError = error;
}

uint32_t CloseHandle(uint32_t handle) {
    return handles.Remove(handle) ? 1 : Failed(kInvalidHandleError, 0U);
}

uint32_t CreateEventW(void*, uint32_t, uint32_t, const char16_t*) {
    return handles.Add(std::make_shared<Event>());
}

uint32_t GetVersionExW(VersionInfo* info) {
    constexpr uint32_t kPlatformCe = 3;
    info->major = version.major;
    info->minor = version.minor;
    info->build = 0;
    info->platform = kPlatformCe;
    info->servicePack[0] = 0;
    return 1;
}

void StandInSetOsVersion(uint32_t major, uint32_t minor) {
    version = major == 0 && minor == 0 ? kPlayed : Version{major, minor};
}

int32_t GetLocaleInfoW(uint32_t, uint32_t field, char16_t* buffer, uint32_t size) {
    const auto found = locale.find(field & 0xFFFF);
    if (found == locale.end()) Fail("the locale's field %x", field);
    PutText(buffer, size, found->second);
    return static_cast<int32_t>(found->second.size() + 1);
}

// The kind of clock follows the picture of a time.
uint32_t SetLocaleInfoW(uint32_t, uint32_t field, const char16_t* text) {
    locale[field & 0xFFFF] = text;
    if ((field & 0xFFFF) == kTimePicture) locale[kClockKind] = *text == u'H' ? u"1" : u"0";
    return 1;
}

uint32_t GetTickCount() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

// Nobody sends or receives one here; each is a number of its own.
uint32_t RegisterWindowMessageW(const char16_t* name) {
    constexpr uint32_t kFirst = 0xC000;
    static std::map<std::u16string, uint32_t> messages;
    return messages.emplace(Lower(name), kFirst + static_cast<uint32_t>(messages.size()))
        .first->second;
}

// There is one cursor, which nobody sees.
uint32_t NoCursor(uint32_t, uint32_t) {
    return 0;
}

uint32_t GetCurrentProcessId() {
    return 1;
}

uint32_t GetCurrentThreadId() {
    return 1;
}

void TerminateProcess(uint32_t, uint32_t code) {
    fflush(stdout);
    exit(static_cast<int>(code));
}

void OutputDebugStringW(const char16_t* text) {
    fprintf(stderr, "%s\n", Utf8(text).c_str());
}

// The tests' report, which their C library writes.
uint32_t EmulatorWrite(const uint8_t* bytes, uint32_t size) {
    return static_cast<uint32_t>(fwrite(bytes, 1, size, stdout));
}

} // namespace

void LeaveError(uint32_t error) {
    lastError = error;
}

const std::vector<HostEntry>& SystemCalls() {
    static const std::vector<HostEntry> entries = {
        SERVE(GetLastError),
        SERVE(SetLastError),
        SERVE(CloseHandle),
        SERVE(CreateEventW),
        SERVE(GetVersionExW),
        SERVE(StandInSetOsVersion),
        SERVE(GetLocaleInfoW),
        SERVE(SetLocaleInfoW),
        SERVE(GetTickCount),
        SERVE(GetCurrentProcessId),
        SERVE(GetCurrentThreadId),
        SERVE(TerminateProcess),
        SERVE(RegisterWindowMessageW),
        {"LoadCursorW", serve::Function(NoCursor)},
        {"SetCursor", serve::Function(NoCursor)},
        SERVE(OutputDebugStringW),
        SERVE(EmulatorWrite),
    };
    return entries;
}
