// The object store's database calls, over a text file that a person can edit. There is one
// database, the categories'; it can be read but not changed, and has no sort order.

#include "category_text.h"
#include "file_bytes.h"

#include <stand_in.h>

#include <algorithm>
#include <atomic>
#include <cwchar>
#include <memory>
#include <span>
#include <string>

namespace {

constexpr wchar_t kDatabaseName[] = L"\\Categories Database";
constexpr wchar_t kDefaultFolder[] = L"\\Object Store";
constexpr std::size_t kMaxDatabaseFile = 1U << 20;

// Ids are arbitrary but for 0, which stands for none.
constexpr CEOID kDatabaseOid = 0x0100'0001;
constexpr CEOID kFirstRecordOid = 0x0200'0001;

constexpr CEPROPID kNameProperty = MAKELONG(CEVT_LPWSTR, 0x4001);
constexpr CEPROPID kNumberProperty = MAKELONG(CEVT_I2, 0x4002);
constexpr CEPROPID kFlagProperty = MAKELONG(CEVT_I2, 0x4005);
constexpr CEPROPID kAllProperties[] = {kNameProperty, kNumberProperty, kFlagProperty};

// An open database with its seek pointer, which stands on a record or behind the last.
struct Database {
    std::vector<CategoryRecord> records;
    bool stepsOnRead;
    std::size_t position = 0;
};

std::vector<std::unique_ptr<Database>> openDatabases;
std::wstring folder = kDefaultFolder;

// Guards the above: handles of other kinds are closed on other threads too.
class LockScope {
  public:
    LockScope() {
        while (taken_.test_and_set())
            Sleep(0);
    }
    LockScope(const LockScope&) = delete;
    LockScope& operator=(const LockScope&) = delete;
    ~LockScope() { taken_.clear(); }

