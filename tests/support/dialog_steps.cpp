#include "tests/support/dialog_steps.h"

#include <commctrl.h>
#include <gtest/gtest.h>

namespace {
DialogSteps* current;

std::wstring RowText(HWND list, int row) {
    wchar_t text[MAX_PATH] = L"";
    ListView_GetItemText(list, row, 0, text, MAX_PATH);
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
    EXPECT_TRUE(next_ > 0 || steps_.empty()) << "no dialog came";
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

DialogSteps::Step Answer(WPARAM button) {
    return [button](HWND dialog) { PostMessage(dialog, WM_COMMAND, button, 0); };
}

DialogSteps::Step Write(int id, const std::wstring& text, WPARAM button) {
    return [=](HWND dialog) {
        SetDlgItemText(dialog, id, text.c_str());
        PostMessage(dialog, WM_COMMAND, button, 0);
    };
}

std::wstring RowsOf(HWND list) {
    std::wstring rows;
    for (int row = 0; row < ListView_GetItemCount(list); ++row)
        rows += (row ? L"|" : L"") + RowText(list, row);
    return rows;
}

void SelectRow(HWND list, const std::wstring& text) {
    constexpr UINT kSelected = LVIS_FOCUSED | LVIS_SELECTED;
    for (int row = 0; row < ListView_GetItemCount(list); ++row) {
        if (RowText(list, row) == text) ListView_SetItemState(list, row, kSelected, kSelected);
    }
}
