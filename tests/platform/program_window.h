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

inline RECT Screen() {
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

inline RECT DeviceWorkArea() {
    RECT area = Screen();
    area.top += BarHeight();
    return area;
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

// A press and a release of the pointer at a point of a window's client area.
inline void TapAt(HWND window, POINT point) {
    const LPARAM position = MAKELPARAM(point.x, point.y);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, position);
    SendMessageW(window, WM_LBUTTONUP, 0, position);
}

inline HWND NavigationBarWindow() {
    return FindWindowW(L"StandInNavigationBar", nullptr);
}

inline POINT NavigationButton() {
    return {Screen().right - BarHeight() / 2, BarHeight() / 2};
}

// Handles messages until the condition holds; gives up after two seconds.
template <typename Condition>
bool PumpUntil(Condition holds) {
    const DWORD end = GetTickCount() + 2000;
    while (!holds()) {
        if (GetTickCount() > end) return false;
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

struct ProgramWindowOptions {
    DWORD style = WS_VISIBLE | WS_CLIPSIBLINGS;
    DWORD exStyle = WS_EX_CAPTIONOKBTN;
    RECT place = {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0}; // Fills the work area.
    HWND owner = nullptr;
};

// A top-level window that remembers what it is told. Destroyed with this object at the latest.
class ProgramWindow {
  public:
    explicit ProgramWindow(const ProgramWindowOptions& options = {}) {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = WindowProc;
        windowClass.lpszClassName = L"ProgramWindow";
        RegisterClassW(&windowClass);
        const RECT& place = options.place;
        const bool byDefault = place.left == CW_USEDEFAULT;
        window = CreateWindowExW(options.exStyle, L"ProgramWindow", L"Program", options.style,
                                 place.left, place.top,
                                 byDefault ? CW_USEDEFAULT : place.right - place.left,
                                 byDefault ? CW_USEDEFAULT : place.bottom - place.top,
                                 options.owner, nullptr, nullptr, this);
    }
    ProgramWindow(const ProgramWindow&) = delete;
    ProgramWindow& operator=(const ProgramWindow&) = delete;
    ~ProgramWindow() {
        if (window) DestroyWindow(window);
    }

    HWND window = nullptr;
    std::vector<int> commands; // The ids of the WM_COMMANDs that came.
    int moves = 0;             // WM_MOVEs.
    RECT clientAtCreation = {};
    SHACTIVATEINFO activation = {sizeof(SHACTIVATEINFO), nullptr, 0, 0, 0, 0};
    void (*onMenuIdle)(ProgramWindow& self) = nullptr; // Called once an opened menu waits.
    RECT menuPlace = {};

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
        case WM_MOVE:
            ++moves;
            break;
        case WM_COMMAND:
            if (HIWORD(wParam) == 0) commands.push_back(LOWORD(wParam));
            break;
        case WM_ACTIVATE:
            SHHandleWMActivate(handle, wParam, lParam, &activation, 0);
            break;
        case WM_SETTINGCHANGE:
            SHHandleWMSettingChange(handle, wParam, lParam, &activation);
            break;
        case WM_ENTERIDLE:
            if (auto* idle = std::exchange(onMenuIdle, nullptr)) {
                menuPlace = PlaceOf(reinterpret_cast<HWND>(lParam));
                idle(*this);
            }
            break;
        case WM_DESTROY:
            window = nullptr;
            break;
        }
    }
};
