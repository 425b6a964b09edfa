// The object store's database of categories, which can be read: the text file that the stand-in
// reads, in the folder that the tests name.
#include <cstring>
#include <fstream>
#include <iterator>

#include "handles.h"
#include "host.h"
#include "platform/coredll/category_text.h"

namespace {

constexpr char16_t kName[] = u"\\Categories Database";
constexpr char16_t kDefaultFolder[] = u"\\Object Store";
constexpr uint32_t kOid = 0x01000001;
constexpr uint32_t kFirstRecord = 0x02000001;
constexpr uint32_t kSeekFailed = 25;
constexpr uint32_t kFromBeginning = 2;
constexpr uint16_t kNotFound = 0x0100;
// Number and kind of the properties.
constexpr uint32_t kNameProperty = 0x4001001F;
constexpr uint32_t kNumberProperty = 0x40020002;
constexpr uint32_t kFlagProperty = 0x40050002;

struct Property {
    uint32_t id;
    uint16_t length, flags;
    uint32_t value[2];
};
static_assert(sizeof(Property) == 16);

struct Database final : Object {
    static constexpr Kind kKind = Kind::Database;
    explicit Database(std::vector<CategoryRecord> read) : Object(kKind), records(std::move(read)) {}

    std::vector<CategoryRecord> records;
    size_t position = 0;
};

std::u16string folder = kDefaultFolder;

void StandInSetObjectStore(const char16_t* newFolder) {
    folder = newFolder && *newFolder ? newFolder : kDefaultFolder;
}

uint32_t CeOpenDatabaseEx(void*, uint32_t* oid, const char16_t* name, uint32_t, uint32_t, void*) {
    if (Lower(name) != Lower(kName)) return Failed(kFileNotFound, kInvalidHandle);
    std::ifstream stream(HostPathOf(folder + kName + u".txt"), std::ios::binary);
    if (!stream) return Failed(kFileNotFound, kInvalidHandle);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    *oid = kOid;
    return handles.Add(std::make_shared<Database>(ParseCategoryText(text)));
}

uint32_t CeSeekDatabase(uint32_t handle, uint32_t kind, uint32_t position, uint32_t* index) {
    auto* database = Opened<Database>(handle);
    if (!database || kind != kFromBeginning) return Failed(kInvalidParameter, 0U);
    database->position = std::min<size_t>(position, database->records.size());
    if (database->position == database->records.size()) return Failed(kSeekFailed, 0U);
    if (index) *index = position;
    return kFirstRecord + position;
}

// A property of a record; a text goes behind `texts`, which it moves on.
Property PropertyOf(const CategoryRecord& record, uint32_t id, uint8_t*& texts) {
    Property property{id, 0, 0, {}};
    const auto& number = id == kNumberProperty ? record.number : record.flag;
    if (id == kNameProperty && record.name) {
        property.value[0] = guest.AddressOf(texts);
        memcpy(texts, record.name->c_str(), 2 * (record.name->size() + 1));
        texts += 2 * (record.name->size() + 1);
    } else if ((id == kNumberProperty || id == kFlagProperty) && number) {
        property.value[0] = static_cast<uint16_t>(*number);
    } else {
        property.flags = kNotFound;
    }
    return property;
}

uint32_t CeReadRecordPropsEx(uint32_t handle, uint32_t, uint16_t* count, const uint32_t* ids,
                             uint32_t* buffer, uint32_t* size, uint32_t) {
    auto* database = Opened<Database>(handle);
    if (!database || !ids) return Failed(kInvalidParameter, 0U);
    if (database->position == database->records.size()) return Failed(kNoMoreItems, 0U);
    const CategoryRecord& record = database->records[database->position++];
    const uint32_t table = *count * static_cast<uint32_t>(sizeof(Property));
    *size = table + (record.name ? 2 * static_cast<uint32_t>(record.name->size() + 1) : 0);
    uint8_t* block = Allocate(*size);
    if (*buffer != 0) Release(guest.At<uint8_t>(*buffer));
    *buffer = guest.AddressOf(block);
    uint8_t* texts = block + table;
    for (uint16_t index = 0; index < *count; ++index) {
        const Property property = PropertyOf(record, ids[index], texts);
        memcpy(block + index * sizeof property, &property, sizeof property);
    }
    return kFirstRecord + static_cast<uint32_t>(database->position) - 1;
}

} // namespace

const std::vector<HostEntry>& ObjectStoreCalls() {
    static const std::vector<HostEntry> entries = {SERVE(StandInSetObjectStore),
                                                   SERVE(CeOpenDatabaseEx), SERVE(CeSeekDatabase),
                                                   SERVE(CeReadRecordPropsEx)};
    return entries;
}
