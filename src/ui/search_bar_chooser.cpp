#include "ui/search_bar_chooser.h"

#include "files/custom_alphabets.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "ui/controls.h"

namespace {
constexpr int kFirstCustom = 2; // Entries: none, built-in, custom ones.
} // namespace

void SearchBarChooser::Fill(HWND combo, const SearchBarChoice& stored) {
    combo_ = combo;
    stored_ = stored;
    customs_.clear();
    AddEntry(combo, LanguageText(IDS_SEARCH_BAR_NONE).CStr());
    AddEntry(combo, LanguageText(IDS_SEARCH_BAR_BUILT_IN).CStr());
    for (const CustomAlphabet& custom : ReadCustomAlphabets()) {
        if (custom.alphabet) AddCustom(custom.fileName, custom.alphabet->name);
    }
    shown_ = EntryOf(stored);
    if (shown_ < 0 && stored.active == SearchBarChoice::kCustom && !stored.custom.IsEmpty()) {
        AddCustom(stored.custom, stored.custom);
        shown_ = EntryOf(stored);
    }
    SelectIndex(combo, static_cast<uint32_t>(shown_));
}

void SearchBarChooser::AddCustom(const WideString& fileName, const WideString& text) {
    AddEntry(combo_, text.CStr());
    customs_.push_back(fileName);
}

int SearchBarChooser::EntryOf(const SearchBarChoice& choice) const {
    if (choice.active < SearchBarChoice::kCustom) return static_cast<int>(choice.active);
    if (choice.active != SearchBarChoice::kCustom) return -1;
    int entry = kFirstCustom;
    for (const WideString& custom : customs_) {
        if (lstrcmpi(custom.CStr(), choice.custom.CStr()) == 0) return entry;
        ++entry;
    }
    return -1;
}

SearchBarChoice SearchBarChooser::Choice() const {
    const auto entry = static_cast<int>(SendMessage(combo_, CB_GETCURSEL, 0, 0));
    if (entry < 0 || entry == shown_) return stored_;
    if (entry < kFirstCustom) return {static_cast<uint32_t>(entry), stored_.custom};
    return {SearchBarChoice::kCustom, customs_[static_cast<size_t>(entry - kFirstCustom)]};
}
