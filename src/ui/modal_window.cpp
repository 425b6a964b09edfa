#include "ui/modal_window.h"

#include "shell/services/application.h"
#include "shell/services/window_class.h"
#include "ui/controls.h"
#include "ui/list_selection.h"
#include "ui/menu_bar.h"

namespace {
// The navigation bar shows the title of the program's main window, or that of a dialog which owns
// the window; a full-screen window over them lends them its own.
class TitleScope {
  public:
    TitleScope(HWND owner, const wchar_t* title) : owner_(owner), main_(owner), lentTitle_(title) {
        while (HWND above = GetParent(main_))
            main_ = above;
        ownersTitle_ = ControlText(owner_);
        mainTitle_ = ControlText(main_);
        SetWindowText(owner_, title);
        SetWindowText(main_, title);
    }
    TitleScope(const TitleScope&) = delete;
    TitleScope& operator=(const TitleScope&) = delete;
    ~TitleScope() {
        Restore(owner_, ownersTitle_);
        Restore(main_, mainTitle_);
    }

  private:
    // A window that got another title meanwhile keeps it.
    void Restore(HWND window, const WideString& title) const {
        if (ControlText(window) == lentTitle_) SetWindowText(window, title.CStr());
    }

    HWND owner_;
    HWND main_;
    WideString ownersTitle_;
    WideString mainTitle_;
    WideString lentTitle_;
};
} // namespace

void ModalWindow::OnNotify(HWND, const NMHDR&) {}

void ModalWindow::OnScroll(HWND, HWND) {}

void ModalWindow::Layout(HWND) {}

void ModalWindow::OnPaint(HWND, HDC) {}

int ModalWindow::Run(HWND owner, const wchar_t* className, const wchar_t* title) {
    RegisterWindowClass(application.instance, WindowProc, nullptr, className, WHITE_BRUSH);
    RECT place{};
    GetWindowRect(owner, &place);
    HWND window =
        CreateWindowEx(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), className, title,
                       WS_POPUP | WS_VISIBLE, place.left, place.top, place.right - place.left,
                       place.bottom - place.top, owner, nullptr, application.instance, this);
    int answer = IDCANCEL;
    if (window) {
        const TitleScope shownTitle(owner, title);
        answer = RunOver(owner, window);
    }
    UnregisterClass(className, application.instance);
    return answer;
}

void ModalWindow::OnCreate(HWND window) {
    activateInfo_ = {};
    activateInfo_.cbSize = sizeof(activateInfo_);
    CreateEmptyMenuBar(window);
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
        return DrawListSelection(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_HSCROLL:
        OnScroll(window, reinterpret_cast<HWND>(lParam));
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
        OnDestroyed();
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
