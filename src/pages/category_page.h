#pragma once

#include "files/category_store.h"
#include "pages/form_page.h"

// The Category page: colours and icons of the categories, which category belongs to which filter,
// and the folder of additional icons. All but the folder is changed in the category store itself;
// an icon is changed at once, as it is a file.
class CategoryPage final : public FormPage {
  public:
    CategoryPage();

    void CreateControls(HWND window) override;
    void SaveValues(HWND window, WPARAM wParam) override;
    LRESULT OnDrawItem(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnMeasureItem(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT Layout(HWND window) override;
    LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header) override;

  protected:
    bool BrowsePath(HWND window, const FormRow& row, WideString& path) override;

  private:
    // What the tab strip leaves of the page, in pixels.
    [[nodiscard]] SIZE Room(HWND window) const;
    static void FillLists(HWND window);
    void DrawCategory(const DRAWITEMSTRUCT& row, const CategoryEntry& category) const;
    static void OnButton(HWND window, UINT id);
    static void OnPathChanged(HWND window);

    void ChangeFilter(HWND window);
    void ShowFilter(HWND window, int position);
    static void RenameFilter(HWND window);

    int shownFilter_ = 0; // The position of the filter that the controls show.
};
