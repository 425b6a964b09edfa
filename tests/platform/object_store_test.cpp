#include <gtest/gtest.h>

#include "temp_file.h"

#include <stand_in.h>

#include <cstring>
#include <vector>

namespace {

constexpr CEPROPID kName = MAKELONG(CEVT_LPWSTR, 0x4001);
constexpr CEPROPID kNumber = MAKELONG(CEVT_I2, 0x4002);
constexpr CEPROPID kFlag = MAKELONG(CEVT_I2, 0x4005);

class ObjectStoreTest : public testing::Test {
  protected:
    ObjectStoreTest() { StandInSetObjectStore(file_.Folder()); }
    ~ObjectStoreTest() override {
        if (database_ != INVALID_HANDLE_VALUE) CloseHandle(database_);
        LocalFree(buffer_);
        StandInSetObjectStore(nullptr);
    }

    void Open(std::string_view text, DWORD flags = 0) {
        file_.Write(text);
        CEGUID volume;
        CREATE_INVALIDGUID(&volume);
        CEOID oid = 0;
        wchar_t name[] = L"\\Categories Database";
        database_ = CeOpenDatabaseEx(&volume, &oid, name, 0, flags, nullptr);
        ASSERT_NE(database_, INVALID_HANDLE_VALUE);
        EXPECT_NE(oid, 0u);
    }
    CEOID Read(std::vector<CEPROPID> ids) {
        WORD count = static_cast<WORD>(ids.size());
        return CeReadRecordPropsEx(database_, CEDB_ALLOWREALLOC, &count, ids.data(), &buffer_,
                                   &size_, nullptr);
    }
    CEOID Seek(DWORD type, DWORD_PTR value) {
        index_ = 99;
        return CeSeekDatabase(database_, type, value, &index_);
    }
    const CEPROPVAL* Properties() const { return reinterpret_cast<const CEPROPVAL*>(buffer_); }

