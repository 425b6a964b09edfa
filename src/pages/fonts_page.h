#pragma once

#include "pages/form_page.h"

// The Fonts page: how all texts are drawn, and a list of what can have a colour or a whole font of
// its own, with a sample of the selected one.
class FontsPage final : public FormPage {
  public:
    FontsPage();

    void CreateControls(HWND window) override;
    void ShowTab(HWND window, int showCommand) override;
    LRESULT OnPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;

  private:
    void CreateOwnMenuBar(HWND window);
    void NameItemsTab(HWND window) const;
    void PaintItem(HWND window, HDC dc) const;
};
