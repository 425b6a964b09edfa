#include "ui/controls.h"

#include <vector>

#include "shell/services/application.h"

HWND CreateControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                   const ControlPlace& place, HFONT font) {
    HWND control = CreateWindowEx(0, className, text, WS_CHILD | WS_VISIBLE | style, place.x,
                                  place.y, place.width, place.height, parent,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                                  application.instance, nullptr);
    if (control) SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

WideString ControlText(HWND control, int limit) {
    std::vector<wchar_t> buffer(static_cast<size_t>(limit) + 1);
    GetWindowText(control, buffer.data(), limit + 1);
    return WideString(buffer.data());
}

WideString ControlText(HWND control) {
    return ControlText(control, GetWindowTextLength(control));
}

bool IsBoxChecked(HWND parent, UINT id) {
    return SendDlgItemMessage(parent, static_cast<int>(id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int SelectedIndex(HWND parent, UINT id) {
    return static_cast<int>(SendDlgItemMessage(parent, static_cast<int>(id), CB_GETCURSEL, 0, 0));
}

void SelectIndex(HWND combo, uint32_t index) {
    // A combo box keeps its old selection when it is given an index that it does not have.
    const auto count = static_cast<uint32_t>(SendMessage(combo, CB_GETCOUNT, 0, 0));
    SendMessage(combo, CB_SETCURSEL, index < count ? index : static_cast<WPARAM>(-1), 0);
}

void EnableControlRange(HWND parent, UINT firstId, UINT lastId, bool enabled) {
    for (UINT id = firstId; id <= lastId; ++id) {
        if (HWND control = GetDlgItem(parent, static_cast<int>(id))) EnableWindow(control, enabled);
    }
}

void ShowControlRange(HWND parent, UINT firstId, UINT lastId, int showCommand) {
    for (UINT id = firstId; id <= lastId; ++id) {
        if (HWND control = GetDlgItem(parent, static_cast<int>(id)))
            ShowWindow(control, showCommand);
    }
}
