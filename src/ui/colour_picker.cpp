#include "ui/colour_picker.h"

#include <aygshell.h>
#include <commctrl.h>

#include <algorithm>
#include <string_view>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/number_text.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/colour_box.h"
#include "ui/colour_surface.h"
#include "ui/controls.h"
#include "ui/modal_window.h"
#include "ui/tab_strip.h"

namespace {
// Control ids, in ranges by tab.
constexpr UINT kSelectedLabel = 100;
constexpr UINT kDefault = 101;
constexpr UINT kPalette = 110;
constexpr UINT kField = 111;
constexpr UINT kLightness = 112;
constexpr UINT kValueLabels = 120; // Red, green, blue; so are the bars and edit fields.
constexpr UINT kValueBars = 123;
constexpr UINT kValueEdits = 126;
constexpr UINT kHtmlLabel = 129;
constexpr UINT kHtml = 130;

constexpr UINT kFieldTab[] = {kPalette, kLightness};
constexpr UINT kValuesTab[] = {kValueLabels, kHtml};

constexpr int kComponents = 3;
constexpr int kHighest = 255;
constexpr UINT kComponentNames[kComponents] = {IDS_PICKER_RED, IDS_PICKER_GREEN, IDS_PICKER_BLUE};

// Measures in units.
constexpr int kMargin = 10;
constexpr int kTop = 8;
constexpr int kGap = 6;
constexpr int kRowHeight = 20;
constexpr int kLabelDrop = 3; // A label stands this much lower than what it names.
// A screen at least this wide has the parts side by side.
constexpr int kWideWindow = 300;
// A window lower than this, as in landscape above the input panel, has room for one tab's controls
// alone.
constexpr int kLowWindow = 150;
constexpr int kSamples = 90; // From the left edge.
constexpr int kOldWidth = 36;
constexpr int kArrowWidth = 12;
constexpr int kNewWidth = 44;

class ColourPicker final : public ModalWindow {
  public:
    explicit ColourPicker(COLORREF start) : choice_(start), old_(choice_.Colour()) {}
    COLORREF Pick(HWND owner);

  protected:
    void CreateControls(HWND window) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void OnNotify(HWND window, const NMHDR& header) override;
    void OnScroll(HWND window, HWND bar) override;
    void Layout(HWND window) override;
    void OnPaint(HWND window, HDC dc) override;

  private:
    static void CreateValueControls(HWND window);
    void ShowTab(HWND window) const;
    static void LayOutHead(HWND window);
    void LayOutField(HWND window, int top, int bottom);
    static void LayOutValues(HWND window, int top);
    void ShowChoice(HWND window, UINT source);
    void OnEdit(HWND window, UINT id, UINT notification);
    void OnValueTyped(HWND window, int component);
    void OnHtmlTyped(HWND window);

    ColourChoice choice_;
    uint32_t old_; // What was chosen at first.
    ColourPalette palette_{choice_};
    HueField field_{choice_};
    LightnessBar lightness_{choice_};
    HWND strip_ = nullptr;
    bool isShowing_ = false; // The picker itself writes into its edit fields.
};

bool IsWide(HWND window) {
    return ClientSize(window).cx >= Scale(kWideWindow);
}

bool IsLow(HWND window) {
    return ClientSize(window).cy < ScaleY(kLowWindow);
}

void Place(HWND window, UINT id, int left, int top, int width, int height) {
    MoveWindow(Item(window, id), left, top, std::max(width, 0), std::max(height, 0), TRUE);
}

RECT SamplesPlace() {
    const int left = Scale(kSamples);
    return {left, ScaleY(kTop), left + Scale(kOldWidth + kArrowWidth + kNewWidth),
            ScaleY(kTop + kRowHeight)};
}

WideString HtmlText(uint32_t colour) {
    WideString text;
    text.Format(L"%02X%02X%02X", Component(colour, 0), Component(colour, 1), Component(colour, 2));
    return text;
}

COLORREF ColourPicker::Pick(HWND owner) {
    const WideString title = LanguageText(IDS_PICKER_TITLE);
    const int answer = Run(owner, L"ColourPickerWin", title.CStr());
    SipShowIM(SIPF_OFF);
    return answer == IDOK ? choice_.Colour() : kPickCancelled;
}

// --- Controls ------------------------------------------------------------------------------------

void ColourPicker::CreateControls(HWND window) {
    HFONT font = application.normalFont;
    CreateControl(window, L"STATIC", LanguageText(IDS_PICKER_SELECTED).CStr(), SS_LEFT,
                  kSelectedLabel, {}, font);
    palette_.Create(window, kPalette);
    field_.Create(window, kField);
    lightness_.Create(window, kLightness);
    CreateValueControls(window);
    CreateControl(window, L"BUTTON", LanguageText(IDS_PICKER_DEFAULT).CStr(), WS_TABSTOP, kDefault,
                  {}, font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_CANCEL).CStr(), WS_TABSTOP, IDCANCEL, {},
                  font);
    strip_ = CreateTabStrip(window, font);
    InsertTab(strip_, 0, LanguageText(IDS_PICKER_TAB_FIELD).CStr());
    InsertTab(strip_, 1, LanguageText(IDS_PICKER_TAB_VALUES).CStr());
    ShowTab(window);
    ShowChoice(window, 0);
}

