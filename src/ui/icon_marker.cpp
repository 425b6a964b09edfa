#include "ui/icon_marker.h"

#include "shell/services/application.h"
#include "shell/services/window_class.h"
#include "ui/symbol_image.h"

namespace {
constexpr wchar_t kClass[] = L"IconMarkerClass";

void Paint(HWND window) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    RECT client{};
    GetClientRect(window, &client);
    const auto bitmap = static_cast<UINT>(GetWindowLongPtr(window, GWLP_USERDATA));
    if (bitmap) DrawSymbol(dc, bitmap, client);
    EndPaint(window, &paint);
}

LRESULT PassToParent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    HWND parent = GetParent(window);
    MapWindowPoints(window, parent, &point, 1);
    return SendMessage(parent, message, wParam, MAKELPARAM(point.x, point.y));
}

LRESULT CALLBACK MarkerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Paint(window);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
        return PassToParent(window, message, wParam, lParam);
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}
} // namespace

bool IconMarker::Create(HWND parent) {
    RegisterWindowClass(application.instance, MarkerProc, nullptr, kClass, WHITE_BRUSH);
    window_ = CreateControl(parent, kClass, L"", WS_BORDER, 0, {}, nullptr);
    return window_ != nullptr;
}

void IconMarker::Place(const ControlPlace& place) const {
    if (window_) MoveWindow(window_, place.x, place.y, place.width, place.height, TRUE);
}

void IconMarker::Show(UINT bitmap) const {
    if (!window_) return;
    SetWindowLongPtr(window_, GWLP_USERDATA, static_cast<LONG_PTR>(bitmap));
    InvalidateRect(window_, nullptr, TRUE);
}
