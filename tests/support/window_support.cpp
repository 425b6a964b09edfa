#include "tests/support/window_support.h"

namespace {
MessageBoxAnswer* currentAnswer;
} // namespace

bool PumpMessages() {
    bool goesOn = true;
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            goesOn = false;
            continue;
        }
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return goesOn;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLength(window)) + 1, L'\0');
    text.resize(
        static_cast<size_t>(GetWindowText(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Tap(HWND parent, int id) {
    SendDlgItemMessage(parent, id, BM_CLICK, 0, 0);
}

void Choose(HWND parent, int id, int entry) {
    HWND combo = GetDlgItem(parent, id);
    SendMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    SendMessage(parent, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

std::wstring EntriesOf(HWND combo) {
    std::wstring entries;
    const LRESULT count = SendMessage(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[512] = L""; // No entry is longer.
        SendMessage(combo, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        entries += (i ? L"|" : L"") + std::wstring(text);
    }
    return entries;
}

std::vector<COLORREF> PixelsOf(HWND window, const RECT& place) {
    std::vector<COLORREF> pixels;
    HDC dc = GetDC(window);
    for (int y = place.top; y < place.bottom; ++y) {
        for (int x = place.left; x < place.right; ++x)
            pixels.push_back(GetPixel(dc, x, y));
    }
    ReleaseDC(window, dc);
    return pixels;
}

MessageBoxAnswer::MessageBoxAnswer(int button)
    : button_(button), hook_(SetWindowsHookEx(WH_CBT, OnHook, nullptr, GetCurrentThreadId())) {
    currentAnswer = this;
}

MessageBoxAnswer::~MessageBoxAnswer() {
    UnhookWindowsHookEx(hook_);
    currentAnswer = nullptr;
}

LRESULT CALLBACK MessageBoxAnswer::OnHook(int code, WPARAM wParam, LPARAM lParam) {
    constexpr int kTextId = 0xFFFF;
    HWND box = reinterpret_cast<HWND>(wParam);
    HWND text = code == HCBT_ACTIVATE ? GetDlgItem(box, kTextId) : nullptr;
    if (text) {
        const int button = GetDlgItem(box, currentAnswer->button_) ? currentAnswer->button_ : IDOK;
        ++currentAnswer->count;
        currentAnswer->caption = TextOf(box);
        currentAnswer->text = TextOf(text);
        PostMessage(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