void ColourPicker::CreateValueControls(HWND window) {
    HFONT font = application.normalFont;
    constexpr DWORD kEditStyle = WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL;
    for (UINT i = 0; i < kComponents; ++i) {
        CreateControl(window, L"STATIC", LanguageText(kComponentNames[i]).CStr(), SS_LEFT,
                      kValueLabels + i, {}, font);
        HWND bar = CreateControl(window, TRACKBAR_CLASS, L"", WS_TABSTOP | TBS_HORZ | TBS_NOTICKS,
                                 kValueBars + i, {}, font);
        SendMessage(bar, TBM_SETRANGE, FALSE, MAKELPARAM(0, kHighest));
        SendMessage(bar, TBM_SETPAGESIZE, 0, 16);
        HWND edit = CreateControl(window, L"EDIT", L"", kEditStyle, kValueEdits + i, {}, font);
        SendMessage(edit, EM_LIMITTEXT, 3, 0);
    }
    CreateControl(window, L"STATIC", LanguageText(IDS_PICKER_HTML).CStr(), SS_LEFT, kHtmlLabel, {},
                  font);
    HWND html = CreateControl(window, L"EDIT", L"", kEditStyle | ES_UPPERCASE, kHtml, {}, font);
    SendMessage(html, EM_LIMITTEXT, 7, 0);
}

void ColourPicker::ShowTab(HWND window) const {
    const bool isField = SelectedTab(strip_) != 1;
    ShowControlRange(window, kFieldTab[0], kFieldTab[1], isField ? SW_SHOW : SW_HIDE);
    ShowControlRange(window, kValuesTab[0], kValuesTab[1], isField ? SW_HIDE : SW_SHOW);
}

// --- Layout --------------------------------------------------------------------------------------

void ColourPicker::Layout(HWND window) {
    PlaceTabStrip(strip_);
    const bool isLow = IsLow(window);
    for (const UINT id : {kSelectedLabel, kDefault, static_cast<UINT>(IDCANCEL)})
        ShowWindow(Item(window, id), isLow ? SW_HIDE : SW_SHOW);
    LayOutHead(window);
    const int gap = ScaleY(isLow ? 2 : kGap);
    const int top = isLow ? gap : ScaleY(kTop + kRowHeight) + gap;
    int bottom = ClientSize(window).cy - ScaleY(kTabStripHeight) - gap;
    if (!isLow && !IsWide(window)) bottom -= ScaleY(kRowHeight) + gap;
    LayOutField(window, top, bottom);
    LayOutValues(window, top);
    InvalidateRect(window, nullptr, TRUE);
}

// The sample's label, and the buttons: beside the sample where there is room, else at the bottom.
void ColourPicker::LayOutHead(HWND window) {
    constexpr int kButtonWidth = 60;
    constexpr int kWideButtonWidth = 106;
    const SIZE size = ClientSize(window);
    const int left = Scale(kMargin);
    const int right = size.cx - left;
    const int height = ScaleY(kRowHeight);
    Place(window, kSelectedLabel, left, ScaleY(kTop + kLabelDrop), Scale(kSamples) - left,
          height - ScaleY(kLabelDrop));
    if (IsWide(window)) {
        const int width = Scale(kButtonWidth);
        Place(window, kDefault, right - 2 * width - Scale(2), ScaleY(kTop), width, height);
        Place(window, IDCANCEL, right - width, ScaleY(kTop), width, height);
        return;
    }
    const int width = Scale(kWideButtonWidth);
    const int top = size.cy - ScaleY(kTabStripHeight + kGap) - height;
    Place(window, kDefault, left, top, width, height);
    Place(window, IDCANCEL, right - width, top, width, height);
}

