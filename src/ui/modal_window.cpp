#include "ui/modal_window.h"

#include "shell/services/application.h"
#include "shell/services/window_class.h"
#include "ui/controls.h"
#include "ui/key_navigation.h"

namespace {
// The navigation bar shows the title of the program's main window; a full-screen window over it
// lends it its own.
class TitleScope {
  public:
    TitleScope(HWND owner, const wchar_t* title) {
        for (HWND window = owner; window; window = GetParent(window))
            main_ = window;
        previous_ = ControlText(main_);
        SetWindowText(main_, title);
    }
    TitleScope(const TitleScope&) = delete;
    TitleScope& operator=(const TitleScope&) = delete;
    ~TitleScope() { SetWindowText(main_, previous_.CStr()); }

  private:
    HWND main_ = nullptr;
    WideString previous_;
};
} // namespace

void ModalWindow::OnNotify(HWND, const NMHDR&) {}

bool ModalWindow::OnKey(HWND, const MSG&) {
    return false;
}

void ModalWindow::Layout(HWND) {}

void ModalWindow::OnPaint(HWND, HDC) {}

void ModalWindow::Finish(int answer) {
    answer_ = answer;
    // Wakes the loop where the answer came by a sent message, which GetMessage does not return for.
    PostMessage(nullptr, WM_NULL, 0, 0);
}

int ModalWindow::Run(HWND owner, const wchar_t* className, const wchar_t* title) {
    answer_ = 0;
    RegisterWindowClass(application.instance, WindowProc, nullptr, className, WHITE_BRUSH);
    RECT place{};
    GetWindowRect(owner, &place);
    window_ = CreateWindowEx(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), className, title,
                             WS_POPUP | WS_VISIBLE, place.left, place.top, place.right - place.left,
                             place.bottom - place.top, owner, nullptr, application.instance, this);
    if (!window_) return IDCANCEL;
    const TitleScope shownTitle(owner, title);
    EnableWindow(owner, FALSE);
    if (!IsChild(window_, GetFocus())) FocusFirstControl(window_);
    RunLoop();
    // The owner is enabled first, or the platform would activate some other program's window.
    EnableWindow(owner, TRUE);
    if (window_) DestroyWindow(window_);
    SetForegroundWindow(owner);
    UnregisterClass(className, application.instance);
    return answer_;
}

void ModalWindow::RunLoop() {
    MSG message;
    while (!answer_) {
        if (!GetMessage(&message, nullptr, 0, 0)) {
            PostQuitMessage(
                static_cast<int>(message.wParam)); // For the loop that this one stands in.
            Finish(IDCANCEL);
            break;
        }
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
            SendMessage(window_, WM_COMMAND, IDCANCEL, 0);
        else if (!(message.message == WM_KEYDOWN && OnKey(window_, message)) &&
                 !TranslateNavigationKey(window_, message)) {
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
    }
}

void ModalWindow::OnCreate(HWND window) {
    window_ = window;
    activateInfo_ = {};
    activateInfo_.cbSize = sizeof(activateInfo_);
    SHMENUBARINFO info{};
    info.cbSize = sizeof(info);
    info.hwndParent = window;
    info.dwFlags = SHCMBF_EMPTYBAR;
    info.hInstRes = application.instance;
    SHCreateMenuBar(&info); // The bar belongs to the window and goes with it.
    CreateControls(window);
    Layout(window);
}

LRESULT ModalWindow::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        OnCreate(window);
        return 0;
    case WM_SIZE:
        Layout(window);
        return 0;
    case WM_ACTIVATE:
        SHHandleWMActivate(window, wParam, lParam, &activateInfo_, 0);
        return 0;
    case WM_SETTINGCHANGE:
        SHHandleWMSettingChange(window, wParam, lParam, &activateInfo_);
        return 0;
    case WM_COMMAND:
        OnCommand(window, LOWORD(wParam), HIWORD(wParam));
        return 0;
    case WM_NOTIFY:
        OnNotify(window, *reinterpret_cast<const NMHDR*>(lParam));
        return 0;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        OnPaint(window, BeginPaint(window, &paint));
        EndPaint(window, &paint);
        return 0;
    }
    case WM_CLOSE:
        Finish(IDCANCEL);
        return 0;
    case WM_DESTROY:
        window_ = nullptr;
        if (!answer_) Finish(IDCANCEL);
        return 0;
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}

LRESULT CALLBACK ModalWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCT*>(lParam);
        SetWindowLongPtr(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* self = reinterpret_cast<ModalWindow*>(GetWindowLongPtr(window, GWLP_USERDATA));
    return self ? self->Dispatch(window, message, wParam, lParam)
                : DefWindowProc(window, message, wParam, lParam);
}
