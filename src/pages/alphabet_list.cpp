#include "pages/alphabet_list.h"

#include <commctrl.h>

#include <utility>

#include "files/custom_alphabets.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/number_text.h"
#include "shell/services/resource_strings.h"
#include "shell/services/text_order.h"
#include "ui/list_items.h"

namespace {
constexpr int kRowHeight = 21; // Units.

struct Language {
    UINT name;
    uint32_t flag;
};
constexpr Language kLanguages[] = {
    {IDS_ALPHABET_ENGLISH, 1}, {IDS_ALPHABET_FRENCH, 2},      {IDS_ALPHABET_GERMAN, 4},
    {IDS_ALPHABET_ITALIAN, 8}, {IDS_ALPHABET_PORTUGUESE, 16}, {IDS_ALPHABET_SPANISH, 32},
};

// A name with a remark in brackets behind it.
WideString Remarked(const WideString& name, const WideString& remark) {
    WideString text(name);
    text.Append(L" (");
    text.Append(remark.CStr());
    text.Append(L")");
    return text;
}

// Not with its letters: the device's font may lack them.
WideString Described(const Alphabet& alphabet) {
    WideString buttons = LanguageText(IDS_ALPHABET_BUTTONS);
    buttons.Append(L" ");
    buttons.Append(DecimalText(static_cast<int32_t>(alphabet.groups.size())).CStr());
    return Remarked(alphabet.name, buttons);
}
} // namespace

void AlphabetList::Create(HWND page, UINT id, HFONT font) {
    list_ = CreateList(page, id, font, kRowHeight);
    AddTickBoxes(list_);
}

void AlphabetList::Place(const ControlPlace& place) const {
    PlaceControl(list_, place);
    FitColumn(list_);
}

void AlphabetList::Fill() {
    AddLanguages();
    AddCustoms();
    FitColumn(list_);
}

void AlphabetList::AddLanguages() {
    for (const Language& language : kLanguages) {
        Row row;
        row.language = language.flag;
        row.wasActive = settingsStore.CntctsActiveLanguages.value & language.flag;
        AddRow(row, LanguageText(language.name));
    }
}

void AlphabetList::AddCustoms() {
    const std::vector<WideString>& stored = settingsStore.customAlphabets.Texts();
    TextSet active(stored.begin(), stored.end());
    const bool isKnown = settingsStore.customAlphabets.IsKnown();
    for (const CustomAlphabet& custom : ReadCustomAlphabets()) {
        Row row;
        row.fileName = custom.fileName;
        row.wasActive = active.erase(custom.fileName) > 0;
        row.isUsable = isKnown && (custom.alphabet || row.wasActive);
        AddRow(row, custom.alphabet
                        ? Described(*custom.alphabet)
                        : Remarked(custom.fileName, LanguageText(IDS_ALPHABET_UNREADABLE)));
    }
    for (const WideString& missing : active) {
        if (missing.IsEmpty()) continue; // No file has such a name.
        Row row;
        row.fileName = missing;
        row.wasActive = true;
        AddRow(row, Remarked(missing, LanguageText(IDS_ALPHABET_MISSING)));
    }
}

void AlphabetList::AddRow(const Row& row, const WideString& text) {
    rows_.push_back(row);
    ::AddRow(list_, text.CStr());
    TickRow(list_, static_cast<int>(rows_.size()) - 1, row.wasActive);
}

void AlphabetList::OnNotify(const NMHDR& header) const {
    if (header.hwndFrom != list_) return;
    if (header.code == LVN_ITEMCHANGED) {
        const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
        if (change.iItem >= 0) RefuseTick(change.iItem);
    } else if (header.code == NM_RETURN) {
        ToggleFocusedRow(list_);
    }
}

void AlphabetList::RefuseTick(int row) const {
    const auto index = static_cast<size_t>(row);
    if (index < rows_.size() && !rows_[index].isUsable && IsRowTicked(list_, row))
        TickRow(list_, row, false);
}

void AlphabetList::Save() const {
    uint32_t languages = settingsStore.CntctsActiveLanguages.value;
    std::vector<WideString> active;
    bool hasOtherCustoms = false;
    for (size_t row = 0; row < rows_.size(); ++row) {
        const bool isTicked = IsRowTicked(list_, static_cast<int>(row));
        const bool isCustom = rows_[row].language == 0;
        if (isTicked != rows_[row].wasActive) languages ^= rows_[row].language;
        if (isCustom && isTicked != rows_[row].wasActive) hasOtherCustoms = true;
        if (isCustom && isTicked) active.push_back(rows_[row].fileName);
    }
    settingsStore.CntctsActiveLanguages.Set(languages);
    // Otherwise the stored list stays, in its own order.
    if (hasOtherCustoms) settingsStore.customAlphabets.Set(std::move(active));
}
