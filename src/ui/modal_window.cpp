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

void FillScreen(HWND dialog) {
    SHINITDLGINFO info{};
    info.dwMask = SHIDIM_FLAGS;
    info.hDlg = dialog;
    info.dwFlags = SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
    SHInitDialog(&info);
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT)) {
        SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(application.normalFont), FALSE);
    }
}
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
    const int answer = RunOver(owner);
    UnregisterClass(className, application.instance);
    return answer;
}

int ModalWindow::RunDialog(HWND owner, UINT dialogTemplate, const wchar_t* title) {
    answer_ = 0;
    HRSRC found = FindResource(application.instance, MAKEINTRESOURCE(dialogTemplate), RT_DIALOG);
    if (!found) return IDCANCEL;
    // The device makes dialogs from templates in memory only; a loaded resource is its bytes.
    const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(application.instance, found));
    window_ = CreateDialogIndirectParam(application.instance, form, owner, DialogProc,
                                        reinterpret_cast<LPARAM>(this));
    if (!window_) return IDCANCEL;
    SetWindowText(window_, title);
    ShowWindow(window_, SW_SHOW);
    return RunOver(owner);
}

int ModalWindow::RunOver(HWND owner) {
    EnableWindow(owner, FALSE);
    if (!IsChild(window_, GetFocus())) FocusFirstControl(window_);
    RunLoop();
    // The owner is enabled first, or the platform would activate some other program's window.
    EnableWindow(owner, TRUE);
    if (window_) DestroyWindow(window_);
    SetForegroundWindow(owner);
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
        const bool isEscape = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
        // An open drop-down list is what Escape closes first.
        if (isEscape && !SendMessage(message.hwnd, CB_GETDROPPEDSTATE, 0, 0))
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

bool ModalWindow::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
    case WM_INITDIALOG:
        OnCreate(window);
        return true;
    case WM_SIZE:
        Layout(window);
        return true;
    case WM_ACTIVATE:
        SHHandleWMActivate(window, wParam, lParam, &activateInfo_, 0);
        return true;
    case WM_SETTINGCHANGE:
        SHHandleWMSettingChange(window, wParam, lParam, &activateInfo_);
        return true;
    case WM_COMMAND:
        OnCommand(window, LOWORD(wParam), HIWORD(wParam));
        return true;
    case WM_NOTIFY:
        OnNotify(window, *reinterpret_cast<const NMHDR*>(lParam));
        return true;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        OnPaint(window, BeginPaint(window, &paint));
        EndPaint(window, &paint);
        return true;
    }
    case WM_CLOSE:
        Finish(IDCANCEL);
        return true;
    case WM_DESTROY:
        window_ = nullptr;
        if (!answer_) Finish(IDCANCEL);
        return true;
    default:
        return false;
    }
}

LRESULT CALLBACK ModalWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCT*>(lParam);
        SetWindowLongPtr(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* self = reinterpret_cast<ModalWindow*>(GetWindowLongPtr(window, GWLP_USERDATA));
    if (self && self->Handle(window, message, wParam, lParam)) return 0;
    return DefWindowProc(window, message, wParam, lParam);
}

INT_PTR CALLBACK ModalWindow::DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CTLCOLORDLG || message == WM_CTLCOLORSTATIC)
        return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    if (message == WM_INITDIALOG) {
        FillScreen(dialog);
        SetWindowLongPtr(dialog, GWLP_USERDATA, lParam);
    }
    auto* self = reinterpret_cast<ModalWindow*>(GetWindowLongPtr(dialog, GWLP_USERDATA));
    // Handled, WM_INITDIALOG would have the platform move the focus.
    return self && self->Handle(dialog, message, wParam, lParam) && message != WM_INITDIALOG;
}
