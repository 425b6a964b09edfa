#include "pages/option_lists.h"

#include <algorithm>
#include <utility>

#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
constexpr int kTop = 8;
constexpr int kMargin = 10;
constexpr int kBelowTop = 96; // What the panel and the tab strip take from the page's height.
constexpr int kRowHeight = 21;

WideString TipOf(const Option& option) {
    WideString tip = LanguageText(option.texts.tip);
    if (!option.tipNumber) return tip;
    WideString formatted;
    formatted.Format(tip.CStr(), option.tipNumber());
    return formatted;
}

void PlaceList(HWND page, HWND list) {
    const SIZE size = ClientSize(page);
    const int left = Scale(kMargin);
    const int top = ScaleY(kTop);
    // Little is left of a low screen while the input panel covers its half.
    const int height = std::max(0L, size.cy - ScaleY(kBelowTop) - top);
    PlaceControl(list,
                 {left, top + ScaleY(OptionDetailPanel::kHeight), size.cx - 2 * left, height});
    FitColumn(list);
}
} // namespace

void OptionLists::Create(HWND page, HFONT font, std::span<const OptionList> lists,
                         UINT firstPanelId) {
    font_ = font;
    lists_ = lists;
    explainCommand_ = firstPanelId + OptionDetailPanel::kIdCount;
    shown_ = nullptr;
    refused_ = nullptr;
    panel_ = OptionDetailPanel(page, font, firstPanelId, kTop);
}

void OptionLists::Place(HWND page) {
    for (const OptionList& list : lists_) {
        if (HWND control = Item(page, list.listId)) PlaceList(page, control);
    }
    panel_.Place();
}

void OptionLists::Enter(HWND page, UINT listId) {
    const OptionList* list = ListOfId(listId);
    if (!list || Item(page, listId)) return;
    // The panel stands above the lists, and so do its keys.
    panel_.Create();
    HWND control = CreateList(page, listId, font_, kRowHeight);
    for (const Option& option : list->options)
        AddRow(control, LanguageText(option.texts.item).CStr());
    PlaceList(page, control);
}

void OptionLists::Leave(HWND page, UINT listId) {
    HWND list = ListOfId(listId) ? Item(page, listId) : nullptr;
    if (!list) return;
    StoreShown(page);
    ClearSelection(list);
}

bool OptionLists::OnCommand(HWND page, UINT id) {
    if (id != explainCommand_) return false;
    ExplainRefusal(page);
    return true;
}

void OptionLists::ExplainRefusal(HWND owner) {
    // Nothing of this object is touched behind the message box.
    if (const Option* option = std::exchange(refused_, nullptr)) option->explain(owner);
}

void OptionLists::OnNotify(HWND page, const NMHDR& header) {
    const OptionList* list = ListOfId(static_cast<UINT>(header.idFrom));
    if (!list) return;
    switch (header.code) {
    case LVN_ITEMCHANGED:
        OnItemChanged(page, *list, reinterpret_cast<const NMLISTVIEW&>(header));
        break;
    case LVN_ITEMACTIVATE:
        // Enter on a row that only has the focus, as the first one after the list was entered.
        if (const int row = FocusedRow(header.hwndFrom); row >= 0) SelectRow(header.hwndFrom, row);
        break;
    default:
        break;
    }
}

void OptionLists::OnItemChanged(HWND page, const OptionList& list, const NMLISTVIEW& change) {
    if (!(change.uChanged & LVIF_STATE)) return;
    const UINT flipped = (change.uOldState ^ change.uNewState) & LVIS_SELECTED;
    if (!flipped || change.iItem < 0 || static_cast<size_t>(change.iItem) >= list.options.size())
        return;
    const Option& option = list.options[static_cast<size_t>(change.iItem)];
    if (change.uNewState & LVIS_SELECTED) {
        Present(page, option);
    } else if (shown_ == &option) {
        StoreShown(page);
    }
}

void OptionLists::Present(HWND page, const Option& option) {
    panel_.Hide();
    shown_ = &option;
    const WideString tip = TipOf(option);
    const WideString label = LanguageText(option.texts.label);
    switch (option.kind) {
    case OptionKind::Check:
        panel_.ShowCheck(label.CStr(), tip.CStr(), (settingsStore.*option.setting).value != 0);
        break;
    case OptionKind::Choice:
        PresentChoice(option, label.CStr(), tip.CStr());
        break;
    case OptionKind::Path:
        panel_.ShowPath(tip.CStr(), (settingsStore.*option.text).value.CStr());
        break;
    case OptionKind::Text:
        panel_.ShowText(tip.CStr(), (settingsStore.*option.text).value.CStr());
        break;
    case OptionKind::Custom:
        option.showCustom(page, SW_SHOW);
        break;
    }
}

void OptionLists::PresentChoice(const Option& option, const wchar_t* label, const wchar_t* tip) {
    HWND combo = panel_.ShowCombo(label, tip);
    if (option.fill) option.fill(combo);
    for (const UINT choice : option.choices)
        AddEntry(combo, LanguageText(choice).CStr());
    panel_.FitEntries();
    const uint32_t value = (settingsStore.*option.setting).value;
    if (!option.storesData)
        SelectIndex(combo, value - option.firstNumber);
    else if (!SelectData(combo, value))
        SelectIndex(combo, 0);
}

void OptionLists::Refuse(HWND page, const Option& option) {
    refused_ = &option;
    PostMessage(page, WM_COMMAND, explainCommand_, 0);
}

void OptionLists::StoreShown(HWND page) {
    // Off the panel first: what follows may deselect the row once more.
    const Option* option = std::exchange(shown_, nullptr);
    if (!option) return;
    switch (option->kind) {
    case OptionKind::Check: {
        const bool refused = panel_.IsChecked() && option->refuses && option->refuses();
        (settingsStore.*option->setting).Set(panel_.IsChecked() && !refused ? 1 : 0);
        if (refused) Refuse(page, *option);
        break;
    }
    case OptionKind::Choice:
        (settingsStore.*option->setting).Set(ChosenNumber(*option));
        break;
    case OptionKind::Path:
        (settingsStore.*option->text).Set(panel_.Path().CStr());
        break;
    case OptionKind::Text:
        (settingsStore.*option->text).Set(panel_.Text().CStr());
        break;
    case OptionKind::Custom:
        option->showCustom(page, SW_HIDE);
        break;
    }
    panel_.Hide();
}

uint32_t OptionLists::ChosenNumber(const Option& option) const {
    HWND combo = panel_.Combo();
    if (option.storesData) return SelectedData(combo);
    const LRESULT entry = SendMessage(combo, CB_GETCURSEL, 0, 0);
    return static_cast<uint32_t>(entry) + option.firstNumber;
}

const OptionList* OptionLists::ListOfId(UINT id) const {
    const auto found = std::ranges::find(lists_, id, &OptionList::listId);
    return found == lists_.end() ? nullptr : &*found;
}
