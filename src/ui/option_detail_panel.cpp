#include "ui/option_detail_panel.h"

#include <algorithm>
#include <vector>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"
#include "ui/controls.h"

namespace {
constexpr int kMargin = 10;
constexpr int kTipHeight = 38;
constexpr int kValueTop = 42; // Below the panel's top.
constexpr int kValueHeight = 20;
constexpr int kLabelDrop = 3; // A label stands this much lower than its combo box.
constexpr int kLabelWidth = 105;
constexpr int kComboLeft = 108;
constexpr int kComboDropHeight = 100;
constexpr int kButtonWidth = 40;
constexpr int kButtonPitch = 45;
constexpr int kEntryMargins = 8;

WideString EntryText(HWND combo, WPARAM entry) {
    const LRESULT length = SendMessage(combo, CB_GETLBTEXTLEN, entry, 0);
    if (length <= 0) return {};
    std::vector<wchar_t> buffer(static_cast<size_t>(length) + 1);
    SendMessage(combo, CB_GETLBTEXT, entry, reinterpret_cast<LPARAM>(buffer.data()));
    return WideString(buffer.data());
}

int LongestEntry(HFONT font, HWND combo) {
    const FontMeasure measure(font);
    int longest = 0;
    const auto count = static_cast<WPARAM>(SendMessage(combo, CB_GETCOUNT, 0, 0));
    for (WPARAM entry = 0; entry < count; ++entry)
        longest = std::max(longest, measure.TextWidth(EntryText(combo, entry)));
    return longest;
}
} // namespace

void OptionDetailPanel::Create() const {
    if (Control(Tip)) return;
    struct PartRow {
        const wchar_t* className;
        const wchar_t* text;
        DWORD style;
    };
    const WideString clear = LanguageText(IDS_CLEAR);
    const WideString browse = LanguageText(IDS_BROWSE);
    const PartRow rows[kIdCount] = {
        {L"STATIC", L"Tip text", SS_LEFT | SS_NOPREFIX},
        {L"STATIC", L"Static combo :", SS_RIGHT},
        {L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST},
        {L"BUTTON", L"Calendar static checkbox", WS_TABSTOP | BS_AUTOCHECKBOX | BS_LEFTTEXT},
        {L"EDIT", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | ES_READONLY},
        {L"BUTTON", clear.CStr(), WS_TABSTOP},
        {L"BUTTON", browse.CStr(), WS_TABSTOP},
        {L"EDIT", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL},
        {L"BUTTON", clear.CStr(), WS_TABSTOP},
    };
    for (UINT i = 0; i < kIdCount; ++i)
        CreateHiddenControl(page_, rows[i].className, rows[i].text, rows[i].style, firstId_ + i, {},
                            font_);
    SendMessage(Control(TextEdit), EM_LIMITTEXT, kTextLimit, 0);
    Place();
}

void OptionDetailPanel::Place() const {
    if (!Control(Tip)) return;
    RECT client{};
    GetClientRect(page_, &client);
    const int width = client.right;
    const int left = Scale(kMargin);
    const int top = ScaleY(top_);
    const int value = top + ScaleY(kValueTop);
    const int height = ScaleY(kValueHeight);
    const int button = Scale(kButtonWidth);
    const int lastButton = width - left - button;
    const int firstButton = lastButton - Scale(kButtonPitch);
    const int gap = Scale(kMargin);
    PlaceControl(Control(Tip), {left, top, width - 2 * left, ScaleY(kTipHeight)});
    PlaceCombo(width);
    PlaceControl(Control(CheckBox), {left, value, width - 2 * left, height});
    PlaceControl(Control(PathEdit), {left, value, firstButton - gap - left, height});
    PlaceControl(Control(PathClear), {firstButton, value, button, height});
    PlaceControl(Control(PathBrowse), {lastButton, value, button, height});
    PlaceControl(Control(TextEdit), {left, value, lastButton - gap - left, height});
    PlaceControl(Control(TextClear), {lastButton, value, button, height});
}

// `width` is the page's, in pixels.
void OptionDetailPanel::PlaceCombo(int width) const {
    const int value = ScaleY(top_ + kValueTop);
    const int right = width - Scale(kMargin);
    const int gap = Scale(kComboLeft - kLabelWidth);
    const int labelWidth = FontMeasure(font_).TextWidth(ControlText(Control(ComboLabel)));
    const int left = std::min(Scale(kComboLeft),
                              std::max(Scale(kMargin) + labelWidth + gap, right - entriesWidth_));
    PlaceControl(Control(ComboLabel),
                 {0, value + ScaleY(kLabelDrop), left - gap, ScaleY(kValueHeight)});
    PlaceControl(Control(ComboBox), {left, value, right - left, ScaleY(kComboDropHeight)});
}

void OptionDetailPanel::Hide() const {
    ShowControlRange(page_, firstId_, firstId_ + kIdCount - 1, SW_HIDE);
}

void OptionDetailPanel::ShowCheck(const wchar_t* label, const wchar_t* tip, bool checked) const {
    SetPartText(Tip, tip);
    SetPartText(CheckBox, label);
    SendMessage(Control(CheckBox), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
    Show(Tip, Tip);
    Show(CheckBox, CheckBox);
}

HWND OptionDetailPanel::ShowCombo(const wchar_t* label, const wchar_t* tip) {
    SetPartText(Tip, tip);
    SetPartText(ComboLabel, label);
    SendMessage(Combo(), CB_RESETCONTENT, 0, 0);
    Show(Tip, ComboBox);
    return Combo();
}

void OptionDetailPanel::FitEntries() {
    entriesWidth_ =
        LongestEntry(font_, Combo()) + GetSystemMetrics(SM_CXVSCROLL) + Scale(kEntryMargins);
    RECT client{};
    GetClientRect(page_, &client);
    PlaceCombo(client.right);
}

void OptionDetailPanel::ShowPath(const wchar_t* tip, const wchar_t* path) const {
    SetPartText(Tip, tip);
    SetPartText(PathEdit, path);
    Show(Tip, Tip);
    Show(PathEdit, PathBrowse);
}

void OptionDetailPanel::ShowText(const wchar_t* tip, const wchar_t* text) const {
    SetPartText(Tip, tip);
    SetPartText(TextEdit, text);
    Show(Tip, Tip);
    Show(TextEdit, TextClear);
}

bool OptionDetailPanel::IsChecked() const {
    return IsBoxChecked(page_, firstId_ + CheckBox);
}

HWND OptionDetailPanel::Combo() const {
    return Control(ComboBox);
}

WideString OptionDetailPanel::Path() const {
    return ControlText(Control(PathEdit), kTextLimit);
}

WideString OptionDetailPanel::Text() const {
    return ControlText(Control(TextEdit), kTextLimit);
}

bool OptionDetailPanel::OnButton(UINT id) const {
    if (id == firstId_ + PathClear)
        SetPartText(PathEdit, L"");
    else if (id == firstId_ + TextClear)
        SetPartText(TextEdit, L"");
    else
        return false;
    return true;
}

UINT OptionDetailPanel::BrowseId() const {
    return firstId_ + PathBrowse;
}

HWND OptionDetailPanel::PathField() const {
    return Control(PathEdit);
}

HWND OptionDetailPanel::Control(Part part) const {
    return Item(page_, firstId_ + part);
}

void OptionDetailPanel::SetPartText(Part part, const wchar_t* text) const {
    SetWindowText(Control(part), text);
}

void OptionDetailPanel::Show(Part first, Part last) const {
    ShowControlRange(page_, firstId_ + first, firstId_ + last, SW_SHOW);
}
