#include "files/settings_backup.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <memory>
#include <string>

#include "files/backup_reader.h"
#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"

namespace {

// One for the whole tree, so that each level of keys takes next to nothing of a small stack.
class KeyTreeWriter {
  public:
    KeyTreeWriter(const wchar_t* path, LineWriter& lines) : path_(path), lines_(lines) {}

    void WriteKey(HKEY key) {
        lines_.Section(path_);
        for (DWORD index = 0; WriteValue(key, index); ++index) {
        }
        const size_t length = path_.size();
        for (DWORD index = 0; SubkeyName(key, index, name_) == ERROR_SUCCESS; ++index) {
            path_.append(L"\\").append(name_.View());
            const UniqueKey subkey(OpenOrCreateKey(key, name_.CStr()));
            WriteKey(subkey.Get());
            path_.resize(length);
        }
    }

  private:
    static constexpr DWORD kNameRoom = 256; // Characters, a terminator among them.
    static constexpr DWORD kDataRoom = 256; // Bytes.

    struct Value {
        wchar_t name[kNameRoom];
        alignas(wchar_t) BYTE data[kDataRoom];
    };

    // False when there is no such value, or it does not fit.
    bool WriteValue(HKEY key, DWORD index) {
        DWORD nameLength = kNameRoom;
        DWORD type = REG_NONE;
        DWORD size = kDataRoom;
        if (RegEnumValue(key, index, value_->name, &nameLength, nullptr, &type, value_->data,
                         &size) != ERROR_SUCCESS) {
            return false;
        }
        const std::wstring_view name(value_->name, nameLength);
        if (type == REG_SZ) lines_.Text(name, TextOf(size));
        if (type == REG_DWORD) lines_.Number(name, NumberOf(size));
        return true;
    }

    // A stored text may lack its terminator.
    [[nodiscard]] std::wstring_view TextOf(DWORD size) const {
        const void* text = value_->data;
        const std::wstring_view all(static_cast<const wchar_t*>(text), size / sizeof(wchar_t));
        return all.substr(0, all.find(L'\0'));
    }

    [[nodiscard]] uint32_t NumberOf(DWORD size) const {
        uint32_t number = 0;
        memcpy(&number, value_->data, std::min<size_t>(size, sizeof number));
        return number;
    }

    std::wstring path_;
    LineWriter& lines_;
    std::unique_ptr<Value> value_ = std::make_unique<Value>();
    WideString name_;
};

class Restorer final : public BackupReceiver {
  public:
    explicit Restorer(CategoryStore& categories) : categories_(categories) {}

    bool BeginKey(std::wstring_view path) override {
        name_.Assign(path.data(), path.size());
        // Such a path would be the user's whole registry.
        if (name_.IsEmpty() || name_.CStr()[0] == L'\\') return false;
        if (name_ == kSettingsKey) {
            key_.Reset();
            DeleteKeyTree(HKEY_CURRENT_USER, kSettingsKey);
        }
        key_.Reset(OpenOrCreateKey(HKEY_CURRENT_USER, name_.CStr()));
        return static_cast<bool>(key_);
    }

    void SetText(std::wstring_view name, std::wstring_view text) override {
        name_.Assign(name.data(), name.size());
        text_.Assign(text.data(), text.size());
        SetTextValue(key_.Get(), name_.CStr(), text_.CStr());
    }

    void SetNumber(std::wstring_view name, uint32_t number) override {
        name_.Assign(name.data(), name.size());
        SetNumberValue(key_.Get(), name_.CStr(), number);
    }

    void SetCategory(const BackupCategory& read) override {
        CategoryEntry* category = categories_.FindCategory(read.name);
        if (category == nullptr) return;
        category->filters = read.filters.value_or(category->filters);
        category->colour = read.colour.value_or(category->colour);
    }

    void SetFilter(const BackupFilter& read) override {
        FilterEntry* filter = categories_.FindFilter(read.index.value_or(0));
        if (filter == nullptr) return;
        if (read.title) filter->title.Assign(read.title->data(), read.title->size());
        if (read.visible) filter->visible = *read.visible != 0;
        if (read.includeUncategorized) {
            filter->includeUncategorized = *read.includeUncategorized != 0;
        }
    }

  private:
    CategoryStore& categories_;
    UniqueKey key_;
    WideString name_;
    WideString text_;
};

} // namespace

void WriteRegistryKeyTree(const wchar_t* keyPath, LineWriter& lines) {
    const UniqueKey key(OpenOrCreateKey(HKEY_CURRENT_USER, keyPath));
    KeyTreeWriter(keyPath, lines).WriteKey(key.Get());
}

void WriteCategoriesSection(const CategoryStore& categories, LineWriter& lines) {
    lines.Section(kCategoriesSection);
    for (const auto& category : categories.All()) {
        lines.Text(L"Category", category->name.View());
        lines.Number(L"FiltersFlag", category->filters);
        lines.Number(L"Color", category->colour);
    }
}

void WriteFiltersSection(const CategoryStore& categories, LineWriter& lines) {
    lines.Section(kFiltersSection);
    uint32_t index = 0;
    for (const FilterEntry& filter : categories.AllFilters()) {
        lines.Text(L"FilterName", filter.title.View());
        lines.Number(L"Index", ++index);
        lines.Number(L"VisibleState", filter.visible ? 1 : 0);
        lines.Number(L"IncludeUncategorized", filter.includeUncategorized ? 1 : 0);
    }
}

void WriteBackup(const CategoryStore& categories, ByteSink& file) {
    LineWriter lines(file);
    WriteRegistryKeyTree(kSettingsKey, lines);
    WriteCategoriesSection(categories, lines);
    WriteFiltersSection(categories, lines);
}

bool ReadBackup(ByteSource& file, CategoryStore& categories) {
    Restorer restorer(categories);
    return ReadBackup(file, restorer);
}
