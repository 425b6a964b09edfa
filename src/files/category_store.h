#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "files/filter_file.h"
#include "settings/setting.h"
#include "shell/services/handles.h"
#include "shell/services/wide_string.h"

// One category of the device.
struct CategoryEntry {
    WideString name;
    uint32_t filters = 0; // Bit n: it belongs to the filter of index n + 1.
    COLORREF colour = kNoColour;
    UniqueBitmap icon; // Of the icons folder; none where there is no file.
    bool flag = false; // Both of the device's database.
    uint16_t number = 0;
};

// What a view shows: one category, or one filter, or, with neither, the default.
struct CategorySelection {
    const CategoryEntry* category = nullptr;
    const FilterEntry* filter = nullptr;
};

// The device's categories with their colours, and the 32 filters. It is loaded at start-up; the
// Category page, a backup and a scheme change it; what is changed reaches the registry and the
// filter file when the user confirms, or right after a backup was read. No failure is reported:
// what cannot be read has its default, what cannot be written is dropped.
class CategoryStore {
  public:
    using Categories = std::vector<std::unique_ptr<CategoryEntry>>;

    // All of it, in this order: the categories, what the registry keeps of them, the filters, the
    // selections. Folders and selections come from the settings store, which is loaded before.
    void LoadCategoryStore();
    // A value that equals its default is deleted; values of categories that the device no longer
    // has stay.
    void SaveCategoryRegistry() const;
    void SaveFilterFile() const;
    void ResetFilters();

    // Resolves what the four views have selected, after the settings were loaded anew.
    void ResolveSelections();
    // The category of exactly that name, else the filter of that index, else neither.
    [[nodiscard]] CategorySelection FindSelection(const WideString& categoryName,
                                                  uint32_t filterIndex);

    // By name, in the order of the code units.
    [[nodiscard]] const Categories& All() const { return categories_; }
    // Null when there is none. Indexes count from 1.
    [[nodiscard]] CategoryEntry* FindCategory(std::wstring_view name) const;
    [[nodiscard]] FilterEntry* FindFilter(uint32_t index);
    [[nodiscard]] const Filters& AllFilters() const { return filters_; }

    CategorySelection calendarSelection;
    CategorySelection tasksSelection;
    CategorySelection contactsSelection;
    CategorySelection specialEventsSelection;

  private:
    void LoadCategories();
    void LoadCategoryRegistry();
    void LoadFilters();

    Categories categories_;
    Filters filters_;
};

extern CategoryStore categoryStore;
