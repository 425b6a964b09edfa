// Files, in a folder of the host that is the device's root. Names are the device's: no drive, no
// current folder, upper and lower case alike.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>

#include "handles.h"
#include "host.h"
#include "planned_faults.h"

std::string deviceRoot;

namespace {

namespace fs = std::filesystem;

constexpr uint32_t kReadOnly = 1, kFolder = 0x10, kArchive = 0x20; // Attributes.
constexpr uint32_t kGenericRead = 0x80000000;
constexpr uint32_t kGenericWrite = 0x40000000;
constexpr uint32_t kShareRead = 1;
constexpr uint32_t kShareWrite = 2;
constexpr uint32_t kFailed = 0xFFFFFFFF;
enum Disposition : uint32_t {
    kCreateNew = 1,
    kCreateAlways,
    kOpenExisting,
    kOpenAlways,
    kTruncateExisting
};

// What a program finds in a folder, as the device lays it out.
struct FindData {
    uint32_t attributes;
    uint32_t created[2], accessed[2], written[2];
    uint32_t sizeHigh, sizeLow;
    uint32_t objectId;
    char16_t name[260];
};
static_assert(sizeof(FindData) == 560 && offsetof(FindData, name) == 40);

struct File final : Object {
    static constexpr Kind kKind = Kind::File;
    File(int openDescriptor, fs::path openPath, uint32_t openAccess, uint32_t openShare)
        : Object(kKind),
          descriptor(openDescriptor),
          path(std::move(openPath)),
          access(openAccess),
          share(openShare) {
        all.push_back(this);
    }
    ~File() override {
        close(descriptor);
        std::erase(all, this);
    }

    int descriptor;
    fs::path path;
    uint32_t access, share;
    static inline std::vector<File*> all;
};

struct Find final : Object {
    static constexpr Kind kKind = Kind::Find;
    Find() : Object(kKind) {}

    std::vector<FindData> found;
    size_t next = 0;
};

// Paths whose files may not be written.
std::map<fs::path, bool> readOnly;

bool IsReadOnly(const fs::path& path) {
    return readOnly.contains(path);
}

bool SameName(const fs::path& left, std::u16string_view right) {
    return Lower(left.u16string()) == Lower(right);
}

// The host's path. What is there is found in whatever case; what is not there keeps its name.
fs::path HostPath(std::u16string_view path) {
    fs::path host = deviceRoot;
    while (!path.empty()) {
        const size_t end = std::min(path.find(u'\\'), path.size());
        const std::u16string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name.empty()) continue;
        fs::path below = host / name;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(host, error)) {
            if (SameName(entry.path().filename(), name)) below = entry.path();
        }
        host = below;
    }
    return host;
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// Why nothing is at a path.
uint32_t Missing(const fs::path& path) {
    return IsFolder(path.parent_path()) ? kFileNotFound : kPathNotFound;
}

bool IsOpen(const fs::path& path) {
    return std::ranges::any_of(File::all, [&](const File* file) { return file->path == path; });
}

// Whether who has the file open lets another have it so, and the other lets them.
bool MayShare(const fs::path& path, uint32_t access, uint32_t share) {
    const auto refuses = [](uint32_t wanted, uint32_t granted) {
        return (wanted & kGenericRead && !(granted & kShareRead)) ||
               (wanted & kGenericWrite && !(granted & kShareWrite));
    };
    return std::ranges::none_of(File::all, [&](const File* file) {
        return file->path == path && (refuses(access, file->share) || refuses(file->access, share));
    });
}

// Why a file cannot be opened so; kSuccess when it can.
uint32_t CheckOpening(const fs::path& path, uint32_t access, uint32_t share, uint32_t disposition) {
    const bool exists = Exists(path);
    if (path.filename().u16string().find_first_of(u"<>:\"/|?*") != std::u16string::npos)
        return kInvalidName;
    if (IsFolder(path)) return kAccessDenied;
    if (exists && disposition == kCreateNew) return kFileExists;
    if (!exists && (disposition == kOpenExisting || disposition == kTruncateExisting))
        return Missing(path);
    if (!exists && !IsFolder(path.parent_path())) return kPathNotFound;
    if (exists && access & kGenericWrite && IsReadOnly(path)) return kAccessDenied;
    return MayShare(path, access, share) ? kSuccess : kSharingViolation;
}

