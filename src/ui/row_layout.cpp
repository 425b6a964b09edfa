#include "ui/row_layout.h"

#include <algorithm>

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
constexpr int kTextWidth = 100;
constexpr int kTextColumn = 120; // From one column to the other.
constexpr int kTextLabelHeight = 16;
constexpr int kTextPitch = 26;
} // namespace

RowLayout::RowLayout(HWND page, HFONT font, int top)
    : page_(page),
      font_(font),
      width_(ClientSize(page).cx),
      height_(ClientSize(page).cy),
      y_(ScaleY(top)) {}

void RowLayout::Skip(int units) {
    y_ += ScaleY(units);
}

void RowLayout::Put(const wchar_t* className, const wchar_t* text, DWORD style, UINT id,
                    const ControlPlace& place) {
    PutControl(page_, className, text, style, id, place, font_);
}

void RowLayout::PutEdit(UINT id, int limit, const ControlPlace& place) {
    Put(L"EDIT", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, id, place);
    SendDlgItemMessage(page_, static_cast<int>(id), EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
}

void RowLayout::AddCheck(UINT id, const wchar_t* text) {
    Put(L"BUTTON", text, WS_TABSTOP | BS_AUTOCHECKBOX, id,
        {Scale(kMargin), y_, width_ - Scale(2 * kMargin), ScaleY(kControlHeight)});
    Skip(kRowPitch);
}

void RowLayout::AddCombo(UINT labelId, const wchar_t* label, UINT comboId) {
    AddComboOfStyle(labelId, label, comboId, CBS_DROPDOWNLIST);
}

void RowLayout::AddEditableCombo(UINT labelId, const wchar_t* label, UINT comboId) {
    AddComboOfStyle(labelId, label, comboId, CBS_DROPDOWN | CBS_AUTOHSCROLL);
}

void RowLayout::AddComboOfStyle(UINT labelId, const wchar_t* label, UINT comboId, DWORD style) {
    Put(L"STATIC", label, SS_RIGHT, labelId,
        {0, y_ + ScaleY(kLabelDrop), width_ - Scale(kLabelEnd), ScaleY(kControlHeight)});
    // Without a scroll bar of its own a drop-down list shows only the entries that fit.
    Put(L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | style, comboId,
        {width_ - Scale(kMargin) - Scale(kComboWidth), y_, Scale(kComboWidth),
         ScaleY(kComboDropHeight)});
    Skip(kRowPitch);
}

void RowLayout::AddPath(UINT firstId, const wchar_t* label, int limit) {
    const int left = Scale(kMargin);
    const int right = width_ - left;
    const int buttonWidth = Scale(kPathButtonWidth);
    const int browse = right - buttonWidth;
    const int clear = browse - Scale(kPathGap) - buttonWidth;
    const int height = ScaleY(kControlHeight);
    Put(L"STATIC", label, SS_LEFT, firstId, {left, y_, right - left, ScaleY(kPathLabelPitch)});
    Skip(kPathLabelPitch);
    PutEdit(firstId + 1, limit, {left, y_, clear - Scale(kPathGap) - left, height});
    Put(L"BUTTON", LanguageText(IDS_CLEAR).CStr(), WS_TABSTOP, firstId + 2,
        {clear, y_, buttonWidth, height});
    Put(L"BUTTON", LanguageText(IDS_BROWSE).CStr(), WS_TABSTOP, firstId + 3,
        {browse, y_, buttonWidth, height});
    Skip(kRowPitch);
}

void RowLayout::AddLabel(UINT id, const wchar_t* text) {
    Put(L"STATIC", text, SS_LEFT, id,
        {Scale(kMargin), y_, width_ - Scale(2 * kMargin), ScaleY(kTextLabelHeight)});
    Skip(kPathLabelPitch);
}

ControlPlace RowLayout::RoomAbove(int bottom) const {
    return {Scale(kMargin), y_, std::max(0, width_ - Scale(2 * kMargin)),
            std::max(0, height_ - ScaleY(bottom) - y_)};
}

void RowLayout::AddText(int column, UINT labelId, const wchar_t* label, UINT editId, int limit) {
    const int left = Scale(kMargin + column * kTextColumn);
    const int width = Scale(kTextWidth);
    Put(L"STATIC", label, SS_LEFT, labelId, {left, y_, width, ScaleY(kTextLabelHeight)});
    Skip(kTextLabelHeight);
    PutEdit(editId, limit, {left, y_, width, ScaleY(kControlHeight)});
    Skip(kTextPitch);
}
