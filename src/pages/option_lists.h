#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <span>

#include "settings/settings_store.h"
#include "ui/option_detail_panel.h"

// Options that fill more than a screen: a list of their names and, above it, a panel that shows the
// value of the selected one. An option is stored when its row loses the selection and when its list
// is left. A page with such lists is a table, like a form.

enum class OptionKind : uint8_t {
    Check,  // A box; the number is 1 or 0.
    Choice, // A drop-down list.
    Path,   // A path to clear or to browse for.
    Text,   // A free text.
    Custom, // Shown and stored by the page.
};

struct OptionTexts {
    UINT item;  // The option's row.
    UINT label; // Beside its value; 0 where there is none.
    UINT tip;
};

struct Option {
    OptionKind kind = OptionKind::Check;
    OptionTexts texts;
    DwordSetting SettingsStore::*setting = nullptr;
    StringSetting SettingsStore::*text = nullptr;

    // Of a drop-down list: its entries, given as texts or added by a function.
    std::span<const UINT> choices = {};
    void (*fill)(HWND combo) = nullptr;
    uint8_t firstNumber = 0; // The number that the first entry stands for.
    bool storesData = false; // The number is the entry's data; the first entry shows any other.

    int (*tipNumber)() = nullptr; // For a tip that is a format of one number.

    // A ticked box that is refused is stored as 0, and then a message box tells the user why. Its
    // owner, and with it the page, may be gone when `explain` returns.
    bool (*refuses)() = nullptr;
    void (*explain)(HWND owner) = nullptr;

    void (*showCustom)(HWND page, int showCommand) = nullptr;
};

struct OptionList {
    UINT listId;
    std::span<const Option> options;
};

class OptionLists {
  public:
    // The table must outlive the object. No control is made yet.
    void Create(HWND page, HFONT font, std::span<const OptionList> lists, UINT firstPanelId);
    // Places anew what is there, after the page's size has changed.
    void Place(HWND page);

    // Makes a list that is about to be shown for the first time, hidden, and with the first of them
    // the panel. Filling a list is slow, and of a page's lists only few are ever looked at. An id
    // that is no list's does nothing.
    void Enter(HWND page, UINT listId);
    // Stores the selected option of a list that is about to be hidden, which leaves nothing
    // selected and the panel hidden. An id that is no list's does nothing.
    void Leave(HWND page, UINT listId);

    // The page's notifications; those of other controls are passed over.
    void OnNotify(HWND page, const NMHDR& header);

    // A list tells of a lost selection in the middle of its work, so a refusal is not explained
    // there: in the message box's loop the page may go, and the list with it. The lists post a
    // command to the page instead; true when it is theirs. The page, and this object, may be gone
    // then.
    bool OnCommand(HWND page, UINT id);
    // Explains at once a refusal that no command has explained yet, as when the page closes.
    void ExplainRefusal(HWND owner);

    [[nodiscard]] const OptionDetailPanel& Panel() const { return panel_; }

  private:
    [[nodiscard]] const OptionList* ListOfId(UINT id) const;
    void OnItemChanged(HWND page, const OptionList& list, const NMLISTVIEW& change);
    void Present(HWND page, const Option& option);
    void PresentChoice(const Option& option, const wchar_t* label, const wchar_t* tip);
    // Takes the shown option off the panel.
    void StoreShown(HWND page);
    void Refuse(HWND page, const Option& option);
    [[nodiscard]] uint32_t ChosenNumber(const Option& option) const;

    HFONT font_ = nullptr;
    std::span<const OptionList> lists_;
    OptionDetailPanel panel_;
    UINT explainCommand_ = 0;
    const Option* shown_ = nullptr;   // The option on the panel.
    const Option* refused_ = nullptr; // Refused, and the user does not know why yet.
};
