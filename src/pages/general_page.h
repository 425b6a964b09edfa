#pragma once

#include <array>

#include "pages/form_page.h"

// The General page: what taps do, the dashboard's height and looks, its language, the directional
// pad and scrolling.
class GeneralPage final : public FormPage {
  public:
    GeneralPage();

    void CreateControls(HWND window) override;
    void SaveValues(HWND window, WPARAM wParam) override;

  protected:
    void PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) override;
    void LoadCustomRow(HWND window, const FormRow& row) override;
    void SaveCustomRow(HWND window, const FormRow& row) override;
    bool BrowsePath(HWND window, const FormRow& row, WideString& path) override;

  private:
    static constexpr size_t kLanguageLimit = 20;

    void FillLanguages(HWND combo);
    void SaveLanguage(HWND window, const FormRow& row);

    // The paths of the language libraries, in the order in which they were found.
    std::array<WideString, kLanguageLimit> languagePaths_;
};
