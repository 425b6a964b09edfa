#pragma once

#include <span>

#include "pages/settings_page.h"

// A page that has its tabs but no settings to offer in this version, and says so.
class OutlinePage final : public SettingsPage {
  public:
    // The text ids of the tab captions.
    explicit OutlinePage(std::span<const UINT> titles) : titles_(titles) {}

    [[nodiscard]] int GetTabCount() const override;
    [[nodiscard]] UINT GetTabTitleId(int index) const override;
    void CreateControls(HWND window) override;
    void ShowTab(HWND window, int showCommand) override;
    void SaveValues(HWND window, WPARAM wParam) override;

  private:
    std::span<const UINT> titles_;
};