    TempFile file_{L"Categories Database.txt"};
    HANDLE database_ = INVALID_HANDLE_VALUE;
    LPBYTE buffer_ = nullptr;
    DWORD size_ = 0;
    DWORD index_ = 0;
};

TEST_F(ObjectStoreTest, ReadsThePropertiesAskedForInTheirOrder) {
    Open("\xEF\xBB\xBF# number, flag, name\r\n3\t1\tGesch\xC3\xA4"
         "ft\r\n\r\n\t0\t\n");
    ASSERT_NE(Read({kName, kFlag, kNumber, MAKELONG(CEVT_I2, 0x4999)}), 0u);
    EXPECT_EQ(Properties()[0].propid, kName);
    EXPECT_STREQ(Properties()[0].val.lpwstr, L"Gesch\u00E4ft");
    const auto text = reinterpret_cast<LPBYTE>(Properties()[0].val.lpwstr);
    EXPECT_TRUE(text > buffer_ && text < buffer_ + LocalSize(buffer_)) << "in the same block";
    EXPECT_EQ(Properties()[1].val.iVal, 1);
    EXPECT_EQ(Properties()[2].val.iVal, 3);
    EXPECT_EQ(Properties()[2].wFlags, 0);
    EXPECT_EQ(Properties()[3].wFlags, CEDB_PROPNOTFOUND);

    ASSERT_NE(Seek(CEDB_SEEK_CURRENT, 1), 0u);
    ASSERT_NE(Read({kNumber, kFlag, kName}), 0u);
    EXPECT_EQ(Properties()[0].wFlags, CEDB_PROPNOTFOUND);
    EXPECT_EQ(Properties()[1].wFlags, 0);
    EXPECT_EQ(Properties()[2].wFlags, CEDB_PROPNOTFOUND);

    WORD count = 0;
    ASSERT_NE(CeReadRecordPropsEx(database_, CEDB_ALLOWREALLOC, &count, nullptr, &buffer_, &size_,
                                  nullptr),
              0u);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(Properties()[0].propid, kFlag);
}

TEST_F(ObjectStoreTest, SeeksToRecordsAndNowhereElse) {
    Open("1\t0\ta\n2\t0\tb\n3\t0\tc\n");
    const CEOID first = Read({kNumber});
    const CEOID second = Seek(CEDB_SEEK_CURRENT, 1);
    const CEOID third = Seek(CEDB_SEEK_END, 0);
    EXPECT_EQ(index_, 2u);
    const struct {
        DWORD type;
        DWORD_PTR value;
        CEOID found;
    } kCases[] = {{CEDB_SEEK_BEGINNING, 0, first},
                  {CEDB_SEEK_CURRENT, 2, third},
                  {CEDB_SEEK_CURRENT, static_cast<DWORD>(-1), second},
                  {CEDB_SEEK_CURRENT, static_cast<DWORD_PTR>(-1), first},
                  {CEDB_SEEK_END, 1, second},
                  {CEDB_SEEK_CEOID, third, third},
                  {CEDB_SEEK_CURRENT, 0, third},
                  {CEDB_SEEK_CURRENT, 1, 0},
                  {CEDB_SEEK_CURRENT, static_cast<DWORD>(-3), first},
                  {CEDB_SEEK_CURRENT, static_cast<DWORD>(-1), 0},
                  {CEDB_SEEK_BEGINNING, 3, 0},
                  {CEDB_SEEK_BEGINNING, 0xFFFFFFFF, 0},
                  {CEDB_SEEK_END, 3, 0},
                  {CEDB_SEEK_CEOID, third + 1, 0},
                  {CEDB_SEEK_CEOID, 0, 0}};
    for (const auto& [type, value, found] : kCases) {
        SetLastError(ERROR_SUCCESS);
        EXPECT_EQ(Seek(type, value), found) << type << " " << value;
        EXPECT_EQ(Read({kNumber}), found) << type << " " << value;
        if (found) {
            EXPECT_EQ(Properties()[0].val.iVal, SHORT(found - first + 1));
        } else {
            EXPECT_EQ(GetLastError(), DWORD{ERROR_NO_MORE_ITEMS});
        }
    }
    EXPECT_EQ(Seek(CEDB_SEEK_BEGINNING, 7), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SEEK});
    EXPECT_EQ(Seek(CEDB_SEEK_VALUEGREATER, 0), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
}

TEST_F(ObjectStoreTest, ReadingStepsOnlyWithAutoIncrement) {
    Open("1\n2\n", CEDB_AUTOINCREMENT);
    for (const SHORT number : {SHORT{1}, SHORT{2}}) {
        ASSERT_NE(Read({kNumber}), 0u);
        EXPECT_EQ(Properties()[0].val.iVal, number);
    }
    EXPECT_EQ(Read({kNumber}), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NO_MORE_ITEMS});
}

TEST_F(ObjectStoreTest, AFixedBufferMustHoldTheRecord) {
    Open("1\t0\tname\n");
    BYTE room[256];
    LPBYTE buffer = room;
    WORD count = 1;
    CEPROPID id = kName;
    const DWORD needed = sizeof(CEPROPVAL) + 5 * sizeof(wchar_t);
    DWORD size = needed - 1;
    EXPECT_EQ(CeReadRecordPropsEx(database_, 0, &count, &id, &buffer, &size, nullptr), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INSUFFICIENT_BUFFER});
    EXPECT_EQ(size, needed);
    EXPECT_NE(CeReadRecordPropsEx(database_, 0, &count, &id, &buffer, &size, nullptr), 0u);
    EXPECT_EQ(buffer, room);
    EXPECT_STREQ(reinterpret_cast<CEPROPVAL*>(buffer)->val.lpwstr, L"name");
}

