#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Working real windows the way a user's taps and keys do.

// Handles every message that waits. Gives false when WM_QUIT was among them.
bool PumpMessages();

std::wstring TextOf(HWND window);

// A tap on a button or box, and a choice from a drop-down list, with what the parent is told.
void Tap(HWND parent, int id);
void Choose(HWND parent, int id, int entry);

// The texts of a combo box's entries, parted by "|".
std::wstring EntriesOf(HWND combo);

// What a part of a window shows; the place is in pixels of its client area.
std::vector<COLORREF> PixelsOf(HWND window, const RECT& place);

// Answers the next message boxes of this thread with a button (IDYES …), or OK where there is no
// such button, while it lives, and keeps what the last one said.
class MessageBoxAnswer {
  public:
    explicit MessageBoxAnswer(int button);
    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;
    ~MessageBoxAnswer();

    int count = 0;
    std::wstring caption;
    std::wstring text;

  private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);

    int button_;
    HHOOK hook_;
};
