#include "ui/controls.h"

#include <vector>

#include "shell/services/application.h"

HWND CreateControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                   const ControlPlace& place, HFONT font) {
    return CreateHiddenControl(parent, className, text, style | WS_VISIBLE, id, place, font);
}

HWND CreateHiddenControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style,
                         UINT id, const ControlPlace& place, HFONT font) {
    HWND control = CreateWindowEx(
        0, className, text, WS_CHILD | style, place.x, place.y, place.width, place.height, parent,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), application.instance, nullptr);
    if (control) SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

SIZE ClientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

void PlaceControl(HWND control, const ControlPlace& place) {
    if (!control) return;
    RECT now{};
    GetWindowRect(control, &now);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&now), 2);
    const RECT wanted = {place.x, place.y, place.x + place.width, place.y + place.height};
    if (EqualRect(&now, &wanted)) return;
    MoveWindow(control, place.x, place.y, place.width, place.height, TRUE);
}

void PutControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                const ControlPlace& place, HFONT font) {
    if (HWND control = Item(parent, id))
        PlaceControl(control, place);
    else
        CreateHiddenControl(parent, className, text, style, id, place, font);
}

void SetTabStop(HWND control, bool isStop) {
    const LONG style = GetWindowLong(control, GWL_STYLE) & ~WS_TABSTOP;
    SetWindowLong(control, GWL_STYLE, isStop ? style | WS_TABSTOP : style);
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

void AddEntry(HWND combo, const wchar_t* text, uint32_t data) {
    const LRESULT entry = SendMessage(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    if (data) SendMessage(combo, CB_SETITEMDATA, static_cast<WPARAM>(entry), data);
}

void AddNumberEntry(HWND combo, uint32_t number, const wchar_t* format) {
    WideString text;
    text.Format(format, number);
    AddEntry(combo, text.CStr(), number);
}

uint32_t SelectedData(HWND combo) {
    const LRESULT entry = SendMessage(combo, CB_GETCURSEL, 0, 0);
    return static_cast<uint32_t>(SendMessage(combo, CB_GETITEMDATA, static_cast<WPARAM>(entry), 0));
}

bool SelectData(HWND combo, uint32_t data) {
    const LRESULT count = SendMessage(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT entry = 0; entry < count; ++entry) {
        const LRESULT found = SendMessage(combo, CB_GETITEMDATA, static_cast<WPARAM>(entry), 0);
        if (static_cast<uint32_t>(found) != data) continue;
        SendMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        return true;
    }
    return false;
}

void EnableControlRange(HWND parent, UINT firstId, UINT lastId, bool enabled) {
    for (UINT id = firstId; id <= lastId; ++id) {
        if (HWND control = GetDlgItem(parent, static_cast<int>(id))) EnableWindow(control, enabled);
    }
}

void ShowControlRange(HWND parent, UINT firstId, UINT lastId, int showCommand) {
    for (UINT id = firstId; id <= lastId; ++id) {
        HWND control = GetDlgItem(parent, static_cast<int>(id));
        if (!control) continue;
        // A call that changes nothing costs as much as one that does.
        const bool isShown = GetWindowLong(control, GWL_STYLE) & WS_VISIBLE;
        if (isShown != (showCommand != SW_HIDE)) ShowWindow(control, showCommand);
    }
}
