#include "ui/icon_chooser.h"

#include <algorithm>

#include "preview/item_icons.h"
#include "resource_ids.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"

namespace {
constexpr COLORREF kFrame = RGB(0, 0, 0);
constexpr COLORREF kChosenFrame = RGB(0, 60, 140);
constexpr COLORREF kChosenFace = RGB(200, 222, 250);
constexpr int kArrowWidth = 15;
constexpr int kGap = 3;
constexpr int kEntryHeight = 21;
constexpr int kEntryCaption = 26; // Where an entry's caption begins, behind its icon.
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

// Turns every second pixel white.
void Dim(HDC dc, const RECT& place) {
    constexpr WORD kChecks[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
    const UniqueBitmap pattern(CreateBitmap(8, 8, 1, 1, kChecks));
    const UniqueBrush brush(CreatePatternBrush(pattern.Get()));
    const RECT all{0, 0, place.right - place.left, place.bottom - place.top};
    // By way of a bitmap: the device lays a pattern over a picture with none of its operations, but
    // a picture over a picture with one.
    const UniqueBitmap checks(CreateCompatibleBitmap(dc, all.right, all.bottom));
    const UniqueDc checksDc(CreateCompatibleDC(dc));
    const SelectScope selected(checksDc.Get(), checks.Get());
    FillRect(checksDc.Get(), &all, brush.Get()); // White and black, a new device context's colours.
    BitBlt(dc, place.left, place.top, all.right, all.bottom, checksDc.Get(), 0, 0, SRCPAINT);
}

void DrawFrame(HDC dc, const RECT& place, COLORREF frame, COLORREF face) {
    const UniqueBrush frameBrush(CreateSolidBrush(frame));
    const UniqueBrush faceBrush(CreateSolidBrush(face));
    RECT inside = place;
    FillRect(dc, &inside, frameBrush.Get());
    InflateRect(&inside, -Scale(1), -ScaleY(1));
    FillRect(dc, &inside, faceBrush.Get());
}

// A small triangle that points down.
void DrawArrow(HDC dc, const RECT& place) {
    const int x = (place.left + place.right) / 2;
    const int y = (place.top + place.bottom) / 2;
    const POINT corners[] = {
        {x - Scale(4), y - ScaleY(2)}, {x + Scale(4), y - ScaleY(2)}, {x, y + ScaleY(2)}};
    const SelectScope brush(dc, GetStockObject(BLACK_BRUSH));
    const SelectScope pen(dc, GetStockObject(BLACK_PEN));
    Polygon(dc, corners, 3);
}
} // namespace

void IconChooser::Create(HWND page, HFONT font, const IconChooserKind& kind, uint32_t value) {
    kind_ = kind;
    withdrawn_ = 0;
    value_ = value;
    if (kind.choice == IconChoice::Set) {
        uint32_t all = 0;
        for (const IconFlag& flag : kind.flags)
            all |= flag.flag;
        value_ &= all;
    }
    label_ = CreateHiddenControl(page, L"STATIC", LanguageText(kind.text).CStr(), SS_RIGHT,
                                 kind.labelId, {}, font);
    if (!CreateStrip(page, kind.id, font) || kind.choice == IconChoice::Set) return;
    if (marker_.Create(Window())) marker_.Show(EntryFlag(ChosenEntry()));
}

void IconChooser::Place(const ControlPlace& label, const ControlPlace& buttons) const {
    if (label_) MoveWindow(label_, label.x, label.y, label.width, label.height, TRUE);
    if (!Window()) return;
    MoveWindow(Window(), buttons.x, buttons.y, buttons.width, buttons.height, TRUE);
    const int frame = Scale(1);
    const int side = buttons.height - 2 * frame;
    if (kind_.choice == IconChoice::One) marker_.Place({frame, frame, side, side});
}

bool IconChooser::IsFlag(uint32_t value) const {
    return std::ranges::find(kind_.flags, value, &IconFlag::flag) != kind_.flags.end();
}

void IconChooser::Withdraw(uint32_t flag) {
    if (!IsFlag(flag)) return;
    withdrawn_ |= flag;
    value_ &= ~flag;
    Redraw();
}

void IconChooser::Offer(uint32_t flag) {
    if (!IsFlag(flag)) return;
    withdrawn_ &= ~flag;
    Redraw();
}

int IconChooser::ButtonCount() const {
    return kind_.choice == IconChoice::One ? 1 : static_cast<int>(kind_.flags.size());
}

bool IconChooser::IsOffered(int button) const {
    return kind_.choice == IconChoice::One || !(withdrawn_ & EntryFlag(button + 1));
}

WideString IconChooser::NameOf(int button) const {
    return EntryName(kind_.choice == IconChoice::One ? ChosenEntry() : button + 1);
}

int IconChooser::ChosenEntry() const {
    for (size_t i = 0; i < kind_.flags.size(); ++i) {
        if (kind_.flags[i].flag == value_) return static_cast<int>(i) + 1;
    }
    return 0;
}

WideString IconChooser::EntryName(int entry) const {
    return LanguageText(entry ? kind_.flags[static_cast<size_t>(entry) - 1].caption
                              : IDS_ICON_NONE);
}

uint32_t IconChooser::EntryFlag(int entry) const {
    return entry ? kind_.flags[static_cast<size_t>(entry) - 1].flag : 0;
}

void IconChooser::DrawButton(HDC dc, int button, const RECT& place, bool hasFocus) {
    if (kind_.choice == IconChoice::One) {
        DrawDropDown(dc, place, hasFocus);
        return;
    }
    const uint32_t flag = EntryFlag(button + 1);
    if (value_ & flag) DrawFrame(dc, place, kChosenFrame, kChosenFace);
    DrawItemIconIn(dc, place, flag);
    if (!IsOffered(button)) Dim(dc, place);
    RECT focus = place;
    InflateRect(&focus, -Scale(2), -ScaleY(2));
    if (hasFocus) DrawFocusRect(dc, &focus);
}

// Like a drop-down list: what is chosen, behind the marker, and an arrow.
void IconChooser::DrawDropDown(HDC dc, const RECT& place, bool hasFocus) const {
    DrawFrame(dc, place, kFrame, RGB(255, 255, 255));
    RECT arrow = place;
    arrow.left = place.right - Scale(kArrowWidth);
    DrawArrow(dc, arrow);
    RECT chosen{place.bottom, Scale(2), arrow.left, place.bottom - Scale(2)};
    if (hasFocus) FillRect(dc, &chosen, GetSysColorBrush(COLOR_HIGHLIGHT));
    chosen.left += Scale(kGap);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(hasFocus ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    const SelectScope font(dc, Font());
    const WideString name = NameOf(0);
    // A narrow button shows the icon alone.
    if (TextWidth(dc, name) <= chosen.right - chosen.left)
        DrawText(dc, name.CStr(), -1, &chosen, kTextFormat);
}

void IconChooser::Press(int button) {
    if (kind_.choice == IconChoice::One) {
        ChooseFromMenu();
        return;
    }
    value_ ^= EntryFlag(button + 1);
    Redraw();
    SendMessage(GetParent(Window()), kMessageToolbarClick, 0, kind_.code);
}

void IconChooser::ChooseFromMenu() {
    const UniqueMenu menu(CreatePopupMenu());
    const int count = static_cast<int>(kind_.flags.size()) + 1;
    // A menu's command 0 would mean that nothing was chosen.
    for (int entry = 0; entry < count; ++entry)
        AppendMenu(menu.Get(), MF_OWNERDRAW | (entry == ChosenEntry() ? MF_CHECKED : 0), entry + 1,
                   nullptr);
    HWND window = Window();
    RECT place{};
    GetWindowRect(window, &place);
    const int command =
        TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD, place.left, place.bottom, window, nullptr);
    // While the menu was open the page may have been closed, and this chooser with it.
    if (command > 0 && IsWindow(window)) ChooseEntry(command - 1);
}

void IconChooser::ChooseEntry(int entry) {
    value_ = EntryFlag(entry);
    marker_.Show(value_);
    Redraw();
    SendMessage(GetParent(Window()), kMessageToolbarMenuSelect, value_, kind_.code);
}

void IconChooser::MeasureEntry(MEASUREITEMSTRUCT& entry) const {
    const int width = FontMeasure(Font()).TextWidth(EntryName(static_cast<int>(entry.itemID) - 1));
    entry.itemWidth = static_cast<UINT>(Scale(kEntryCaption) + width + Scale(kGap));
    entry.itemHeight = static_cast<UINT>(ScaleY(kEntryHeight));
}

void IconChooser::DrawEntry(const DRAWITEMSTRUCT& entry) {
    const int index = static_cast<int>(entry.itemID) - 1;
    const bool isSelected = entry.itemState & ODS_SELECTED;
    FillRect(entry.hDC, &entry.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_MENU));
    RECT icon = entry.rcItem;
    icon.right = icon.left + Scale(kEntryCaption) - Scale(kGap);
    if (index == ChosenEntry()) DrawFrame(entry.hDC, icon, kChosenFrame, kChosenFace);
    DrawItemIconIn(entry.hDC, icon, EntryFlag(index));
    RECT caption = entry.rcItem;
    caption.left += Scale(kEntryCaption);
    const SelectScope font(entry.hDC, Font());
    SetBkMode(entry.hDC, TRANSPARENT);
    SetTextColor(entry.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT));
    DrawText(entry.hDC, EntryName(index).CStr(), -1, &caption, kTextFormat);
}
