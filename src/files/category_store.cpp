#include "files/category_store.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "files/categories_database.h"
#include "files/category_icons.h"
#include "files/file_stream.h"
#include "settings/registry_values.h"
#include "settings/settings_store.h"

CategoryStore categoryStore;

namespace {

WideString FilterFilePath() {
    WideString path(settingsStore.OVFiltersFileFolder.value);
    path.Append(L"\\OVFilters.txt");
    return path;
}

std::wstring_view NameOf(const std::unique_ptr<CategoryEntry>& category) {
    return category->name.View();
}

WideString ValueName(const wchar_t* prefix, const CategoryEntry& category) {
    WideString name(prefix);
    name.Append(category.name.CStr());
    return name;
}

WideString ColourName(const CategoryEntry& category) {
    return ValueName(L"CatColor.", category);
}

WideString FiltersName(const CategoryEntry& category) {
    return ValueName(L"CatFilter.", category);
}

} // namespace

void CategoryStore::LoadCategoryStore() {
    LoadCategories();
    LoadCategoryRegistry();
    LoadFilters();
    ResolveSelections();
}

// A database may name a category twice; the first one counts.
void CategoryStore::LoadCategories() {
    categories_.clear();
    for (CategoryRecord& record : ReadCategoriesDatabase()) {
        auto category = std::make_unique<CategoryEntry>();
        category->name = std::move(record.name);
        category->number = record.number;
        category->flag = record.flag;
        categories_.push_back(std::move(category));
    }
    std::ranges::stable_sort(categories_, {}, NameOf);
    const auto sameName = [](const auto& left, const auto& right) {
        return left->name == right->name;
    };
    categories_.erase(std::unique(categories_.begin(), categories_.end(), sameName),
                      categories_.end());
    for (const auto& category : categories_)
        category->icon = LoadCategoryIcon(category->name);
}

void CategoryStore::LoadCategoryRegistry() {
    const UniqueKey key(OpenGroupKey(SettingGroup::Categories));
    for (const auto& category : categories_) {
        category->colour = ReadNumber(key.Get(), ColourName(*category).CStr(), kNoColour);
    }
    for (const auto& category : categories_) {
        category->filters = ReadNumber(key.Get(), FiltersName(*category).CStr(), 0);
    }
}

void CategoryStore::SaveCategoryRegistry() const {
    const UniqueKey key(OpenGroupKey(SettingGroup::Categories));
    for (const auto& category : categories_) {
        WriteNumber(key.Get(), ColourName(*category).CStr(), category->colour, kNoColour);
        WriteNumber(key.Get(), FiltersName(*category).CStr(), category->filters, 0);
    }
}

void CategoryStore::LoadFilters() {
    FileSource file(FilterFilePath().CStr());
    ReadFilters(file, filters_);
}

void CategoryStore::SaveFilterFile() const {
    const WideString path = FilterFilePath();
    DeleteFile(path.CStr());
    NewFile file(path.CStr());
    if (file.IsOpen()) WriteFilters(filters_, file);
}

void CategoryStore::ResetFilters() {
    SetDefaultFilters(filters_);
}

void CategoryStore::ResolveSelections() {
    const auto resolve = [this](const StringSetting& category, const DwordSetting& filter) {
        return FindSelection(category.value, filter.value);
    };
    const SettingsStore& stored = settingsStore;
    calendarSelection = resolve(stored.CalendarSelCategory, stored.CalendarSelFilter);
    tasksSelection = resolve(stored.TasksSelCategory, stored.TasksSelFilter);
    contactsSelection = resolve(stored.ContactsSelCategory, stored.ContactsSelFilter);
    specialEventsSelection = resolve(stored.SEventsSelCategory, stored.SEventsSelFilter);
}

CategorySelection CategoryStore::FindSelection(const WideString& categoryName,
                                               uint32_t filterIndex) {
    CategorySelection selection;
    if (!categoryName.IsEmpty()) selection.category = FindCategory(categoryName.View());
    if (selection.category == nullptr) selection.filter = FindFilter(filterIndex);
    return selection;
}

CategoryEntry* CategoryStore::FindCategory(std::wstring_view name) const {
    const auto found = std::ranges::lower_bound(categories_, name, {}, NameOf);
    return found != categories_.end() && NameOf(*found) == name ? found->get() : nullptr;
}

FilterEntry* CategoryStore::FindFilter(uint32_t index) {
    return index >= 1 && index <= filters_.size() ? &filters_[index - 1] : nullptr;
}