void ColourPicker::LayOutField(HWND window, int top, int bottom) {
    constexpr int kCellWidth = 22;
    constexpr int kCellHeight = 22;
    constexpr int kLightnessWidth = 30;
    const bool isWide = IsWide(window);
    const int left = Scale(kMargin);
    const int right = ClientSize(window).cx - left;
    const int height = bottom - top;
    palette_.ShowWide(!isWide);
    int fieldLeft = left;
    int fieldTop = top;
    if (isWide) {
        const int width = Scale(kCellWidth * palette_.Columns());
        Place(window, kPalette, left, top, width, height);
        fieldLeft += width + Scale(kGap);
    } else {
        const int paletteHeight = std::min(ScaleY(kCellHeight * palette_.Rows()), height / 2);
        Place(window, kPalette, left, top, right - left, paletteHeight);
        fieldTop += paletteHeight + ScaleY(kGap);
    }
    const int barLeft = right - Scale(kLightnessWidth);
    Place(window, kField, fieldLeft, fieldTop, barLeft - Scale(kGap) - fieldLeft,
          bottom - fieldTop);
    Place(window, kLightness, barLeft, fieldTop, Scale(kLightnessWidth), bottom - fieldTop);
}

void ColourPicker::LayOutValues(HWND window, int top) {
    constexpr int kLabelWidth = 42;
    constexpr int kEditWidth = 34;
    constexpr int kHtmlWidth = 62;
    const bool isWide = IsWide(window);
    const int pitch = ScaleY(IsLow(window) ? kRowHeight + 1 : kRowHeight + kGap);
    const int height = ScaleY(kRowHeight);
    const int label = Scale(kLabelWidth);
    const int left = Scale(kMargin);
    const int right = ClientSize(window).cx - left;
    const int htmlLeft = isWide ? right - label - Scale(kHtmlWidth) : left;
    const int edit = isWide ? htmlLeft - left - Scale(kEditWidth) : right - Scale(kEditWidth);
    const auto placeLabel = [&](UINT id, int x, int y) {
        Place(window, id, x, y + ScaleY(kLabelDrop), label, height - ScaleY(kLabelDrop));
    };
    int y = top;
    for (UINT i = 0; i < kComponents; ++i, y += pitch) {
        placeLabel(kValueLabels + i, left, y);
        Place(window, kValueBars + i, left + label, y, edit - Scale(kGap) - left - label, height);
        Place(window, kValueEdits + i, edit, y, Scale(kEditWidth), height);
    }
    if (isWide) y = top;
    placeLabel(kHtmlLabel, htmlLeft, y);
    Place(window, kHtml, htmlLeft + label, y, Scale(kHtmlWidth), height);
}

// --- The sample ----------------------------------------------------------------------------------

void DrawArrow(HDC dc, const RECT& place) {
    const int middle = (place.top + place.bottom) / 2;
    const int reach = Scale(4);
    const int left = (place.left + place.right - reach) / 2;
    const POINT corners[] = {
        {left, middle - reach}, {left + reach, middle}, {left, middle + reach}};
    const SelectScope brush(dc, GetStockObject(BLACK_BRUSH));
    Polygon(dc, corners, 3);
}

// The colour that was there, and the one that would take its place.
void ColourPicker::OnPaint(HWND window, HDC dc) {
    if (IsLow(window)) return;
    const RECT place = SamplesPlace();
    RECT part = place;
    part.right = part.left + Scale(kOldWidth);
    DrawColourBox(dc, part, old_, application.normalFont);
    part = place;
    part.left = place.right - Scale(kNewWidth);
    DrawColourBox(dc, part, choice_.Colour(), application.normalFont);
    DrawArrow(dc, {place.left + Scale(kOldWidth), place.top, part.left, place.bottom});
}

