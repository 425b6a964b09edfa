#pragma once

#include "pages/form_page.h"

// The PIM page: the application whose items the dashboard shows, the reminders of new items, and
// what the dashboard makes of that application's categories.
class PimPage final : public FormPage {
  public:
    PimPage();

    void SaveValues(HWND window, WPARAM wParam) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void OnApplicationChosen(HWND window);
};
