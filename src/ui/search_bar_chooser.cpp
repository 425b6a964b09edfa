#include "ui/search_bar_chooser.h"

#include <algorithm>

#include "files/custom_alphabets.h"
#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "ui/controls.h"

namespace {
// Entries and stored numbers: none, built-in, custom ones. All custom ones have one number.
constexpr int kFirstCustom = 2;
constexpr uint32_t kCustom = kFirstCustom;
} // namespace

void SearchBarChooser::Fill(HWND combo) {
    combo_ = combo;
    customs_.clear();
    AddEntry(combo, LanguageText(IDS_SEARCH_BAR_NONE).CStr());
    AddEntry(combo, LanguageText(IDS_SEARCH_BAR_BUILT_IN).CStr());
    for (const CustomAlphabet& custom : ReadCustomAlphabets()) {
        if (custom.alphabet) AddCustom(custom.fileName, custom.alphabet->name);
    }
    shown_ = StoredEntry();
    if (shown_ < 0 && activeSetting_.value == kCustom && !customSetting_.value.IsEmpty()) {
        AddCustom(customSetting_.value, customSetting_.value);
        shown_ = StoredEntry();
    }
    SelectIndex(combo, static_cast<uint32_t>(shown_));
}

void SearchBarChooser::AddCustom(const WideString& fileName, const WideString& text) {
    AddEntry(combo_, text.CStr());
    customs_.push_back(fileName);
}

int SearchBarChooser::StoredEntry() const {
    if (activeSetting_.value < kCustom) return static_cast<int>(activeSetting_.value);
    if (activeSetting_.value != kCustom) return -1;
    int entry = kFirstCustom;
    for (const WideString& custom : customs_) {
        if (lstrcmpi(custom.CStr(), customSetting_.value.CStr()) == 0) return entry;
        ++entry;
    }
    return -1;
}

void SearchBarChooser::Save() {
    const auto entry = static_cast<int>(SendMessage(combo_, CB_GETCURSEL, 0, 0));
    uint32_t active = activeSetting_.value;
    WideString custom = customSetting_.value;
    if (entry >= 0 && entry != shown_) {
        active = static_cast<uint32_t>(std::min(entry, kFirstCustom));
        if (entry >= kFirstCustom) custom = customs_[static_cast<size_t>(entry - kFirstCustom)];
    }
    activeSetting_.Set(active);
    customSetting_.Set(custom.CStr());
}
