#include "ui/modal_loop.h"

#include "ui/key_navigation.h"

bool ModalLoop::OnKey(HWND, const MSG&) {
    return false;
}

void ModalLoop::Finish(int answer) {
    answer_ = answer;
    // Wakes the loop where the answer came by a sent message, which GetMessage does not return for.
    PostMessage(nullptr, WM_NULL, 0, 0);
}

void ModalLoop::OnDestroyed() {
    window_ = nullptr;
    if (!answer_) Finish(IDCANCEL);
}

int ModalLoop::RunOver(HWND owner, HWND window) {
    if (!window) return IDCANCEL;
    answer_ = 0;
    window_ = window;
    EnableWindow(owner, FALSE);
    if (!IsChild(window, GetFocus())) FocusFirstControl(window);
    HandleMessages();
    // The owner is enabled first, or the platform would activate some other program's window.
    EnableWindow(owner, TRUE);
    if (window_) DestroyWindow(window_);
    SetForegroundWindow(owner);
    return answer_;
}

bool ModalLoop::TranslateKey(const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    // An open drop-down list is what Escape closes first.
    if (message.wParam == VK_ESCAPE && !SendMessage(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) {
        SendMessage(window_, WM_COMMAND, IDCANCEL, 0);
        return true;
    }
    return OnKey(window_, message) || TranslateNavigationKey(window_, message);
}

void ModalLoop::HandleMessages() {
    MSG message;
    while (!answer_) {
        if (!GetMessage(&message, nullptr, 0, 0)) {
            // For the loop that this one stands in.
            PostQuitMessage(static_cast<int>(message.wParam));
            Finish(IDCANCEL);
            break;
        }
        if (TranslateKey(message)) continue;
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}
