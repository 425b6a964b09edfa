#pragma once

#include <cstdint>
#include <span>

#include "pages/settings_page.h"
#include "settings/settings_store.h"
#include "ui/row_layout.h"

// A page that is a form is a table: tabs, rows and enabling rules. Ids of controls are given by
// the row; texts are ids of the language library.

enum class RowKind : uint8_t {
    Check,        // A box for a number that is 1 or 0; checked for 1.
    Switch,       // The same, but every number except 0 is on.
    Choice,       // A drop-down list that stores the index of its entry.
    Number,       // A drop-down list that stores the number its entry carries as data.
    Path,         // A path with a button to clear it and one to browse; four control ids.
    Text,         // A text in one of two columns.
    CustomChoice, // A drop-down list that the page loads and saves.
    Custom,       // Placed, loaded and saved by the page.
};

struct FormTab {
    UINT title;
    // Every control of the tab has an id in this closed range.
    UINT firstId;
    UINT lastId;
};

struct FormRow {
    uint8_t tab;
    RowKind kind;
    UINT labelId = 0; // The label's control; none for a box.
    UINT id;          // The control that holds the value; for a path the first of the four.
    UINT text = 0;    // The label or caption; a custom row may have its own.
    std::span<const UINT> choices = {};
    void (*fillChoices)(HWND combo) = nullptr; // Adds entries that are no texts of the library.
    DwordSetting SettingsStore::*setting = nullptr;
    StringSetting SettingsStore::*path = nullptr; // The path or text.
    uint8_t column = 0;                           // Of a text, from the left.
    bool (*exists)() = nullptr;                   // Null: always.
    int8_t gapAfter = 0; // Units between this row and the next beyond the usual pitch.
    // Of a number: the one whose entry is shown for a stored number that has none.
    uint32_t fallback = 0;
    // A stored number that the row has no entry for, or a box no better than a 1, stays until the
    // user changes what the control shows.
    bool keepsOthers = false;
};

// Enables the controls with an id in a closed range by the state of others.
struct EnablingRule {
    UINT firstId;
    UINT lastId;
    bool (*isEnabled)(HWND page);
};

struct FormTables {
    std::span<const FormTab> tabs;
    std::span<const FormRow> rows;
    std::span<const EnablingRule> rules;
};

class FormPage : public SettingsPage {
  public:
    explicit FormPage(const FormTables& tables) : tables_(tables) {}

    [[nodiscard]] int GetTabCount() const override;
    [[nodiscard]] UINT GetTabTitleId(int index) const override;
    void CreateControls(HWND window) override;
    void ShowTab(HWND window, int showCommand) override;
    void SaveValues(HWND window, WPARAM wParam) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    // Places the rows again when the page's size has changed, as when the screen was turned.
    LRESULT Layout(HWND window) override;

  protected:
    // Makes the row's controls at the cursor, or moves those that are there already.
    virtual void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout);
    // Shows the stored value in the row's new controls.
    virtual void LoadCustomRow(HWND window, const FormRow& row);
    virtual void SaveCustomRow(HWND window, const FormRow& row);
    // A path row's browse button was tapped: `path` gives the one shown and receives the chosen
    // one; false when the user cancels.
    virtual bool BrowsePath(HWND window, const FormRow& row, WideString& path);
    // Enables by the table's rules; done whenever a box or a drop-down list was changed.
    void ApplyRules(HWND window) const;
    // Stores what the rows show, the part of SaveValues that follows the hiding of the tab.
    void SaveRows(HWND window);

  private:
    template <typename Wanted>
    void PlaceRows(HWND window, Wanted isWanted);
    void PlaceRow(HWND window, const FormRow& row, RowLayout& layout);
    void LoadRow(HWND window, const FormRow& row);
    void SaveRow(HWND window, const FormRow& row);
    [[nodiscard]] const FormRow* PathRowOfButton(UINT id) const;
    void OnPathButton(HWND window, const FormRow& row, UINT id);

    FormTables tables_;
};
