#include "pages/category_page.h"

#include <commctrl.h>

#include <algorithm>

#include "files/category_icons.h"
#include "pages/category_controls.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/colour_picker.h"
#include "ui/controls.h"
#include "ui/filter_name_dialog.h"
#include "ui/folder_dialog.h"
#include "ui/image_picker.h"
#include "ui/list_items.h"
#include "ui/messages.h"
#include "ui/picture.h"

using namespace category_controls;

namespace {
constexpr UINT kSensitivities[] = {IDS_FILTER_SENSITIVITY_ALL, IDS_FILTER_SENSITIVITY_PUBLIC,
                                   IDS_FILTER_SENSITIVITY_PRIVATE};

constexpr FormTab kTabs[] = {
    {IDS_TAB_CATEGORY_CATEGORIES, kCategories, kColour},
    {IDS_TAB_CATEGORY_FILTERS, kFilterLabel, kMembers},
    {IDS_TAB_MISCELLANEOUS, kFolder, kFolderBrowse},
};
constexpr FormRow kRows[] = {
    {.tab = 2,
     .kind = RowKind::Path,
     .id = kFolder,
     .text = IDS_CATEGORY_ICONS_FOLDER,
     .path = &SettingsStore::AdditionalIconsFolder},
};
constexpr FormTables kTables{kTabs, kRows, {}};

// Of a category's row, in units.
constexpr int kCategoryHeight = 24;
constexpr int kRowMargin = 2;
constexpr int kIconSize = 20;
constexpr int kNameGap = 5;
constexpr int kSampleWidth = 44;

// To a list that is hidden, so that nothing is drawn row by row. Redrawing is not turned off: on
// the device turning it on again may show a hidden list.
void AddCategories(HWND list) {
    for (const auto& category : categoryStore.All())
        AddRow(list, category->name.CStr());
    FitColumn(list);
}

void TickAll(HWND list, bool isTicked) {
    for (int row = 0; row < RowCount(list); ++row)
        TickRow(list, row, isTicked);
}

void FillFilters(HWND combo, int selected) {
    SendMessage(combo, CB_RESETCONTENT, 0, 0);
    for (const FilterEntry& filter : categoryStore.AllFilters())
        AddEntry(combo, filter.title.CStr());
    SelectIndex(combo, static_cast<uint32_t>(std::max(0, selected)));
}

FilterEntry* FilterAt(int position) {
    return categoryStore.FindFilter(static_cast<uint32_t>(position + 1));
}

void SaveFilter(HWND window, int position) {
    FilterEntry* filter = FilterAt(position);
    if (!filter) return;
    const uint32_t bit = 1U << position;
    int row = 0;
    for (const auto& category : categoryStore.All()) {
        const bool belongs = IsRowTicked(Item(window, kMembers), row++);
        category->filters = belongs ? category->filters | bit : category->filters & ~bit;
    }
    filter->visible = IsBoxChecked(window, kVisible);
    filter->includeUncategorized = IsBoxChecked(window, kUncategorized);
    // The file may hold a number that is none of the entries; it stays until one is chosen.
    const int sensitivity = SelectedIndex(window, kSensitivity);
    if (sensitivity >= 0) filter->sensitivity = sensitivity;
}

// Null when none is selected.
CategoryEntry* SelectedCategory(HWND window) {
    const auto row = static_cast<size_t>(SelectedRow(Item(window, kCategories)));
    return row < categoryStore.All().size() ? categoryStore.All()[row].get() : nullptr;
}

void EnableCategoryButtons(HWND window) {
    EnableControlRange(window, kIcon, kColour, SelectedCategory(window) != nullptr);
}

void ShowCategoryAgain(HWND window) {
    InvalidateRect(Item(window, kCategories), nullptr, FALSE);
    SetFocus(Item(window, kCategories));
}

void ChooseColour(HWND window) {
    CategoryEntry* category = SelectedCategory(window);
    if (!category) return;
    const COLORREF colour = PickColour(window, category->colour);
    // Another program may have closed the page meanwhile.
    if (!IsWindow(window)) return;
    if (colour != kPickCancelled) category->colour = colour;
    ShowCategoryAgain(window);
}

void ChooseIcon(HWND window) {
    CategoryEntry* category = SelectedCategory(window);
    if (!category) return;
    const WideString file = CategoryIconPath(category->name);
    if (file.IsEmpty()) {
        ShowMessage(window, IDS_CATEGORY_NO_FILE, IDS_CATEGORY_NO_FILE_CAPTION);
        return;
    }
    const bool exists = GetFileAttributes(file.CStr()) != INVALID_FILE_ATTRIBUTES;
    const WideString current = exists ? file : WideString();
    WideString chosen = current;
    const bool isConfirmed = PickImage(window, chosen);
    if (!IsWindow(window)) return;
    if (isConfirmed && chosen != current)
        category->icon = ReplaceCategoryIcon(category->name, chosen);
    ShowCategoryAgain(window);
}
} // namespace

CategoryPage::CategoryPage() : FormPage(kTables) {}

void CategoryPage::CreateControls(HWND window) {
    CreateCategoryControls(window, normalFont, Room(window));
    FormPage::CreateControls(window);
    FillLists(window);
    ShowFilter(window, 0);
    EnableCategoryButtons(window);
}

void CategoryPage::FillLists(HWND window) {
    AddCategories(Item(window, kCategories));
    AddCategories(Item(window, kMembers));
    for (const UINT text : kSensitivities)
        AddEntry(Item(window, kSensitivity), LanguageText(text).CStr());
    FillFilters(Item(window, kFilter), 0);
}

void CategoryPage::SaveValues(HWND window, WPARAM wParam) {
    FormPage::SaveValues(window, wParam);
    SaveFilter(window, shownFilter_);
}

