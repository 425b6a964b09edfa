#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"

// The controls above a list of options that show the value of the selected one: a tip and, below
// it, a box, a drop-down list, a path or a free text. One panel serves all lists of a page. Its
// controls start hidden and have nine ids in a row.
class OptionDetailPanel {
  public:
    static constexpr UINT kIdCount = 9;
    static constexpr int kTextLimit = 255; // Characters of a path or text.
    static constexpr int kHeight = 68;     // Units, from the page's top margin to the list below.

    // `top` is in units, as are all measures of the panel. No control is made yet.
    OptionDetailPanel(HWND page, HFONT font, UINT firstId, int top)
        : page_(page), font_(font), firstId_(firstId), top_(top) {}
    OptionDetailPanel() = default;

    // Makes the controls where they are missing.
    void Create() const;
    // Places them, if there are any, on the page's present width.
    void Place() const;
    void Hide() const;

    void ShowCheck(const wchar_t* label, const wchar_t* tip, bool checked) const;
    // Shows the drop-down list, emptied; the caller fills it and ends with FitEntries.
    HWND ShowCombo(const wchar_t* label, const wchar_t* tip);
    // Widens the drop-down list to its left, as far as its label leaves room, where its entries are
    // longer than the list is wide.
    void FitEntries();
    void ShowPath(const wchar_t* tip, const wchar_t* path) const;
    void ShowText(const wchar_t* tip, const wchar_t* text) const;

    [[nodiscard]] bool IsChecked() const;
    [[nodiscard]] HWND Combo() const;
    [[nodiscard]] WideString Path() const;
    [[nodiscard]] WideString Text() const;

    // A click on one of the panel's buttons: clearing is done here and true the answer.
    [[nodiscard]] bool OnButton(UINT id) const;
    // The button that browses for a path, and the edit field that shows the path; what is opened is
    // the page's business.
    [[nodiscard]] UINT BrowseId() const;
    [[nodiscard]] HWND PathField() const;

  private:
    // In the order of their ids.
    enum Part : UINT {
        Tip,
        ComboLabel,
        ComboBox,
        CheckBox,
        PathEdit,
        PathClear,
        PathBrowse,
        TextEdit,
        TextClear
    };

    [[nodiscard]] HWND Control(Part part) const;
    void PlaceCombo(int width) const;
    void SetPartText(Part part, const wchar_t* text) const;
    void Show(Part first, Part last) const;

    HWND page_ = nullptr;
    HFONT font_ = nullptr;
    UINT firstId_ = 0;
    int top_ = 0;
    int entriesWidth_ = 0; // Pixels that the combo box needs for its entries.
};
