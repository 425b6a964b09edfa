// The structures that cross between the program and the system are laid out as on the device. What
// is proven here is proven for every source, since all read the same headers.

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>
#include <imaging.h>
#include <shellapi.h>

#include <cstddef>
#include <cstdint>

// What the processor's own convention leaves open.
static_assert(sizeof(void*) == 4 && sizeof(long) == 4 && sizeof(wchar_t) == 2);
static_assert(alignof(int64_t) == 8 && alignof(double) == 8);
enum class AnyEnumeration { One };
static_assert(sizeof(AnyEnumeration) == 4);

// Windows and messages.
static_assert(sizeof(WNDCLASS) == 40 && offsetof(WNDCLASS, lpszClassName) == 36);
static_assert(sizeof(CREATESTRUCT) == 48 && offsetof(CREATESTRUCT, lpCreateParams) == 0);
static_assert(sizeof(MSG) == 28 && offsetof(MSG, pt) == 20);
static_assert(sizeof(DRAWITEMSTRUCT) == 48 && offsetof(DRAWITEMSTRUCT, itemData) == 44);
static_assert(sizeof(MEASUREITEMSTRUCT) == 24);
static_assert(sizeof(DLGTEMPLATE) == 18 && sizeof(DLGITEMTEMPLATE) == 18);

// Drawing.
static_assert(sizeof(PAINTSTRUCT) == 64 && offsetof(PAINTSTRUCT, rcPaint) == 8);
static_assert(sizeof(LOGFONT) == 92 && offsetof(LOGFONT, lfFaceName) == 28);
static_assert(sizeof(TEXTMETRIC) == 60 && offsetof(TEXTMETRIC, tmFirstChar) == 44);
static_assert(sizeof(BITMAP) == 24 && sizeof(BITMAPINFOHEADER) == 40 && sizeof(BITMAPINFO) == 44);
static_assert(sizeof(ICONINFO) == 20);

// Common controls.
static_assert(sizeof(INITCOMMONCONTROLSEX) == 8);
static_assert(sizeof(NMHDR) == 12);
static_assert(sizeof(LVCOLUMN) == 32 && offsetof(LVCOLUMN, pszText) == 12);
static_assert(sizeof(NMLISTVIEW) == 44 && offsetof(NMLISTVIEW, lParam) == 40);
static_assert(sizeof(NMCUSTOMDRAW) == 48 && offsetof(NMCUSTOMDRAW, dwItemSpec) == 36);
static_assert(sizeof(TCITEM) == 28 && offsetof(TCITEM, pszText) == 12);
static_assert(sizeof(TBBUTTON) == 20 && offsetof(TBBUTTON, dwData) == 12);
// These three are longer here than on the device, whose last members are named. The system passes
// and fills what it knows of them, which lies in front.
static_assert(offsetof(LVITEM, lParam) == 32 && offsetof(LVITEM, iIndent) == 36);
static_assert(offsetof(NMLVDISPINFO, item) == 12);
static_assert(offsetof(NMLVCUSTOMDRAW, clrText) == 48 && offsetof(NMLVCUSTOMDRAW, iSubItem) == 56);

// Files, time, system.
static_assert(sizeof(SYSTEMTIME) == 16 && sizeof(FILETIME) == 8);
static_assert(sizeof(WIN32_FIND_DATA) == 560 && offsetof(WIN32_FIND_DATA, cFileName) == 40);
static_assert(sizeof(OSVERSIONINFO) == 276 && offsetof(OSVERSIONINFO, szCSDVersion) == 20);
static_assert(sizeof(SHFILEINFO) == 692 && offsetof(SHFILEINFO, szDisplayName) == 12);
static_assert(sizeof(CEPROPVAL) == 16 && offsetof(CEPROPVAL, val) == 8 && sizeof(CEGUID) == 16);

// The shell and its pictures.
static_assert(sizeof(SHMENUBARINFO) == 36 && offsetof(SHMENUBARINFO, hwndMB) == 28);
static_assert(sizeof(SHINITDLGINFO) == 12 && sizeof(SHACTIVATEINFO) == 12);
static_assert(sizeof(ImageInfo) == 64 && offsetof(ImageInfo, Xdpi) == 40);
static_assert(sizeof(BitmapData) == 24 && offsetof(BitmapData, Scan0) == 16);
