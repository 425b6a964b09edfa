#pragma once

#include "menu_bar_content.h"

// Posted to a bar by a soft key; wParam is its number from 0.
constexpr UINT kSoftKeyMessage = WM_APP;

// The bar at the bottom of the screen: menus, commands and icon buttons of the window that owns it,
// and the button that raises the input panel. It is a pop-up window that never becomes active and
// goes with its owner.
class MenuBar {
  public:
    // Creates a bar as asked; null when that fails.
    static HWND Create(const SHMENUBARINFO& info, MenuBarContent content);
    // The bar made last of those that a window owns, or null.
    static MenuBar* Of(HWND owner);

    [[nodiscard]] HWND Window() const { return window_; }
    // Whether the program handles a key itself that the bar would act on.
    [[nodiscard]] bool IsOverridden(WORD key) const;

  private:
    struct KeyOverride {
        WORD key;
        WORD flags; // SHMBOF_*
    };

    // A bar may be destroyed while its menu is open. The menu then lives until it is closed: Wine
    // hangs when an open menu is destroyed.
    struct OpenMenuState {
        bool barDestroyed = false;
        HMENU menu = nullptr; // To be destroyed after that.
    };

    MenuBar(const SHMENUBARINFO& info, MenuBarContent content);
    ~MenuBar();
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandlePointer(UINT message, POINT point);
    LRESULT HandleShellMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleToolbarMessage(UINT message, WPARAM wParam, LPARAM lParam);

    bool CreateBarWindow(bool visible);
    void PlaceOnScreen();
    void Arrange();
    void OnPaint();
    void OnSoftKey(int number);

    LRESULT OverrideKey(WORD key, LPARAM maskAndFlags);
    LRESULT SetSubMenu(UINT id, HMENU popup);
    LRESULT AddButtons(size_t count, const TBBUTTON* buttons);
    LRESULT SetState(UINT id, BYTE state);
    LRESULT EnableItem(UINT id, bool enable);
    LRESULT GetPlace(size_t index, RECT* place) const;
    LRESULT SetImages(HIMAGELIST images);

    // Items are meant by their index; negative numbers are the panel button and no item.
    [[nodiscard]] int HitTest(POINT point) const;
    [[nodiscard]] bool CanPress(int index) const;
    void SetPressed(int index);
    void Activate(int index, bool byKey);
    void OpenMenu(int index, bool byKey);
    void TrackMenu(HMENU popup, RECT place) const;
    void SwallowTapOn(int index) const;
    MenuBarItem* FindItem(UINT id);

    HWND window_ = nullptr;
    HWND parent_; // Receives the commands.
    HMENU menu_;
    std::vector<MenuBarItem> items_;
    HIMAGELIST images_ = nullptr; // The program's own, unless it is ownImages_.
    HIMAGELIST ownImages_ = nullptr;
    HFONT font_;
    COLORREF background_;
    bool hasPanelButton_;
    RECT panelButton_ = {};
    int held_; // What the pointer went down on.
    int pressed_;
    OpenMenuState* openMenu_ = nullptr; // While a menu of the bar is open.
    std::vector<KeyOverride> overrides_;
};
