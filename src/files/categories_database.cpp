#include "files/categories_database.h"

#include <windows.h>

#include <iterator>

namespace {

constexpr CEPROPID kNumber = 0x40020000 | CEVT_I2;
constexpr CEPROPID kName = 0x40010000 | CEVT_LPWSTR;
constexpr CEPROPID kFlag = 0x40050000 | CEVT_I2;
constexpr uint16_t kNoNumber = 0xFFFF;

struct CloseDatabase {
    HANDLE database;
    ~CloseDatabase() { CloseHandle(database); }
};

bool IsFound(const CEPROPVAL& property, CEPROPID id) {
    return property.propid == id && !(property.wFlags & CEDB_PROPNOTFOUND);
}

CategoryRecord RecordOf(const CEPROPVAL* properties, WORD count) {
    CategoryRecord record{{}, kNoNumber, false};
    for (WORD index = 0; index < count; ++index) {
        const CEPROPVAL& property = properties[index];
        if (IsFound(property, kNumber)) record.number = static_cast<uint16_t>(property.val.iVal);
        if (IsFound(property, kFlag)) record.flag = property.val.iVal == 1;
        if (IsFound(property, kName) && property.val.lpwstr != nullptr) {
            record.name.Assign(property.val.lpwstr);
        }
    }
    return record;
}

// Reads the record that comes next; false when there is none.
bool ReadRecord(HANDLE database, CategoryRecord& record) {
    CEPROPID ids[] = {kNumber, kName, kFlag};
    WORD count = std::size(ids);
    LPBYTE buffer = nullptr;
    DWORD size = 0;
    const bool found =
        CeReadRecordPropsEx(database, CEDB_ALLOWREALLOC, &count, ids, &buffer, &size, nullptr) != 0;
    const void* properties = buffer; // Aligned for them, though it is bytes by type.
    record = RecordOf(static_cast<const CEPROPVAL*>(properties),
                      found && buffer != nullptr ? count : WORD{0});
    // The call may leave a buffer behind even when it fails.
    if (buffer != nullptr) LocalFree(buffer);
    return found;
}

} // namespace

std::vector<CategoryRecord> ReadCategoriesDatabase() {
    std::vector<CategoryRecord> records;
    CEGUID objectStore;
    CREATE_SYSTEMGUID(&objectStore);
    CEOID oid = 0;
    wchar_t name[] = L"\\Categories Database";
    // By the order of the records: each read then goes on to the next.
    HANDLE database = CeOpenDatabaseEx(&objectStore, &oid, name, 0, CEDB_AUTOINCREMENT, nullptr);
    if (database == INVALID_HANDLE_VALUE) return records;
    const CloseDatabase closes{database};
    DWORD index = 0;
    if (CeSeekDatabase(database, CEDB_SEEK_BEGINNING, 0, &index) == 0) return records;
    for (CategoryRecord record{}; ReadRecord(database, record);) {
        if (!record.name.IsEmpty() && record.number != kNoNumber) records.push_back(record);
    }
    return records;
}
