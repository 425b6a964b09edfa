#pragma once

#include "pages/settings_page.h"

// The Colours page: the colours of the dashboard, and schemes that keep colours and fonts. A chosen
// colour is in the store at once; schemes act on files.
class ColoursPage final : public SettingsPage {
  public:
    [[nodiscard]] int GetTabCount() const override;
    [[nodiscard]] UINT GetTabTitleId(int index) const override;
    void CreateControls(HWND window) override;
    void ShowTab(HWND window, int showCommand) override;
    void SaveValues(HWND window, WPARAM wParam) override;
    LRESULT OnPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT Layout(HWND window) override;
    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  private:
    void PaintColour(HWND window, HDC dc) const;
};
