#include "ui/row_layout.h"

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"

namespace {
constexpr int kMargin = 10;
constexpr int kRowPitch = 24;
constexpr int kControlHeight = 20;
constexpr int kComboWidth = 125;
constexpr int kComboDropHeight = 100;
constexpr int kLabelDrop = 3; // A label stands this much lower than its combo box.
constexpr int kLabelEnd = 140;
constexpr int kPathLabelPitch = 18;
constexpr int kPathButtonWidth = 40;
constexpr int kPathGap = 5;

int ClientWidth(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return client.right;
}
} // namespace

RowLayout::RowLayout(HWND page, HFONT font, int top)
    : page_(page), font_(font), width_(ClientWidth(page)), y_(ScaleY(top)) {}

void RowLayout::Skip(int units) {
    y_ += ScaleY(units);
}

HWND RowLayout::AddCheck(UINT id, const wchar_t* text, bool checked) {
    HWND box = CreateControl(
        page_, L"BUTTON", text, WS_TABSTOP | BS_AUTOCHECKBOX, id,
        {Scale(kMargin), y_, width_ - Scale(2 * kMargin), ScaleY(kControlHeight)}, font_);
    SendMessage(box, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
    Skip(kRowPitch);
    return box;
}

HWND RowLayout::AddCombo(UINT labelId, const wchar_t* label, UINT comboId) {
    return AddComboOfStyle(labelId, label, comboId, CBS_DROPDOWNLIST);
}

HWND RowLayout::AddEditableCombo(UINT labelId, const wchar_t* label, UINT comboId) {
    return AddComboOfStyle(labelId, label, comboId, CBS_DROPDOWN | CBS_AUTOHSCROLL);
}

HWND RowLayout::AddComboOfStyle(UINT labelId, const wchar_t* label, UINT comboId, DWORD style) {
    CreateControl(page_, L"STATIC", label, SS_RIGHT, labelId,
                  {0, y_ + ScaleY(kLabelDrop), width_ - Scale(kLabelEnd), ScaleY(kControlHeight)},
                  font_);
    // Without a scroll bar of its own a drop-down list shows only the entries that fit.
    HWND combo = CreateControl(page_, L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | style, comboId,
                               {width_ - Scale(kMargin) - Scale(kComboWidth), y_,
                                Scale(kComboWidth), ScaleY(kComboDropHeight)},
                               font_);
    Skip(kRowPitch);
    return combo;
}

void RowLayout::AddPath(UINT firstId, const wchar_t* label, const wchar_t* path, int limit) {
    const int left = Scale(kMargin);
    const int right = width_ - left;
    const int buttonWidth = Scale(kPathButtonWidth);
    const int browse = right - buttonWidth;
    const int clear = browse - Scale(kPathGap) - buttonWidth;
    const int height = ScaleY(kControlHeight);
    CreateControl(page_, L"STATIC", label, SS_LEFT, firstId, {left, y_, right - left, height},
                  font_);
    Skip(kPathLabelPitch);
    HWND edit =
        CreateControl(page_, L"EDIT", path, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, firstId + 1,
                      {left, y_, clear - Scale(kPathGap) - left, height}, font_);
    SendMessage(edit, EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
    CreateControl(page_, L"BUTTON", LanguageText(IDS_CLEAR).CStr(), WS_TABSTOP, firstId + 2,
                  {clear, y_, buttonWidth, height}, font_);
    CreateControl(page_, L"BUTTON", LanguageText(IDS_BROWSE).CStr(), WS_TABSTOP, firstId + 3,
                  {browse, y_, buttonWidth, height}, font_);
    Skip(kRowPitch);
}
