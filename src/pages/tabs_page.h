#pragma once

#include "pages/form_page.h"
#include "settings/tab_list.h"

// The Tabs page: how the dashboard's tabs behave, their order and which of them are shown, Today
// plug-ins as further tabs, and the tab that the dashboard returns to. The calendar's tab is always
// the first and not listed.
class TabsPage final : public FormPage {
  public:
    TabsPage();

    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;

  private:
    void CreateTabList(HWND window) const;
};
