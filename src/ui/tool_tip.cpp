#include "ui/tool_tip.h"

#include <algorithm>

#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"
#include "shell/services/window_class.h"
#include "ui/controls.h"

namespace {
constexpr wchar_t kClass[] = L"ToolTipWindow";
constexpr int kPadding = 3;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX;

HFONT FontOf(HWND window) {
    return reinterpret_cast<HFONT>(GetWindowLongPtr(window, GWLP_USERDATA));
}

void Paint(HWND window) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_INFOBK));
    const SelectScope font(dc, FontOf(window));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    DrawText(dc, ControlText(window).CStr(), -1, &client, kTextFormat);
    EndPaint(window, &paint);
}

LRESULT CALLBACK ToolTipProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return DefWindowProc(window, message, wParam, lParam);
    Paint(window);
    return 0;
}

SIZE SizeOf(const wchar_t* text, HFONT font) {
    const FontMeasure measure(font);
    return {measure.TextWidth(text) + 2 * Scale(kPadding),
            measure.LineHeight() + 2 * ScaleY(kPadding)};
}

// Below the anchor or, where the screen ends, above it.
POINT PlaceOf(const SIZE& size, const RECT& anchor) {
    const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
    const bool fitsBelow = anchor.bottom + size.cy <= screenHeight;
    const int x = std::min(static_cast<int>(anchor.left), screenWidth - static_cast<int>(size.cx));
    return {std::max(x, 0), fitsBelow ? anchor.bottom : anchor.top - size.cy};
}
} // namespace

void ToolTip::Show(HWND owner, const RECT& anchor, const wchar_t* text, HFONT font) {
    Hide();
    RegisterWindowClass(application.instance, ToolTipProc, nullptr, kClass, WHITE_BRUSH);
    const SIZE size = SizeOf(text, font);
    const POINT place = PlaceOf(size, anchor);
    window_ = CreateWindowEx(WS_EX_NOACTIVATE | WS_EX_TOPMOST, kClass, text, WS_POPUP | WS_BORDER,
                             place.x, place.y, size.cx, size.cy, owner, nullptr,
                             application.instance, nullptr);
    if (!window_) return;
    SetWindowLongPtr(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(font));
    ShowWindow(window_, SW_SHOWNA);
}

void ToolTip::Hide() {
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
}
