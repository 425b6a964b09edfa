#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "ui/button_strip.h"
#include "ui/controls.h"
#include "ui/icon_marker.h"

// An icon by its flag, which is also how its image is found, and the text id of its caption.
struct IconFlag {
    uint32_t flag;
    UINT caption;
};

enum class IconChoice : uint8_t {
    One, // One flag or none, from a drop-down menu; the page is sent kMessageToolbarMenuSelect.
    Set, // Any of them, each a button; the page is sent kMessageToolbarClick.
};

struct IconChooserKind {
    IconChoice choice = IconChoice::One;
    UINT labelId = 0; // Control ids.
    UINT id = 0;
    UINT text = 0; // The label's.
    int code = 0;  // What the chooser's messages carry as lParam; no window id.
    std::span<const IconFlag> flags = {};
};

// Chooses among flags that are shown as icons: a label, and a button for each flag or one button
// that shows the chosen icon and drops a menu of all. Holding the pen on a button shows its
// caption. Left and Right do not choose as on a drop-down list: passing over an icon would already
// withdraw it elsewhere. The object must outlive its windows, which belong to the page.
class IconChooser final : private ButtonStrip {
  public:
    // In units: a chooser's height, its distance to the one below, and the width of a button.
    static constexpr int kHeight = 22;
    static constexpr int kPitch = 24;
    static constexpr int kButtonWidth = 21;

    // Makes the label and the buttons, hidden and at no place yet, showing `value`. A value that is
    // none of the flags shows as none; bits of a set that are no flag's do not count.
    void Create(HWND page, HFONT font, const IconChooserKind& kind, uint32_t value);

    // Places label and buttons in pixels of the page. A set needs a button's width for each flag.
    void Place(const ControlPlace& label, const ControlPlace& buttons) const;

    // The chosen flag or the sum of the chosen flags; changed before the page is told.
    [[nodiscard]] uint32_t Value() const { return value_; }

    // A withdrawn flag of a set is taken out of the value, and cannot be chosen until it is offered
    // again. The page is not told. What is none of the flags changes nothing.
    void Withdraw(uint32_t flag);
    void Offer(uint32_t flag);

  private:
    [[nodiscard]] bool IsFlag(uint32_t value) const;
    [[nodiscard]] int ButtonCount() const override;
    [[nodiscard]] bool IsOffered(int button) const override;
    [[nodiscard]] WideString NameOf(int button) const override;
    void DrawButton(HDC dc, int button, const RECT& place, bool hasFocus) override;
    void Press(int button) override;
    void MeasureEntry(MEASUREITEMSTRUCT& entry) const override;
    void DrawEntry(const DRAWITEMSTRUCT& entry) override;

    // The entries of the drop-down menu: 0 is none, 1 the first flag.
    [[nodiscard]] int ChosenEntry() const;
    [[nodiscard]] WideString EntryName(int entry) const;
    [[nodiscard]] uint32_t EntryFlag(int entry) const;
    void ChooseFromMenu();
    void ChooseEntry(int entry);
    void DrawDropDown(HDC dc, const RECT& place, bool hasFocus) const;

    IconChooserKind kind_;
    HWND label_ = nullptr;
    IconMarker marker_; // Of a chooser of one flag.
    uint32_t value_ = 0;
    uint32_t withdrawn_ = 0;
};
