#include "settings/tab_list.h"

#include <algorithm>
#include <utility>

#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"

namespace {

constexpr wchar_t kForeignSubkey[] = L"Contacts";
constexpr wchar_t kOrder[] = L"Order";
constexpr wchar_t kEnabled[] = L"Enabled";
constexpr wchar_t kType[] = L"Type";

struct TabText {
    const wchar_t* valueName;
    WideString TabDefinition::*text;
};
constexpr TabText kTexts[] = {
    {L"DLL", &TabDefinition::dll},
    {L"InstallPath", &TabDefinition::installPath},
    {L"CustomIconName", &TabDefinition::customIconName},
};

bool ComesBefore(const std::unique_ptr<TabDefinition>& left,
                 const std::unique_ptr<TabDefinition>& right) {
    return left->order < right->order;
}

// A null key gives the defaults.
std::unique_ptr<TabDefinition> ReadHosted(HKEY key, WideString name) {
    auto tab = std::make_unique<TabDefinition>();
    tab->order = ReadNumber(key, kOrder, TabList::kHostedOrder);
    tab->enabled = ReadNumber(key, kEnabled, 0);
    for (const TabText& text : kTexts)
        ReadText(key, text.valueName, (*tab).*text.text);
    tab->name = std::move(name);
    return tab;
}

void WriteHosted(HKEY tabKey, const TabDefinition& tab) {
    constexpr auto kNeverDefault = ~static_cast<uint32_t>(TabType::Hosted);
    const UniqueKey key(OpenOrCreateKey(tabKey, tab.name.CStr()));
    WriteNumber(key.Get(), kEnabled, tab.enabled, 0);
    WriteNumber(key.Get(), kOrder, tab.order, TabList::kHostedOrder);
    WriteNumber(key.Get(), kType, static_cast<uint32_t>(TabType::Hosted), kNeverDefault);
    for (const TabText& text : kTexts) {
        WriteText(key.Get(), text.valueName, (tab.*text.text).CStr(), L"");
    }
}

} // namespace

TabDefinition& TabList::Insert(TabDefinition tab) {
    auto entry = std::make_unique<TabDefinition>(std::move(tab));
    const auto place = std::upper_bound(entries_.begin(), entries_.end(), entry, ComesBefore);
    return **entries_.insert(place, std::move(entry));
}

void TabList::Remove(const TabDefinition& tab) {
    std::erase_if(entries_, [&](const auto& entry) { return entry.get() == &tab; });
}

void TabList::Number() {
    uint32_t number = 0;
    for (const auto& entry : entries_)
        entry->order = ++number;
}

void TabList::Sort() {
    std::ranges::stable_sort(entries_, ComesBefore);
}

const TabDefinition* TabList::FindNumber(uint32_t number) const {
    const auto found =
        std::ranges::find(entries_, number, [](const auto& entry) { return entry->order; });
    return found == entries_.end() ? nullptr : found->get();
}

const TabDefinition* TabList::FindType(TabType type) const {
    const auto found =
        std::ranges::find(entries_, type, [](const auto& entry) { return entry->type; });
    return found == entries_.end() ? nullptr : found->get();
}

// Sorted once at the end, which is the same as inserting one by one and needs no shifting.
void TabList::LoadHosted(HKEY tabKey) {
    WideString name;
    LSTATUS status = ERROR_INVALID_HANDLE;
    bool allRead = true;
    for (DWORD index = 0; tabKey != nullptr; ++index) {
        status = SubkeyName(tabKey, index, name);
        if (status != ERROR_SUCCESS) break;
        if (name == kForeignSubkey) continue;
        const UniqueKey key(OpenExistingKey(tabKey, name.CStr()));
        allRead = allRead && static_cast<bool>(key);
        entries_.push_back(ReadHosted(key.Get(), name));
    }
    hostedTabsAreKnown_ = allRead && status == ERROR_NO_MORE_ITEMS;
    Sort();
}

void TabList::SaveHosted(HKEY tabKey) const {
    if (tabKey == nullptr || !hostedTabsAreKnown_) return;
    for (const auto& entry : entries_) {
        if (entry->type == TabType::Hosted) WriteHosted(tabKey, *entry);
    }
}

void TabList::DeleteHosted(HKEY tabKey) const {
    if (tabKey != nullptr && hostedTabsAreKnown_) DeleteSubkeys(tabKey, kForeignSubkey);
}
