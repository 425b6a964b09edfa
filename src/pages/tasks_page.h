#pragma once

#include "pages/form_page.h"
#include "pages/icon_group.h"
#include "preview/item_sample.h"

// The Tasks page: which tasks are listed and how they are dated, group titles, the icons beside a
// task with a live sample, and date formats of the user's own.
class TasksPage final : public FormPage {
  public:
    TasksPage();

    void ShowTab(HWND window, int showCommand) override;
    LRESULT OnPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnToolbarMenuSelect(HWND window, UINT message, WPARAM value, LPARAM code) override;
    LRESULT OnToolbarClick(HWND window, UINT message, WPARAM unused, LPARAM code) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;

  private:
    IconGroup icons_;
    ItemSample sample_;
    int sampleTop_ = 0; // Pixels; below the icon choosers.
};
