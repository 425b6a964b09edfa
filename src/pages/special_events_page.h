#pragma once

#include "pages/form_page.h"

// The Special events page: which birthdays and anniversaries are shown and how they are written,
// the categories that count as such, and the titles of groups.
class SpecialEventsPage final : public FormPage {
  public:
    SpecialEventsPage();

  protected:
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;
};
