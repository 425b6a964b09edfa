#pragma once

#include <windows.h>

#include <span>

#include "resource_ids.h"
#include "settings/settings_store.h"
#include "ui/icon_chooser.h"

// The icons that can stand beside an item; their flags mean the same for both kinds.
inline constexpr IconFlag kAppointmentIconFlags[] = {
    {1, IDS_ICON_NOTE},        {2, IDS_ICON_REMINDER},   {4, IDS_ICON_IMPORTANCE},
    {8, IDS_ICON_RECURRING},   {16, IDS_ICON_PRIVATE},   {64, IDS_ICON_LINK},
    {128, IDS_ICON_ATTENDEES}, {256, IDS_ICON_CATEGORY},
};

inline constexpr IconFlag kTaskIconFlags[] = {
    {1, IDS_ICON_NOTE},      {2, IDS_ICON_REMINDER},   {4, IDS_ICON_IMPORTANCE},
    {8, IDS_ICON_RECURRING}, {16, IDS_ICON_PRIVATE},   {32, IDS_ICON_REGENERATED},
    {64, IDS_ICON_LINK},     {256, IDS_ICON_CATEGORY},
};

// One of the places where an item of the dashboard shows icons.
struct IconSlot {
    UINT text; // The label's.
    int code;  // Of its chooser's messages.
    DwordSetting SettingsStore::*setting;
};

// The icons of one kind of item: two at the left, each one flag, and a set at the right.
struct IconGroupTable {
    IconSlot left1;
    IconSlot left2;
    IconSlot right;
    std::span<const IconFlag> flags;
};

// The three choosers of one kind of item. Choices are stored at once, and no icon shows on both
// sides: what is chosen at the left is withdrawn from the right.
class IconGroup {
  public:
    static constexpr UINT kIdCount = 6; // A label's id and a button strip's for each chooser.

    // The table must outlive the group.
    explicit IconGroup(const IconGroupTable& table) : table_(table) {}

    // Makes the choosers from the store, at no place yet, with the ids from `firstId` on. The group
    // must outlive their windows, which belong to the page.
    void Create(HWND page, HFONT font, UINT firstId);

    // Places the choosers from `top` down, one below the other or, on a page that is wider than
    // high, the left ones side by side. Gives the y below them; both in pixels.
    [[nodiscard]] int Place(HWND page, int top) const;

    // The page's kMessageToolbarMenuSelect and kMessageToolbarClick; false when the code is none of
    // the group's. The page then redraws its sample.
    bool OnMenuSelect(LPARAM code, uint32_t flag);
    bool OnClick(LPARAM code);

  private:
    void ChooseLeft(const IconSlot& slot, const IconSlot& other, uint32_t flag);

    const IconGroupTable& table_;
    IconChooser left1_;
    IconChooser left2_;
    IconChooser right_;
};