  private:
    static inline std::atomic_flag taken_;
};

auto FindDatabase(HANDLE handle) {
    return std::ranges::find(openDatabases, handle,
                             [](const auto& database) -> HANDLE { return database.get(); });
}

CEOID OidOf(std::size_t position) {
    return kFirstRecordOid + static_cast<CEOID>(position);
}

bool IsKnownVolume(const CEGUID& volume) {
    const std::span bytes(reinterpret_cast<const BYTE*>(&volume), sizeof volume);
    return (bytes[0] == 0 || bytes[0] == 0xFF) &&
           std::ranges::all_of(bytes, [first = bytes[0]](BYTE byte) { return byte == first; });
}

bool NamesDatabase(const CEOID& oid, LPCWSTR name) {
    if (oid != 0) return oid == kDatabaseOid;
    return name && _wcsicmp(name, kDatabaseName) == 0;
}

// ERROR_SUCCESS, or why these arguments open no database.
DWORD CheckOpening(const CEGUID* volume, const CEOID* oid, LPCWSTR name, CEPROPID sortOrder) {
    if (!volume || !oid || !IsKnownVolume(*volume) || sortOrder != 0)
        return ERROR_INVALID_PARAMETER;
    return NamesDatabase(*oid, name) ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

// Where a seek leads; behind the last record when it leads to none. `value` counts records, which
// CEDB_SEEK_CURRENT takes as signed whatever the width of the argument.
std::size_t SeekTarget(const Database& database, DWORD seekType, DWORD_PTR value) {
    const auto count = static_cast<LONGLONG>(database.records.size());
    const auto steps = static_cast<DWORD>(value);
    LONGLONG target = count;
    if (seekType == CEDB_SEEK_CEOID) target = LONGLONG{steps} - kFirstRecordOid;
    if (seekType == CEDB_SEEK_BEGINNING) target = steps;
    if (seekType == CEDB_SEEK_END) target = count - 1 - LONGLONG{steps};
    if (seekType == CEDB_SEEK_CURRENT)
        target = static_cast<LONGLONG>(database.position) + static_cast<LONG>(steps);
    return static_cast<std::size_t>(target < 0 ? count : std::min(target, count));
}

bool IsPositionSeek(DWORD seekType) {
    return seekType == CEDB_SEEK_CEOID || seekType == CEDB_SEEK_BEGINNING ||
           seekType == CEDB_SEEK_END || seekType == CEDB_SEEK_CURRENT;
}

CEPROPVAL ReadProperty(const CategoryRecord& record, CEPROPID id) {
    CEPROPVAL property = {};
    property.propid = id;
    const auto& number = id == kNumberProperty ? record.number : record.flag;
    if (id == kNameProperty && record.name)
        property.val.lpwstr = reinterpret_cast<LPWSTR>(const_cast<char16_t*>(record.name->c_str()));
    else if ((id == kNumberProperty || id == kFlagProperty) && number)
        property.val.iVal = *number;
    else
        property.wFlags = CEDB_PROPNOTFOUND;
    return property;
}

std::vector<CEPROPVAL> ReadProperties(const CategoryRecord& record, std::span<const CEPROPID> ids) {
    std::vector<CEPROPVAL> properties;
    for (const CEPROPID id : ids)
        properties.push_back(ReadProperty(record, id));
    return properties;
}

bool HasText(const CEPROPVAL& property) {
    return LOWORD(property.propid) == CEVT_LPWSTR && property.val.lpwstr;
}

std::size_t TextBytes(const CEPROPVAL& property) {
    return HasText(property) ? (wcslen(property.val.lpwstr) + 1) * sizeof(wchar_t) : 0;
}

// Where the caller wants a record.
struct ReadBuffer {
    LPBYTE* bytes;
    DWORD& size;
    bool mayGrow;
    HANDLE heap;

    // Makes room for so many bytes. ERROR_SUCCESS, or why there is none.
    [[nodiscard]] DWORD MakeRoom(std::size_t needed) const {
        if (*bytes && size >= needed) return ERROR_SUCCESS;
        if (!mayGrow) return ERROR_INSUFFICIENT_BUFFER;
        void* room = heap ? HeapAlloc(heap, 0, needed) : LocalAlloc(LMEM_FIXED, needed);
        if (!room) return ERROR_NOT_ENOUGH_MEMORY;
        if (*bytes && heap) HeapFree(heap, 0, *bytes);
        if (*bytes && !heap) LocalFree(*bytes);
        *bytes = static_cast<LPBYTE>(room);
        return ERROR_SUCCESS;
    }

    // The properties in their order, then their texts, in one block.
    [[nodiscard]] DWORD Write(std::span<CEPROPVAL> properties) const {
        const std::size_t tableBytes = properties.size_bytes();
        std::size_t needed = tableBytes;
        for (const CEPROPVAL& property : properties)
            needed += TextBytes(property);
        const DWORD result = MakeRoom(needed);
        size = static_cast<DWORD>(needed);
        if (result != ERROR_SUCCESS) return result;
        LPBYTE text = *bytes + tableBytes;
        for (CEPROPVAL& property : properties) {
            const std::size_t length = TextBytes(property);
            if (length == 0) continue;
            memcpy(text, property.val.lpwstr, length);
            property.val.lpwstr = reinterpret_cast<LPWSTR>(text);
            text += length;
        }
        memcpy(*bytes, properties.data(), tableBytes);
        return ERROR_SUCCESS;
    }
};

// The properties asked for; without ids all that the record has, whose number `count` then tells.
std::vector<CEPROPVAL> SelectProperties(const CategoryRecord& record, const CEPROPID* ids,
                                        WORD& count) {
    if (ids) return ReadProperties(record, {ids, count});
    auto properties = ReadProperties(record, kAllProperties);
    std::erase_if(properties, [](const CEPROPVAL& p) { return p.wFlags & CEDB_PROPNOTFOUND; });
    count = static_cast<WORD>(properties.size());
    return properties;
}

DWORD ReadCurrent(Database& database, const CEPROPID* ids, WORD& count, const ReadBuffer& buffer) {
    if (database.position >= database.records.size()) return ERROR_NO_MORE_ITEMS;
    auto properties = SelectProperties(database.records[database.position], ids, count);
    const DWORD result = buffer.Write(properties);
    if (result == ERROR_SUCCESS && database.stepsOnRead) ++database.position;
    return result;
}

} // namespace

extern "C" {

void WINAPI StandInSetObjectStore(LPCWSTR newFolder) {
    const LockScope scope;
    folder = newFolder && *newFolder ? newFolder : kDefaultFolder;
}

HANDLE WINAPI CeOpenDatabaseEx(PCEGUID volume, PCEOID oid, LPWSTR name, CEPROPID sortOrder,
                               DWORD flags, CENOTIFYREQUEST*) {
    const DWORD refusal = CheckOpening(volume, oid, name, sortOrder);
    if (refusal != ERROR_SUCCESS) {
        SetLastError(refusal);
        return INVALID_HANDLE_VALUE;
    }
    const LockScope scope;
    const auto bytes = ReadWholeFile((folder + kDatabaseName + L".txt").c_str(), kMaxDatabaseFile);
    if (!bytes) {
        if (GetLastError() == ERROR_PATH_NOT_FOUND) SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    openDatabases.push_back(std::make_unique<Database>(
        Database{ParseCategoryText(text), (flags & CEDB_AUTOINCREMENT) != 0}));
    *oid = kDatabaseOid;
    return openDatabases.back().get();
}

// Counts from the first record for CEDB_SEEK_BEGINNING and back from the last for CEDB_SEEK_END. A
// seek that finds nothing leaves the pointer behind the last record, with ERROR_SEEK.
CEOID WINAPI CeSeekDatabase(HANDLE database, DWORD seekType, DWORD_PTR value, LPDWORD index) {
    const LockScope scope;
    const auto found = FindDatabase(database);
    if (found == openDatabases.end() || !IsPositionSeek(seekType)) {
        SetLastError(found == openDatabases.end() ? ERROR_INVALID_HANDLE : ERROR_INVALID_PARAMETER);
        return 0;
    }
    Database& opened = **found;
    opened.position = SeekTarget(opened, seekType, value);
    if (opened.position == opened.records.size()) {
        SetLastError(ERROR_SEEK);
        return 0;
    }
    if (index) *index = static_cast<DWORD>(opened.position);
    return OidOf(opened.position);
}

// Steps to the next record only where the database was opened with CEDB_AUTOINCREMENT; without, the
// caller seeks. Behind the last record: 0 with ERROR_NO_MORE_ITEMS.
// The signature is the platform's.
// NOLINTBEGIN(readability-non-const-parameter)
CEOID WINAPI CeReadRecordPropsEx(HANDLE database, DWORD flags, LPWORD propCount, CEPROPID* propIds,
                                 LPBYTE* buffer, LPDWORD bufferSize, HANDLE heap) {
    const LockScope scope;
    const auto found = FindDatabase(database);
    if (found == openDatabases.end() || !propCount || !buffer || !bufferSize) {
        SetLastError(found == openDatabases.end() ? ERROR_INVALID_HANDLE : ERROR_INVALID_PARAMETER);
        return 0;
    }
    const CEOID oid = OidOf((*found)->position);
    const ReadBuffer target{buffer, *bufferSize, (flags & CEDB_ALLOWREALLOC) != 0, heap};
    const DWORD result = ReadCurrent(**found, propIds, *propCount, target);
    if (result == ERROR_SUCCESS) return oid;
    SetLastError(result);
    return 0;
}
// NOLINTEND(readability-non-const-parameter)

BOOL WINAPI CoreCloseHandle(HANDLE handle) {
    {
        const LockScope scope;
        const auto found = FindDatabase(handle);
        if (found != openDatabases.end()) {
            openDatabases.erase(found);
            return TRUE;
        }
    }
    return CloseHandle(handle);
}

} // extern "C"
