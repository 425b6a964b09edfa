#include <gtest/gtest.h>

#include "temp_file.h"

#include <stand_in.h>

#include <vector>

namespace {

constexpr CEPROPID kName = MAKELONG(CEVT_LPWSTR, 0x4001);
constexpr CEPROPID kNumber = MAKELONG(CEVT_I2, 0x4002);
constexpr CEPROPID kFlag = MAKELONG(CEVT_I2, 0x4005);
constexpr SHORT kNone = 0x7ABC;

class ObjectStoreTest : public testing::Test {
  protected:
    ObjectStoreTest() { StandInSetObjectStore(file_.Folder()); }
    ~ObjectStoreTest() override {
        Close();
        LocalFree(buffer_);
        StandInSetObjectStore(nullptr);
    }

    void Open(std::string_view text, DWORD flags = 0) {
        Close();
        file_.Write(text);
        CEGUID volume;
        CREATE_INVALIDGUID(&volume);
        CEOID oid = 0;
        wchar_t name[] = L"\\Categories Database";
        database_ = CeOpenDatabaseEx(&volume, &oid, name, 0, flags, nullptr);
        ASSERT_NE(database_, INVALID_HANDLE_VALUE);
        EXPECT_NE(oid, 0u);
    }
    void Close() {
        if (database_ != INVALID_HANDLE_VALUE) CloseHandle(database_);
        database_ = INVALID_HANDLE_VALUE;
    }
    CEOID Read(std::vector<CEPROPID> ids) {
        WORD count = static_cast<WORD>(ids.size());
        return CeReadRecordPropsEx(database_, CEDB_ALLOWREALLOC, &count, ids.data(), &buffer_,
                                   &size_, nullptr);
    }
    CEOID SeekFirst() {
        DWORD index = 99;
        return CeSeekDatabase(database_, CEDB_SEEK_BEGINNING, 0, &index);
    }
    const CEPROPVAL& Property(int place) const {
        return reinterpret_cast<const CEPROPVAL*>(buffer_)[place];
    }
    SHORT Number(int place) const {
        return Property(place).wFlags == CEDB_PROPNOTFOUND ? kNone : Property(place).val.iVal;
    }

    TempFile file_{L"Categories Database.txt"};
    HANDLE database_ = INVALID_HANDLE_VALUE;
    LPBYTE buffer_ = nullptr;
    DWORD size_ = 0;
};

TEST_F(ObjectStoreTest, ReadsThePropertiesAskedForInTheirOrder) {
    Open("3\t1\tGesch\xC3\xA4"
         "ft\r\n");
    ASSERT_NE(Read({kName, kFlag, kNumber, MAKELONG(CEVT_I2, 0x4999)}), 0u);
    EXPECT_EQ(Property(0).propid, kName);
    EXPECT_STREQ(Property(0).val.lpwstr, L"Gesch\u00E4ft");
    const auto text = reinterpret_cast<LPBYTE>(Property(0).val.lpwstr);
    EXPECT_TRUE(text > buffer_ && text < buffer_ + LocalSize(buffer_)) << "in the same block";
    EXPECT_EQ(Number(1), 1);
    EXPECT_EQ(Number(2), 3);
    EXPECT_EQ(Number(3), kNone);
}

TEST_F(ObjectStoreTest, ReadingStepsOnlyWithAutoIncrement) {
    for (const bool steps : {true, false}) {
        Open("1\n2\n", steps ? CEDB_AUTOINCREMENT : 0);
        EXPECT_NE(SeekFirst(), 0u);
        for (const int number : {1, 2}) {
            ASSERT_NE(Read({kNumber}), 0u);
            EXPECT_EQ(Number(0), steps ? number : 1);
        }
        EXPECT_EQ(Read({kNumber}) == 0, steps);
    }
}

} // namespace
