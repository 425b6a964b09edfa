#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "shell/services/wide_string.h"

// What a tab of the dashboard shows; single bits.
enum class TabType : uint32_t {
    Hosted = 1, // Another Today plug-in.
    Calendar = 2,
    Tasks = 4,
    SpecialEvents = 8,
    Notes = 16,
    Mail = 32,
    Contacts = 64,
};

struct TabDefinition {
    TabType type = TabType::Hosted;
    uint32_t order = 0; // The tab's number, from 1, once the list is numbered.
    uint32_t enabled = 0;
    WideString name; // An own tab's caption, or the name of the plug-in's Today item key.
    // Empty for own tabs.
    WideString dll;
    WideString installPath;
    WideString customIconName;
};

// The dashboard's tabs, sorted by order as they come; of equal orders, the one that came later
// stands later. Entries keep their address until they are removed.
class TabList {
  public:
    using Entries = std::vector<std::unique_ptr<TabDefinition>>;

    // The order a hosted tab has while none is stored.
    static constexpr uint32_t kHostedOrder = 9;

    [[nodiscard]] const Entries& All() const { return entries_; }
    TabDefinition& Insert(TabDefinition tab);
    void Remove(const TabDefinition& tab);
    void Clear() { entries_.clear(); }
    // Gives the entries the orders 1, 2, … as they stand.
    void Number();
    // Puts the entries into their order again after it was changed.
    void Sort();

    // The first tab of that number or type; null when there is none.
    [[nodiscard]] const TabDefinition* FindNumber(uint32_t number) const;
    [[nodiscard]] const TabDefinition* FindType(TabType type) const;

    // The plug-in tabs: one subkey each of the tab key. A null key holds none and takes none. Where
    // the load could not read them all, the other two leave the stored ones alone.
    void LoadHosted(HKEY tabKey);
    // Writes every value of every plug-in tab, in the list's order, changed or not.
    void SaveHosted(HKEY tabKey) const;
    // The dashboard keeps something of its own in a subkey "Contacts"; all others are plug-in tabs
    // and are deleted, so that a tab that was removed does not come back.
    void DeleteHosted(HKEY tabKey) const;

  private:
    Entries entries_;
    bool hostedTabsAreKnown_ = false;
};
