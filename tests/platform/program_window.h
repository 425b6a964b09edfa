#pragma once

#include <aygshell.h>

#include <vector>

// Real windows of a program, and what the stand-in's bars say to them.

// A measure in pixels, from units of a 96-dpi screen.
inline int Pixels(int units) {
    const HDC screen = GetDC(nullptr);
    const int density = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return MulDiv(units, density, 96);
}

inline int BarHeight() {
    return Pixels(26);
}

inline RECT DeviceWorkArea() {
    return {0, BarHeight(), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

inline RECT PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

inline bool operator==(const RECT& left, const RECT& right) {
    return EqualRect(&left, &right);
}

inline std::ostream& operator<<(std::ostream& out, const RECT& rect) {
    return out << rect.left << ',' << rect.top << ' ' << rect.right << ',' << rect.bottom;
}

// A press and a release of the pointer in the middle of a part of a window.
inline void Tap(HWND window, const RECT& part) {
    const LPARAM position = MAKELPARAM((part.left + part.right) / 2, (part.top + part.bottom) / 2);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, position);
    SendMessageW(window, WM_LBUTTONUP, 0, position);
}

// A top-level window that fills the work area and remembers what it is told. Destroyed with this
// object at the latest.
class ProgramWindow {
  public:
    explicit ProgramWindow(DWORD style = WS_VISIBLE | WS_CLIPSIBLINGS) {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = WindowProc;
        windowClass.lpszClassName = L"ProgramWindow";
        RegisterClassW(&windowClass);
        window = CreateWindowExW(WS_EX_CAPTIONOKBTN, L"ProgramWindow", L"Program", style,
                                 CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                 nullptr, nullptr, nullptr, this);
    }
    ProgramWindow(const ProgramWindow&) = delete;
    ProgramWindow& operator=(const ProgramWindow&) = delete;
    ~ProgramWindow() {
        if (window) DestroyWindow(window);
    }

    HWND window = nullptr;
    std::vector<int> commands; // The ids of the WM_COMMANDs that came.
    RECT clientAtCreation = {};
    RECT menuPlace = {}; // Of the first menu that opens; its last entry is then chosen.

  private:
    static LRESULT CALLBACK WindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE)
            SetWindowLongPtrW(handle, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(
                                  reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
        auto* self = reinterpret_cast<ProgramWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
        if (self) self->Note(handle, message, wParam, lParam);
        if (message == WM_ACTIVATE) return 0; // Else the focus goes to the window itself.
        return DefWindowProcW(handle, message, wParam, lParam);
    }

    void Note(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
        case WM_CREATE:
            GetClientRect(handle, &clientAtCreation);
            break;
        case WM_COMMAND:
            if (HIWORD(wParam) == 0) commands.push_back(LOWORD(wParam));
            break;
        case WM_ACTIVATE:
            SHHandleWMActivate(handle, wParam, lParam, &activation_, 0);
            break;
        case WM_SETTINGCHANGE:
            SHHandleWMSettingChange(handle, wParam, lParam, &activation_);
            break;
        case WM_ENTERIDLE:
            if (!IsRectEmpty(&menuPlace)) break;
            menuPlace = PlaceOf(reinterpret_cast<HWND>(lParam));
            PostMessageW(handle, WM_KEYDOWN, VK_UP, 1);
            PostMessageW(handle, WM_KEYDOWN, VK_RETURN, 1);
            break;
        case WM_DESTROY:
            window = nullptr;
            break;
        }
    }

    SHACTIVATEINFO activation_ = {sizeof(SHACTIVATEINFO), nullptr, 0, 0, 0, 0};
};
