#include "ui/icon_marker.h"

#include "preview/item_icons.h"
#include "shell/services/application.h"
#include "shell/services/window_class.h"

namespace {
constexpr wchar_t kClass[] = L"IconMarkerClass";

LRESULT PassToParent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    HWND parent = GetParent(window);
    MapWindowPoints(window, parent, &point, 1);
    return SendMessage(parent, message, wParam, MAKELPARAM(point.x, point.y));
}
} // namespace

IconMarker::~IconMarker() {
    if (window_) SetWindowLongPtr(window_, GWLP_USERDATA, 0);
}

bool IconMarker::Create(HWND parent) {
    RegisterWindowClass(application.instance, WindowProc, nullptr, kClass, WHITE_BRUSH);
    window_ = CreateControl(parent, kClass, L"", 0, 0, {}, nullptr);
    if (!window_) return false;
    SetWindowLongPtr(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return true;
}

void IconMarker::Place(const ControlPlace& place) const {
    if (window_) MoveWindow(window_, place.x, place.y, place.width, place.height, TRUE);
}

void IconMarker::Show(uint32_t flag) {
    flag_ = flag;
    if (window_) InvalidateRect(window_, nullptr, TRUE);
}

void IconMarker::Paint() {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window_, &paint);
    RECT client{};
    GetClientRect(window_, &client);
    DrawItemIconIn(dc, client, flag_);
    EndPaint(window_, &paint);
}

LRESULT CALLBACK IconMarker::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* marker = reinterpret_cast<IconMarker*>(GetWindowLongPtr(window, GWLP_USERDATA));
    if (!marker) return DefWindowProc(window, message, wParam, lParam);
    switch (message) {
    case WM_PAINT:
        marker->Paint();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
        return PassToParent(window, message, wParam, lParam);
    case WM_DESTROY:
        marker->window_ = nullptr;
        SetWindowLongPtr(window, GWLP_USERDATA, 0);
        return 0;
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}
