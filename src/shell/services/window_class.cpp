#include "shell/services/window_class.h"

ATOM RegisterWindowClass(HINSTANCE instance, WNDPROC procedure, HICON icon,
                         const wchar_t* className, int stockBrush) {
    WNDCLASS windowClass{};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hIcon = icon;
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(stockBrush));
    windowClass.lpszClassName = className;
    return RegisterClass(&windowClass);
}