uint32_t CreateFileW(const char16_t* name, uint32_t access, uint32_t share, void*,
                     uint32_t disposition, uint32_t, uint32_t) {
    if (const uint32_t planned = CountCall(kCreateFile)) return Failed(planned, kInvalidHandle);
    const fs::path path = HostPath(name);
    if (const uint32_t error = CheckOpening(path, access, share, disposition))
        return Failed(error, kInvalidHandle);
    int flags = O_CLOEXEC | (access & kGenericWrite ? O_RDWR : O_RDONLY);
    if (disposition != kOpenExisting && disposition != kTruncateExisting) flags |= O_CREAT;
    if (disposition == kCreateAlways || disposition == kTruncateExisting) flags |= O_TRUNC;
    const int descriptor = open(path.c_str(), flags, 0644);
    if (descriptor < 0) return Failed(kAccessDenied, kInvalidHandle);
    LeaveError(kSuccess);
    return handles.Add(std::make_shared<File>(descriptor, path, access, share));
}

uint32_t ReadFile(uint32_t handle, uint8_t* buffer, uint32_t size, uint32_t* done, void*) {
    if (done) *done = 0;
    if (const uint32_t planned = CountCall(kReadFile)) return Failed(planned, 0U);
    const File* file = Opened<File>(handle);
    if (!file || !(file->access & kGenericRead))
        return Failed(file ? kAccessDenied : kInvalidHandleError, 0U);
    const ssize_t count = size == 0 ? 0 : read(file->descriptor, buffer, size);
    if (count < 0) return Failed(kAccessDenied, 0U);
    *done = static_cast<uint32_t>(count);
    return 1;
}

uint32_t WriteFile(uint32_t handle, const uint8_t* buffer, uint32_t size, uint32_t* done, void*) {
    if (done) *done = 0;
    if (const uint32_t planned = CountCall(kWriteFile)) return Failed(planned, 0U);
    const File* file = Opened<File>(handle);
    if (!file || !(file->access & kGenericWrite))
        return Failed(file ? kAccessDenied : kInvalidHandleError, 0U);
    const ssize_t count = size == 0 ? 0 : write(file->descriptor, buffer, size);
    if (count < 0) return Failed(kAccessDenied, 0U);
    *done = static_cast<uint32_t>(count);
    return 1;
}

uint32_t SetFilePointer(uint32_t handle, int32_t distance, uint32_t*, uint32_t method) {
    if (const uint32_t planned = CountCall(kSetFilePointer)) return Failed(planned, kFailed);
    const File* file = Opened<File>(handle);
    if (!file) return Failed(kInvalidHandleError, kFailed);
    const off_t place = lseek(file->descriptor, distance, static_cast<int>(method));
    return place < 0 ? Failed(kInvalidParameter, kFailed) : static_cast<uint32_t>(place);
}

uint32_t GetFileSize(uint32_t handle, uint32_t* high) {
    const File* file = Opened<File>(handle);
    struct stat status;
    if (!file || fstat(file->descriptor, &status) != 0) return Failed(kInvalidHandleError, kFailed);
    if (high) *high = static_cast<uint32_t>(static_cast<uint64_t>(status.st_size) >> 32);
    return static_cast<uint32_t>(status.st_size);
}

// Why a file cannot be removed or renamed; kSuccess when it can.
uint32_t CheckRemoving(const fs::path& path) {
    if (!Exists(path)) return Missing(path);
    return IsOpen(path) ? kSharingViolation : kSuccess;
}

uint32_t DeleteFileW(const char16_t* name) {
    if (const uint32_t planned = CountCall(kDeleteFile)) return Failed(planned, 0U);
    const fs::path path = HostPath(name);
    if (const uint32_t error = CheckRemoving(path)) return Failed(error, 0U);
    if (IsFolder(path) || IsReadOnly(path)) return Failed(kAccessDenied, 0U);
    std::error_code error;
    return fs::remove(path, error);
}

uint32_t MoveFileW(const char16_t* fromName, const char16_t* toName) {
    if (const uint32_t planned = CountCall(kMoveFile)) return Failed(planned, 0U);
    const fs::path from = HostPath(fromName);
    const fs::path to = HostPath(toName);
    if (const uint32_t error = CheckRemoving(from)) return Failed(error, 0U);
    if (Exists(to)) return Failed(kAlreadyExists, 0U);
    std::error_code error;
    fs::rename(from, to, error);
    return error ? Failed(kPathNotFound, 0U) : 1;
}

uint32_t CopyFileW(const char16_t* from, const char16_t* to, uint32_t failsIfThere) {
    const fs::path source = HostPath(from);
    const fs::path target = HostPath(to);
    if (!Exists(source)) return Failed(Missing(source), 0U);
    if (failsIfThere && Exists(target)) return Failed(kFileExists, 0U);
    std::error_code error;
    fs::copy_file(source, target, fs::copy_options::overwrite_existing, error);
    return error ? Failed(kPathNotFound, 0U) : 1;
}