LRESULT CategoryPage::Layout(HWND window) {
    FormPage::Layout(window);
    PlaceCategoryControls(window, Room(window));
    return 0;
}

SIZE CategoryPage::Room(HWND window) const {
    const SIZE size = ClientSize(window);
    RECT strip{};
    GetWindowRect(tabStrip, &strip);
    return {size.cx, size.cy - (strip.bottom - strip.top)};
}

LRESULT CategoryPage::OnMeasureItem(HWND, UINT, WPARAM, LPARAM lParam) {
    reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight =
        static_cast<UINT>(ScaleY(kCategoryHeight));
    return TRUE;
}

LRESULT CategoryPage::OnDrawItem(HWND, UINT, WPARAM, LPARAM lParam) {
    const auto& row = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    if (row.CtlID != kCategories || row.itemID >= categoryStore.All().size()) return 0;
    DrawCategory(row, *categoryStore.All()[row.itemID]);
    return TRUE;
}

void CategoryPage::DrawCategory(const DRAWITEMSTRUCT& row, const CategoryEntry& category) const {
    const bool isSelected = (row.itemState & ODS_SELECTED) != 0;
    const RECT& place = row.rcItem;
    FillRect(row.hDC, &place, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const RECT icon{place.left + Scale(kRowMargin), place.top + ScaleY(kRowMargin),
                    place.left + Scale(kRowMargin + kIconSize), place.bottom - ScaleY(kRowMargin)};
    DrawPicture(row.hDC, icon, category.icon.Get());
    const int sample = place.right - Scale(kRowMargin + kSampleWidth);
    const int previousMode = SetBkMode(row.hDC, TRANSPARENT);
    const COLORREF previousColour = SetTextColor(row.hDC, GetSysColor(COLOR_WINDOWTEXT));
    DrawColourSample(row.hDC, category.colour, sample, place.top + ScaleY(kRowMargin));
    if (isSelected) SetTextColor(row.hDC, GetSysColor(COLOR_HIGHLIGHTTEXT));
    RECT name{icon.right + Scale(kNameGap), place.top, sample - Scale(kNameGap), place.bottom};
    const SelectScope font(row.hDC, normalFont);
    DrawText(row.hDC, category.name.CStr(), -1, &name,
             DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SetTextColor(row.hDC, previousColour);
    SetBkMode(row.hDC, previousMode);
    if (row.itemState & ODS_FOCUS) DrawFocusRect(row.hDC, &place);
}

LRESULT CategoryPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    // Only what a control tells counts; an accelerator or a menu has no window.
    if (!lParam) return 0;
    if (id >= kFolder) {
        FormPage::OnCommand(window, message, wParam, lParam);
        // The page may be closed and gone by now.
        if ((id == kFolderClear || id == kFolderBrowse) && IsWindow(window)) OnPathChanged(window);
        return 0;
    }
    // A list that is given up by key may keep the entry that was only looked at, and tells no
    // change.
    if (id == kFilter && (HIWORD(wParam) == CBN_SELCHANGE || HIWORD(wParam) == CBN_CLOSEUP))
        ChangeFilter(window);
    if (HIWORD(wParam) == BN_CLICKED) OnButton(window, id);
    return 0;
}

void CategoryPage::OnButton(HWND window, UINT id) {
    switch (id) {
    case kIcon:
        ChooseIcon(window);
        break;
    case kColour:
        ChooseColour(window);
        break;
    case kRename:
        RenameFilter(window);
        break;
    case kTickAll:
    case kTickNone:
        TickAll(Item(window, kMembers), id == kTickAll);
        break;
    default:
        break;
    }
}

// The icons of the folder are to be had at once, not only when the page is left.
void CategoryPage::OnPathChanged(HWND window) {
    const WideString path = ControlText(Item(window, kFolderEdit));
    StringSetting& setting = settingsStore.AdditionalIconsFolder;
    if (path != setting.value) setting.Set(path.CStr());
}

bool CategoryPage::BrowsePath(HWND window, const FormRow&, WideString& path) {
    return SelectFolder(window, L"Additional Icons Path", path);
}

LRESULT CategoryPage::OnNotify(HWND window, UINT, WPARAM, NMHDR* header) {
    if (header->idFrom == kCategories && header->code == LVN_ITEMCHANGED)
        EnableCategoryButtons(window);
    if (header->idFrom == kMembers && header->code == NM_RETURN) ToggleFocusedRow(header->hwndFrom);
    return 0;
}

void CategoryPage::ChangeFilter(HWND window) {
    const int position = SelectedIndex(window, kFilter);
    if (position == shownFilter_) return;
    SaveFilter(window, shownFilter_);
    ShowFilter(window, position);
}

void CategoryPage::ShowFilter(HWND window, int position) {
    const FilterEntry* filter = FilterAt(position);
    if (!filter) return;
    shownFilter_ = position;
    const uint32_t bit = 1U << position;
    int row = 0;
    for (const auto& category : categoryStore.All())
        TickRow(Item(window, kMembers), row++, (category->filters & bit) != 0);
    SendMessage(Item(window, kVisible), BM_SETCHECK, filter->visible, 0);
    SendMessage(Item(window, kUncategorized), BM_SETCHECK, filter->includeUncategorized, 0);
    SelectIndex(Item(window, kSensitivity), static_cast<uint32_t>(filter->sensitivity));
}

void CategoryPage::RenameFilter(HWND window) {
    HWND combo = Item(window, kFilter);
    const int position = SelectedIndex(window, kFilter);
    WideString title = ControlText(combo);
    if (!AskFilterName(window, title) || !IsWindow(window)) return;
    if (FilterEntry* filter = FilterAt(position)) filter->title = title;
    FillFilters(combo, position);
}
