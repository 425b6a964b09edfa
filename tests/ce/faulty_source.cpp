// What no source of the program may have: the check of sources must find each line. Nothing builds
// it.
#include <windows.h>

#include <commctrl.h>

namespace {
LRESULT Procedure(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}
int EachFont(const LOGFONT*, const TEXTMETRIC*, DWORD, LPARAM) {
    return 1;
}
int CALLBACK Order(LPARAM, LPARAM, LPARAM) {
    return 0;
}
} // namespace

void HandOver(HDC dc, HWND list, wchar_t* text) {
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = Procedure;
    EnumFonts(dc, nullptr, EachFont, 0);
    SetTimer(list, 1, 1, [](HWND, UINT, UINT_PTR, DWORD) {});
    ListView_SortItems(list, Order, 0);
    wsprintf(text, L"%I64d", 1LL);
}
