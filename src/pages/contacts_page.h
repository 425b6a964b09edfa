#pragma once

#include "pages/alphabet_list.h"
#include "pages/form_page.h"
#include "ui/search_bar_chooser.h"

// The Contacts page: how contacts are listed, what opens one, how they are searched and folded, and
// the alphabets of the search bar. What it cannot offer, it keeps until the user chooses otherwise.
class ContactsPage final : public FormPage {
  public:
    ContactsPage();

    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;

  private:
    SearchBarChooser searchBar_{settingsStore.CntctsActiveSearchBar,
                                settingsStore.ContactsCustomSearchBarSelected};
    AlphabetList alphabets_;
};
