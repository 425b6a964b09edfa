#include "tests/support/dialog_steps.h"

#include <commctrl.h>

namespace {
DialogSteps* current;

std::wstring RowText(HWND list, LRESULT row) {
    wchar_t text[MAX_PATH] = L"";
    LVITEM item{};
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessage(list, LVM_GETITEMTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}
// Answers a message box that nobody expected before the dialog itself is cancelled.
void Leave(HWND dialog) {
    HWND front = GetLastActivePopup(dialog);
    PostMessage(front, WM_COMMAND, front == dialog ? IDCANCEL : IDNO, 0);
}
} // namespace

DialogSteps::DialogSteps(const wchar_t* className, std::vector<Step> steps)
    : className_(className), steps_(std::move(steps)), timer_(SetTimer(nullptr, 0, 20, OnTimer)) {
    current = this;
}

DialogSteps::~DialogSteps() {
    KillTimer(nullptr, timer_);
    current = nullptr;
}

void CALLBACK DialogSteps::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (current) current->TakeStep();
}

void DialogSteps::TakeStep() {
    HWND dialog = FindWindow(className_, nullptr);
    if (!dialog || busy_) return;
    busy_ = true;
    if (next_ < steps_.size())
        steps_[next_++](dialog);
    else
        Leave(dialog);
    busy_ = false;
}

std::wstring RowsOf(HWND list) {
    std::wstring rows;
    const LRESULT count = SendMessage(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row)
        rows += (row ? L"|" : L"") + RowText(list, row);
    return rows;
}

void SelectRow(HWND list, const std::wstring& text) {
    LVITEM item{};
    item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    const LRESULT count = SendMessage(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        if (RowText(list, row) == text)
            SendMessage(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
    }
}
