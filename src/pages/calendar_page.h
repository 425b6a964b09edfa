#pragma once

#include "pages/display_format.h"
#include "pages/form_page.h"
#include "pages/icon_group.h"
#include "pages/option_lists.h"

// The Calendar page, in nine sections: three forms, five lists of options that share one panel, and
// the icons and display format of appointments with a live sample.
class CalendarPage final : public FormPage {
  public:
    CalendarPage();

    void CreateControls(HWND window) override;
    void ShowTab(HWND window, int showCommand) override;
    void SaveValues(HWND window, WPARAM wParam) override;
    LRESULT OnPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnLButtonDown(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnToolbarMenuSelect(HWND window, UINT message, WPARAM value, LPARAM code) override;
    LRESULT OnToolbarClick(HWND window, UINT message, WPARAM unused, LPARAM code) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT Layout(HWND window) override;
    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;

  private:
    void PlaceIcons(HWND window, RowLayout& layout);
    void PlaceWeatherNotice(HWND window, int top) const;

    OptionLists optionLists_;
    IconGroup appointmentIcons_;
    IconGroup taskIcons_;
    DisplayFormat displayFormat_;
};
