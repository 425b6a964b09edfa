#include "pages/category_controls.h"

#include <commctrl.h>

#include <algorithm>

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"

using namespace category_controls;

namespace {
// Where a control stands, in units. A negative x or y counts from the right or lower edge of the
// room above the tabs; a width or height below 1 leaves so much of the room free.
struct Spot {
    int x, y, width, height;
};

struct PageControl {
    UINT id;
    const wchar_t* className;
    DWORD style;
    UINT text; // 0 for none.
    Spot upright;
    Spot wide; // On a screen that is wider than high.
};

constexpr DWORD kListStyle = WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                             LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS | LVS_OWNERDRAWFIXED;
constexpr DWORD kComboStyle = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST;
constexpr DWORD kCheckStyle = WS_TABSTOP | BS_AUTOCHECKBOX;

constexpr PageControl kControls[] = {
    {kCategories, WC_LISTVIEW, kListStyle, 0, {6, 6, -6, -34}, {6, 6, -6, -34}},
    {kIcon, L"BUTTON", WS_TABSTOP, IDS_CATEGORY_ICON, {6, -28, 111, 22}, {6, -28, 111, 22}},
    {kColour,
     L"BUTTON",
     WS_TABSTOP,
     IDS_CATEGORY_COLOUR,
     {-117, -28, 111, 22},
     {-117, -28, 111, 22}},
    {kFilterLabel, L"STATIC", SS_LEFT, IDS_FILTER, {6, 9, 40, 16}, {6, 9, 40, 16}},
    {kFilter, L"COMBOBOX", kComboStyle, 0, {46, 6, -84, 140}, {46, 6, 126, 140}},
    {kRename, L"BUTTON", WS_TABSTOP, IDS_FILTER_RENAME, {-78, 6, 72, 20}, {46, 30, 126, 20}},
    {kVisible, L"BUTTON", kCheckStyle, IDS_FILTER_VISIBLE, {6, 32, -6, 20}, {6, 54, 166, 20}},
    {kUncategorized,
     L"BUTTON",
     kCheckStyle,
     IDS_FILTER_UNCATEGORIZED,
     {6, 54, -6, 20},
     {6, 75, 166, 20}},
    {kSensitivityLabel,
     L"STATIC",
     SS_LEFT,
     IDS_FILTER_SENSITIVITY,
     {6, 81, 102, 16},
     {6, 101, 62, 16}},
    {kSensitivity, L"COMBOBOX", kComboStyle, 0, {-131, 78, 125, 100}, {70, 98, 102, 100}},
    {kTickAll, L"BUTTON", WS_TABSTOP, IDS_FILTER_TICK_ALL, {6, 104, 111, 20}, {6, 124, 81, 20}},
    {kTickNone,
     L"BUTTON",
     WS_TABSTOP,
     IDS_FILTER_TICK_NONE,
     {-117, 104, 111, 20},
     {91, 124, 81, 20}},
};
// The list of members is made by the makers of lists.
constexpr Spot kMembersUpright{6, 128, -6, -6};
constexpr Spot kMembersWide{178, 6, -6, -6};

// A square screen is upright, but low: the list has its buttons at its side.
constexpr struct {
    UINT id;
    Spot spot;
} kSquare[] = {
    {kTickAll, {-87, 102, 81, 20}},
    {kTickNone, {-87, 126, 81, 20}},
    {kMembers, {6, 102, -93, -6}},
};

// Of a row with a tick, in units: what a finger needs.
constexpr int kMemberHeight = 21;

ControlPlace PlaceOf(const Spot& spot, SIZE room) {
    const auto start = [](int scaled, int length) { return scaled < 0 ? length + scaled : scaled; };
    const auto extent = [](int scaled, int from, int length) {
        return scaled > 0 ? scaled : std::max(0, length + scaled - from);
    };
    const int x = start(Scale(spot.x), room.cx);
    const int y = start(ScaleY(spot.y), room.cy);
    return {x, y, extent(Scale(spot.width), x, room.cx), extent(ScaleY(spot.height), y, room.cy)};
}

// The spot on this screen. By the screen: the input panel must not make an upright page a wide one.
const Spot& SpotOf(UINT id, const Spot& upright, const Spot& wide) {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    if (width > height) return wide;
    for (const auto& control : kSquare) {
        if (width == height && control.id == id) return control.spot;
    }
    return upright;
}

ControlPlace PlaceOf(const PageControl& control, SIZE room) {
    return PlaceOf(SpotOf(control.id, control.upright, control.wide), room);
}

void PlaceMembers(HWND page, SIZE room) {
    PlaceControl(Item(page, kMembers),
                 PlaceOf(SpotOf(kMembers, kMembersUpright, kMembersWide), room));
}

// Rows that the page draws need a list that asks for their height when it is made.
void PrepareOwnerDrawn(HWND list) {
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    AddColumn(list);
}
} // namespace

void CreateCategoryControls(HWND page, HFONT font, SIZE room) {
    for (const PageControl& control : kControls) {
        const WideString text = control.text ? LanguageText(control.text) : WideString();
        CreateHiddenControl(page, control.className, text.CStr(), control.style, control.id,
                            PlaceOf(control, room), font);
    }
    PrepareOwnerDrawn(Item(page, kCategories));
    AddTickBoxes(CreateList(page, kMembers, font, kMemberHeight));
    PlaceMembers(page, room);
}

void PlaceCategoryControls(HWND page, SIZE room) {
    for (const PageControl& control : kControls)
        PlaceControl(Item(page, control.id), PlaceOf(control, room));
    PlaceMembers(page, room);
    FitColumn(Item(page, kCategories));
    FitColumn(Item(page, kMembers));
}
