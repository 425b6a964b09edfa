#include "window_frame.h"

#include "navigation_bar.h"
#include "screen.h"

#include <algorithm>
#include <vector>

namespace {

struct Frame {
    HWND window;
    WNDPROC procedure; // The window's own.
    DWORD flags;
    RECT workArea; // As it was when the window was last fitted to it.
};

std::vector<Frame> frames;

Frame* FindFrame(HWND window) {
    const auto found = std::ranges::find(frames, window, &Frame::window);
    return found == frames.end() ? nullptr : &*found;
}

// A window that filled the work area, but perhaps for a menu bar or the input panel below it, fills
// the new one in the same way.
void FillNewWorkArea(Frame& frame) {
    const RECT before = frame.workArea;
    const RECT now = WorkArea();
    frame.workArea = now;
    RECT place;
    GetWindowRect(frame.window, &place);
    const LONG gap = before.bottom - place.bottom;
    const bool filled = place.left == before.left && place.top == before.top &&
                        place.right == before.right && gap >= 0 &&
                        gap < (before.bottom - before.top) / 2;
    if (!filled || EqualRect(&before, &now)) return;
    HWND window = frame.window; // Moving it may run the program's code, and so move frames.
    MoveWindow(window, now.left, now.top, now.right - now.left, now.bottom - gap - now.top, TRUE);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT OnNcDestroy(Frame frame, WPARAM wParam, LPARAM lParam) {
    std::erase_if(frames, [&](const Frame& other) { return other.window == frame.window; });
    NavigationBar::Leave(frame.window);
    if (frames.empty()) NavigationBar::Destroy();
    return CallWindowProcW(frame.procedure, frame.window, WM_NCDESTROY, wParam, lParam);
}

// The device tells a window of a new size by WM_MOVE too, even when its place stays the same.
void OnSized(HWND window, WPARAM kind) {
    if (kind == SIZE_MINIMIZED) {
        NavigationBar::Hide();
        return;
    }
    POINT origin = {0, 0};
    ClientToScreen(window, &origin);
    SendMessageW(window, WM_MOVE, 0, MAKELPARAM(origin.x, origin.y));
}

void AfterMessage(HWND window, UINT message, WPARAM wParam) {
    switch (message) {
    case WM_SIZE:
        OnSized(window, wParam);
        break;
    case WM_SETTEXT:
    case WM_STYLECHANGED:
        NavigationBar::Refresh();
        break;
    case WM_DISPLAYCHANGE:
        if (Frame* frame = FindFrame(window)) FillNewWorkArea(*frame);
        break;
    }
}

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Frame* found = FindFrame(window);
    if (!found) return DefWindowProcW(window, message, wParam, lParam);
    const Frame frame = *found; // The call below may add or remove frames.
    if (message == WM_NCDESTROY) return OnNcDestroy(frame, wParam, lParam);
    const bool minimised = HIWORD(wParam) != 0;
    if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && !minimised)
        NavigationBar::Show(window);
    const LRESULT result = CallWindowProcW(frame.procedure, window, message, wParam, lParam);
    AfterMessage(window, message, wParam);
    return result;
}

} // namespace

bool IsFramed(HWND window) {
    return FindFrame(window) != nullptr;
}

DWORD FlagsOf(HWND window) {
    const Frame* frame = FindFrame(window);
    return frame ? frame->flags : 0;
}

extern "C" {

void WINAPI ShellPassActivationOn(WPARAM activation) {
    if (LOWORD(activation) == WA_INACTIVE) return;
    for (HWND next = GetTopWindow(nullptr); next; next = GetWindow(next, GW_HWNDNEXT))
        if (IsFramed(next) && IsWindowVisible(next) && IsWindowEnabled(next)) {
            SetActiveWindow(next);
            return;
        }
}

void WINAPI ShellFrameWindow(HWND window, DWORD flags) {
    if (Frame* frame = FindFrame(window)) {
        frame->flags |= flags;
    } else {
        const LONG_PTR own =
            SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(FrameProc));
        if (own == 0) return;
        frames.push_back({window, reinterpret_cast<WNDPROC>(own), flags, WorkArea()});
    }
    // A window created visible was activated before it had its place.
    if (GetActiveWindow() == window) NavigationBar::Show(window);
}

} // extern "C"
