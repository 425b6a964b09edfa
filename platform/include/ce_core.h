// Calls and constants of the device's core library that a PC's headers do not declare.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Draws a bitmap, leaving out the pixels of one colour. `source` is an HDC or an HBITMAP.
BOOL WINAPI TransparentImage(HDC target, LONG x, LONG y, LONG width, LONG height, HANDLE source,
                             LONG sourceX, LONG sourceY, LONG sourceWidth, LONG sourceHeight,
                             COLORREF transparent);

// Loads a .bmp file as a device-independent bitmap that the caller deletes; null when it cannot.
HBITMAP WINAPI SHLoadDIBitmap(LPCWSTR path);

// The object store's database calls.
typedef DWORD CEOID, *PCEOID;
typedef DWORD CEPROPID;
typedef GUID CEGUID, *PCEGUID;
typedef struct CENOTIFYREQUEST CENOTIFYREQUEST;

typedef struct {
    DWORD dwCount;
    LPBYTE lpb;
} CEBLOB;

typedef union {
    short iVal;
    USHORT uiVal;
    long lVal;
    ULONG ulVal;
    FILETIME filetime;
    LPWSTR lpwstr;
    CEBLOB blob;
    BOOL boolVal;
    double dblVal;
} CEVALUNION;

typedef struct {
    CEPROPID propid; // High word: the property's id; low word: its type.
    WORD wLenData;
    WORD wFlags;
    CEVALUNION val;
} CEPROPVAL, *PCEPROPVAL;

#define CEVT_I2 2
#define CEVT_I4 3
#define CEVT_R8 5
#define CEVT_BOOL 11
#define CEVT_UI2 18
#define CEVT_UI4 19
#define CEVT_LPWSTR 31
#define CEVT_FILETIME 64
#define CEVT_BLOB 65

#define CEDB_PROPNOTFOUND 0x0100
#define CEDB_PROPDELETE 0x0200

#define CEDB_SEEK_CEOID 0x01
#define CEDB_SEEK_BEGINNING 0x02
#define CEDB_SEEK_END 0x04
#define CEDB_SEEK_CURRENT 0x08
#define CEDB_SEEK_VALUESMALLER 0x10
#define CEDB_SEEK_VALUEFIRSTEQUAL 0x20
#define CEDB_SEEK_VALUEGREATER 0x40
#define CEDB_SEEK_VALUENEXTEQUAL 0x80

#define CEDB_ALLOWREALLOC 0x01
#define CEDB_AUTOINCREMENT 0x01

#define CREATE_SYSTEMGUID(guid) (memset((guid), 0, sizeof(CEGUID)))
#define CREATE_INVALIDGUID(guid) (memset((guid), -1, sizeof(CEGUID)))

// Opens a database by name when *oid is 0; INVALID_HANDLE_VALUE when there is none.
HANDLE WINAPI CeOpenDatabaseEx(PCEGUID volume, PCEOID oid, LPWSTR name, CEPROPID sortOrder,
                               DWORD flags, CENOTIFYREQUEST* request);
// `value` is a position, an id or a pointer to a CEPROPVAL, by the kind of seek; hence
// pointer-wide. Answers the record's id, or 0.
CEOID WINAPI CeSeekDatabase(HANDLE database, DWORD seekType, DWORD_PTR value, LPDWORD index);
// With CEDB_ALLOWREALLOC the buffer is LocalAlloc'd and may change even on failure.
CEOID WINAPI CeReadRecordPropsEx(HANDLE database, DWORD flags, LPWORD propCount, CEPROPID* propIds,
                                 LPBYTE* buffer, LPDWORD bufferSize, HANDLE heap);

#ifdef __cplusplus
}
#endif