TEST_F(ObjectStoreTest, OpensOnlyTheDatabaseThatIsThere) {
    file_.Write("1\n");
    const auto open = [](BYTE volumeByte, CEOID oid, std::wstring name, CEPROPID order) {
        CEGUID volume;
        memset(&volume, volumeByte, sizeof volume);
        SetLastError(ERROR_SUCCESS);
        const HANDLE database = CeOpenDatabaseEx(&volume, &oid, name.data(), order, 0, nullptr);
        return database != INVALID_HANDLE_VALUE && CloseHandle(database) ? 0 : GetLastError();
    };
    EXPECT_EQ(open(0, 0, L"\\Categories Database", 0), 0u);
    EXPECT_EQ(open(0xFF, 0, L"\\Categories Database", 0), 0u);
    EXPECT_EQ(open(0x11, 0, L"\\Categories Database", 0), DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(open(0, 0, L"\\Categories Database", kNumber), DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(open(0, 0, L"\\Contacts Database", 0), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(open(0, 5, L"\\Categories Database", 0), DWORD{ERROR_FILE_NOT_FOUND});
    StandInSetObjectStore(L"\\no such folder");
    EXPECT_EQ(open(0, 0, L"\\Categories Database", 0), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(ObjectStoreTest, CloseHandleTakesEveryHandle) {
    Open("1\n");
    EXPECT_TRUE(CloseHandle(database_));
    EXPECT_EQ(Read({kNumber}), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_HANDLE});
    database_ = INVALID_HANDLE_VALUE;
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    EXPECT_TRUE(CloseHandle(event));
    EXPECT_EQ(WaitForSingleObject(event, 0), WAIT_FAILED);
}

TEST_F(ObjectStoreTest, TakesAnyLine) {
    constexpr SHORT kNone = 0x7ABC;
    const struct {
        std::string_view line;
        SHORT number, flag;
        const wchar_t* name;
    } kCases[] = {
        {"7\t0\tWork", 7, 0, L"Work"},
        {"-32768\t32767\tx", -32768, 32767, L"x"},
        {"32768\t-32769\tx", kNone, kNone, L"x"},
        {"99999999999999999999\t1", kNone, 1, nullptr},
        {"7a\t \tx", kNone, kNone, L"x"},
        {"+7\t0x1\tx", kNone, kNone, L"x"},
        {"7", 7, kNone, nullptr},
        {"\t\tname only", kNone, kNone, L"name only"},
        {"1\t2\ta\tb # c", 1, 2, L"a\tb # c"},
        {"1\t2\t\xF0\x9F\x98\x80\xE2\x82\xAC", 1, 2, L"\U0001F600\u20AC"},
        // Cut off, overlong, a surrogate, beyond the last character, a lone continuation.
        {"1\t2\t\xE2\x82", 1, 2, L"\uFFFD\uFFFD"},
        {"1\t2\t\xC0\xAF", 1, 2, L"\uFFFD\uFFFD"},
        {"1\t2\t\xE0\x80\xAFz", 1, 2, L"\uFFFD\uFFFD\uFFFDz"},
        {"1\t2\t\xED\xA0\x80", 1, 2, L"\uFFFD\uFFFD\uFFFD"},
        {"1\t2\t\xF4\x90\x80\x80", 1, 2, L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"1\t2\t\x80\xFF", 1, 2, L"\uFFFD\uFFFD"},
    };
    for (const auto& [line, number, flag, name] : kCases) {
        Open("\r\n \t\n#" + std::string(line) + "\n" + std::string(line) + "\r\n");
        ASSERT_NE(Read({kNumber, kFlag, kName}), 0u) << line;
        const CEPROPVAL* properties = Properties();
        for (int i = 0; i < 2; ++i) {
            const bool isFound = properties[i].wFlags != CEDB_PROPNOTFOUND;
            EXPECT_EQ(isFound ? properties[i].val.iVal : kNone, i == 0 ? number : flag) << line;
        }
        EXPECT_STREQ(properties[2].val.lpwstr, name) << line;
        EXPECT_EQ(Seek(CEDB_SEEK_CURRENT, 1), 0u) << "one record, of " << line;
        CloseHandle(database_);
    }
    for (const char* text : {"", "\xEF\xBB\xBF", "#", "\n\r\n \t\n\t\t\n#\n"}) {
        Open(text);
        EXPECT_EQ(Seek(CEDB_SEEK_BEGINNING, 0), 0u) << text;
        EXPECT_EQ(Read({kNumber}), 0u) << text;
        CloseHandle(database_);
    }
    database_ = INVALID_HANDLE_VALUE;
}

} // namespace