uint32_t CreateDirectoryW(const char16_t* name, void*) {
    if (const uint32_t planned = CountCall(kCreateDirectory)) return Failed(planned, 0U);
    const fs::path path = HostPath(name);
    if (Exists(path)) return Failed(kAlreadyExists, 0U);
    std::error_code error;
    return fs::create_directory(path, error) ? 1 : Failed(kPathNotFound, 0U);
}

uint32_t RemoveDirectoryW(const char16_t* name) {
    const fs::path path = HostPath(name);
    if (!IsFolder(path)) return Failed(Missing(path), 0U);
    std::error_code error;
    return fs::remove(path, error) ? 1 : Failed(kDirectoryNotEmpty, 0U);
}

uint32_t AttributesOf(const fs::path& path) {
    return (IsFolder(path) ? kFolder : kArchive) | (IsReadOnly(path) ? kReadOnly : 0);
}

uint32_t GetFileAttributesW(const char16_t* name) {
    const fs::path path = HostPath(name);
    return Exists(path) ? AttributesOf(path) : Failed(Missing(path), kFailed);
}

uint32_t SetFileAttributesW(const char16_t* name, uint32_t attributes) {
    const fs::path path = HostPath(name);
    if (!Exists(path)) return Failed(Missing(path), 0U);
    if (attributes & kReadOnly)
        readOnly[path] = true;
    else
        readOnly.erase(path);
    return 1;
}

// "*" stands for any characters, "?" for one.
bool Matches(std::u16string_view name, std::u16string_view pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == u'*')
        return Matches(name, pattern.substr(1)) ||
               (!name.empty() && Matches(name.substr(1), pattern));
    return !name.empty() && (pattern[0] == u'?' || pattern[0] == name[0]) &&
           Matches(name.substr(1), pattern.substr(1));
}

FindData DataOf(const fs::directory_entry& entry) {
    FindData data{};
    data.attributes = AttributesOf(entry.path());
    std::error_code error;
    if (!IsFolder(entry.path())) data.sizeLow = static_cast<uint32_t>(entry.file_size(error));
    PutText(data.name, 260, entry.path().filename().u16string());
    return data;
}

// The device lists neither a folder itself nor the one above, and keeps no order.
uint32_t FindFirstFileW(const char16_t* name, FindData* data) {
    if (const uint32_t planned = CountCall(kFindFile)) return Failed(planned, kInvalidHandle);
    const std::u16string_view whole(name);
    const size_t bar = std::min(whole.rfind(u'\\'), whole.size());
    const fs::path folder = HostPath(whole.substr(0, bar));
    const std::u16string pattern = Lower(whole.substr(std::min(bar + 1, whole.size())));
    auto find = std::make_shared<Find>();
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const std::u16string found = Lower(entry.path().filename().u16string());
        if (pattern == u"*.*" || Matches(found, pattern)) find->found.push_back(DataOf(entry));
    }
    if (find->found.empty()) return Failed(error ? kPathNotFound : kNoMoreFiles, kInvalidHandle);
    *data = find->found[find->next++];
    return handles.Add(find);
}

uint32_t FindNextFileW(uint32_t handle, FindData* data) {
    if (const uint32_t planned = CountCall(kFindFile)) return Failed(planned, 0U);
    auto* find = Opened<Find>(handle);
    if (!find) return Failed(kInvalidHandleError, 0U);
    if (find->next == find->found.size()) return Failed(kNoMoreFiles, 0U);
    *data = find->found[find->next++];
    return 1;
}

uint32_t FindClose(uint32_t handle) {
    return Opened<Find>(handle) && handles.Remove(handle);
}

uint32_t GetTempPathW(uint32_t size, char16_t* buffer) {
    std::error_code error;
    fs::create_directory(HostPath(u"\\Temp"), error);
    PutText(buffer, size, u"\\Temp\\");
    return 6;
}

} // namespace

std::string HostPathOf(std::u16string_view path) {
    return HostPath(path).string();
}

const std::vector<HostEntry>& FileCalls() {
    static const std::vector<HostEntry> entries = {
        SERVE(CreateFileW),      SERVE(ReadFile),           SERVE(WriteFile),
        SERVE(SetFilePointer),   SERVE(GetFileSize),        SERVE(DeleteFileW),
        SERVE(MoveFileW),        SERVE(CopyFileW),          SERVE(CreateDirectoryW),
        SERVE(RemoveDirectoryW), SERVE(GetFileAttributesW), SERVE(SetFileAttributesW),
        SERVE(FindFirstFileW),   SERVE(FindNextFileW),      SERVE(FindClose),
        SERVE(GetTempPathW),
    };
    return entries;
}