// Shows the chosen colour everywhere but in the control that it came from.
void ColourPicker::ShowChoice(HWND window, UINT source) {
    const bool isNone = choice_.IsNone();
    const uint32_t colour = isNone ? 0 : choice_.Colour();
    isShowing_ = true;
    for (UINT i = 0; i < kComponents; ++i) {
        const auto value = static_cast<int32_t>(Component(colour, static_cast<int>(i)));
        if (source != kValueBars + i)
            SendMessage(Item(window, kValueBars + i), TBM_SETPOS, TRUE, value);
        if (source != kValueEdits + i)
            SetWindowText(Item(window, kValueEdits + i), isNone ? L"" : DecimalText(value).CStr());
    }
    if (source != kHtml) SetWindowText(Item(window, kHtml), isNone ? L"" : HtmlText(colour).CStr());
    isShowing_ = false;
    palette_.Redraw();
    field_.Redraw();
    lightness_.Redraw();
    const RECT samples = SamplesPlace();
    InvalidateRect(window, &samples, FALSE);
}

// --- Commands ------------------------------------------------------------------------------------

void ColourPicker::OnNotify(HWND window, const NMHDR& header) {
    if (header.hwndFrom == strip_ && header.code == TCN_SELCHANGE) ShowTab(window);
}

void ColourPicker::OnScroll(HWND window, HWND bar) {
    const auto id = static_cast<UINT>(GetDlgCtrlID(bar));
    if (id < kValueBars || id >= kValueBars + kComponents) return;
    const auto component = static_cast<int>(id - kValueBars);
    const auto value = static_cast<uint32_t>(SendMessage(bar, TBM_GETPOS, 0, 0));
    const uint32_t colour = choice_.IsNone() ? 0 : choice_.Colour();
    // A bar also tells of a key let go of, which moved nothing at the bar's end.
    if (value == Component(colour, component)) return;
    choice_.Set(WithComponent(colour, component, value));
    ShowChoice(window, id);
}

void ColourPicker::OnCommand(HWND window, UINT id, UINT notification) {
    switch (id) {
    case IDOK:
    case IDCANCEL:
        Finish(static_cast<int>(id));
        break;
    case kDefault:
        choice_.Set(kNoColour);
        ShowChoice(window, id);
        break;
    case kPalette:
    case kField:
    case kLightness:
        if (notification == kColourChosen) ShowChoice(window, id);
        break;
    default:
        OnEdit(window, id, notification);
    }
}

void ColourPicker::OnEdit(HWND window, UINT id, UINT notification) {
    if (isShowing_ || id < kValueEdits || id > kHtml) return;
    // What was left half typed gives way to the colour that it did not change.
    if (notification == EN_KILLFOCUS) ShowChoice(window, 0);
    if (notification != EN_CHANGE) return;
    if (id == kHtml)
        OnHtmlTyped(window);
    else if (id < kValueEdits + kComponents)
        OnValueTyped(window, static_cast<int>(id - kValueEdits));
}

void ColourPicker::OnValueTyped(HWND window, int component) {
    const UINT id = kValueEdits + static_cast<UINT>(component);
    HWND edit = Item(window, id);
    const WideString typed = ControlText(edit);
    const std::wstring_view text(typed.CStr());
    // No number yet.
    if (text.find_first_of(L"0123456789") == std::wstring_view::npos) return;
    const uint32_t value = NumberFromDecimalText(text);
    if (value <= kHighest) {
        const uint32_t colour = choice_.IsNone() ? 0 : choice_.Colour();
        choice_.Set(WithComponent(colour, component, value));
        ShowChoice(window, id);
        return;
    }
    MessageBox(window, L"Valid values are between 0-255", L"Invalid value", MB_OK);
    // The picker may have been closed meanwhile.
    if (!IsWindow(window)) return;
    ShowChoice(window, 0);
    SetFocus(edit);
    SendMessage(edit, EM_SETSEL, 0, -1);
}

// A colour is there when it is typed in full.
void ColourPicker::OnHtmlTyped(HWND window) {
    const WideString text = ControlText(Item(window, kHtml));
    const std::optional<uint32_t> colour = ColourFromHtml(text.CStr());
    if (!colour) return;
    choice_.Set(*colour);
    ShowChoice(window, kHtml);
}
} // namespace

COLORREF PickColour(HWND owner, COLORREF start) {
    return ColourPicker(start).Pick(owner);
}
